#include "combat/explosions.h"

#include <string>

#include "combat/flight.h"
#include "combat/tools.h"
#include "data/weapons_file.h"
#include "field/geometry.h"
#include "platform/rounding.h"
#include "state/audience.h"
#include "state/log.h"
#include "state/operation.h"
#include "state/pace.h"
#include "state/state.h"

namespace {

constexpr int Countdown = 100;
constexpr int TickStep = 10;

std::string ChargeName(int index) {
    return "charge " + std::to_string(index - ChargeBase);
}

void Tick(int index) {
    Unit& charge = UnitTable[index];
    curUnit = index;
    charge.time -= TickStep;
    AddToLog(ChargeName(index) + " counts " + std::to_string(charge.time), 1);
    if (charge.time >= 1) return;
    AddToLog(ChargeName(index) + " blow", 1);
    ChargeBlow(charge.cellX, charge.cellY);
    ChargeRemove(charge.cellX, charge.cellY);
}

}  // namespace

// ODDITY: the log calls every charge number 0.
void ChargeAdd(int x, int y) {
    ++teamLast[ChargeList];
    Unit& charge = UnitTable[ChargeBase + teamLast[ChargeList]];
    AddToLog("charge 0 set", 1);
    const WeaponInfo& kind = WeaponInfoByName("c4");
    charge.name = "charge";
    charge.hand.power = kind.power;
    charge.hand.accur = kind.accur;
    charge.time = Countdown;
    charge.cellX = x;
    charge.cellY = y;
    TheAudience().CellChanged(x, y);
}

// ODDITY: the list doesn't close up, only its count falls. The first of several charges blows again and
// again, and the last one never does.
void ChargeRemove(int x, int y) {
    for (int i = ChargeBase; i <= ChargeBase + teamLast[ChargeList]; ++i) {
        if (UnitTable[i].cellX != x || UnitTable[i].cellY != y) continue;
        --teamLast[ChargeList];
        TheAudience().CellChanged(x, y);
        return;
    }
}

void ChargeTick() {
    RunOperation([] {
        const int last = ChargeBase + teamLast[ChargeList];
        for (int i = ChargeBase; i <= last; ++i)
            Tick(i);
        curUnit = last + 1;
    });
}

// ODDITY: the nine cells share one bullet, column by column from the left; the later ones get what is left of
// it. The current unit's own cell takes no part.
void ChargeBlow(int x, int y) {
    const int power = UnitTable[curUnit].hand.power;
    bulletPower = power;
    bulletAccur = UnitTable[curUnit].hand.accur;
    ShowBlowup(1, x - 1, y - 1);
    TheAudience().SoundPlayed("weapons\\gren40", x);
    for (int i = x - 1; i <= x + 1; ++i)
        for (int j = y - 1; j <= y + 1; ++j)
            if (InField(i, j)) BulletInCell(i, j);
    SurfaceChange(x, y, -static_cast<int>(RoundHalfEven(power / 2.0)));
}
