#include "combat/tools.h"

#include <algorithm>
#include <cstdlib>
#include <string>

#include "combat/hits.h"
#include "data/terrain.h"
#include "field/geometry.h"
#include "state/audience.h"
#include "state/chance.h"
#include "state/costs.h"
#include "state/log.h"
#include "state/operation.h"
#include "state/state.h"
#include "state/status.h"

namespace {

constexpr float CureTime = 10;
constexpr int CurePower = -10;
constexpr int CureAccur = 200;
constexpr int CureHorizon = 20;
constexpr int CureChance = 60;  // of 101
constexpr const char* CureSound = "weapons\\med";

// The look of the ground by its level.
struct GroundLook {
    int lowest;
    int tileX;
    int tileY;
};

constexpr GroundLook GroundLooks[] = {
    {100, 0, Surface},  // plain ground
    {1, 15, Trenches},  // shallow trench
    {0, 16, Trenches},  // full trench
};

// Whether somebody can be reached on cell (x, y), the unit's own included.
// ODDITY: blows and cures reach only the first 35 columns and 16 rows of the field; elsewhere they cost their
// time for nothing.
bool Reaches(const Unit& unit, int x, int y) {
    if (x < 0 || x > LastColumnInReach || y < 0 || y > LastRowInReach) return false;
    return std::abs(x - unit.cellX) <= 1 && std::abs(y - unit.cellY) <= 1 && cellGrid[y][x].occupant != -1;
}

void LoadBullet(int power, int accur, int horizon) {
    bulletPower = power;
    bulletAccur = accur;
    bulletHorizon = horizon;
}

void Cure(const std::string& healer, Unit& target) {
    const int gain = RandomInt(bulletPower, 0);
    // ODDITY: the gain is drawn, and told, as a negative number.
    AddToLog(healer + " cured " + target.name + " for " + std::to_string(gain) + " points", 1);
    target.health = std::min(target.health - gain, static_cast<int>(target.vitality));
    TheAudience().SoundPlayed(CureSound, AtCurrentUnit);
    CheckStatus();
}

}  // namespace

void MeleeHit(int x, int y) {
    const Unit& unit = UnitTable[curUnit];
    if (!Spend(static_cast<float>(unit.hand.time), "time")) return;
    if (!Reaches(unit, x, y) || (x == unit.cellX && y == unit.cellY)) return;
    TheAudience().SoundPlayed("weapons\\" + unit.hand.sound, AtCurrentUnit);
    LoadBullet(unit.hand.power, unit.hand.accur, unit.hand.range * CellSize);
    UnitHit(curUnit, cellGrid[y][x].occupant);
}

void CureAt(int x, int y) {
    if (!Spend(CureTime, "time")) return;
    if (!Spend(1, "ammo")) return TheAudience().SoundPlayed("weapons\\empty", AtCurrentUnit);
    if (!Reaches(UnitTable[curUnit], x, y)) return;
    TheAudience().SoundPlayed(CureSound, AtCurrentUnit);
    LoadBullet(CurePower, CureAccur, CureHorizon);
    CureUnit(curUnit, cellGrid[y][x].occupant);
}

void CureUnit(int healer, int target) {
    Unit& unit = UnitTable[target];
    if (unit.status == Dead) return;
    RunOperation([&] {
        AsCurrentUnit(target, [&] {
            if (RandomInt(100, 0) < CureChance) Cure(UnitTable[healer].name, unit);
        });
        ShowStatus("");
    });
}

void SurfaceChange(int x, int y, int delta) {
    if (!InField(x, y)) return;
    Cell& cell = cellGrid[y][x];
    if (cell.tileY != Surface && cell.tileY != Trenches) return;
    if (delta < 0 && cell.durab == 0) return;
    if (delta > 0 && cell.durab == HighestGround) return;
    cell.durab = std::clamp(cell.durab + delta, 0, HighestGround);
    for (const GroundLook& look : GroundLooks) {
        if (cell.durab < look.lowest) continue;
        cell.tileX = look.tileX;
        cell.tileY = look.tileY;
        break;
    }
    TheAudience().CellChanged(x, y);
    TheAudience().ShowNow();
}
