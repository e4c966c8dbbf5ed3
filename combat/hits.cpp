#include "combat/hits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "combat/things.h"
#include "combat/trail.h"
#include "data/mode_words.h"
#include "field/geometry.h"
#include "field/moving.h"
#include "platform/rounding.h"
#include "state/audience.h"
#include "state/chance.h"
#include "state/higher_rules.h"
#include "state/log.h"
#include "state/operation.h"
#include "state/state.h"
#include "state/status.h"

namespace {

constexpr std::array<int, 4> StanceValues = {25, 50, 100, 75};  // by the target's stance

// The four axes that a facing can look along, and how an upright target shows itself to a shooter on each.
enum FacingAxis { WestEast, NorthSouth, Rising, Falling };

constexpr std::array<FacingAxis, FacingCount> AxisOfFacing = {WestEast, WestEast, NorthSouth, NorthSouth,
                                                              Rising,   Falling,  Rising,     Falling};

// clang-format off
constexpr int UprightAngles[4][4] = {
    // shooter looks along: west-east, north-south, rising, falling      target looks along
    {                       3,         1,           2,      2 },      // west-east
    {                       1,         3,           2,      2 },      // north-south
    {                       2,         2,           3,      1 },      // rising, north-east or south-west
    {                       2,         2,           1,      3 },      // falling, south-east or north-west
};
// clang-format on

constexpr double Whole = 100;  // percent
constexpr int MostSuppression = 100;
constexpr int SuppressionOfCell = 10;  // from the second cell on
constexpr int AnglePercent = 50;       // for each step of HitAngle
constexpr int MostLuck = 30;           // percent that the target may have

int StanceValue(int stance) {
    return stance >= Prone && stance <= Run ? StanceValues[static_cast<std::size_t>(stance)] : 0;
}

// The chance in percent; each step is stored in single precision.
int HitChance(float suppression, int angle, int stanceValue, int chance) {
    auto percent = static_cast<float>(angle / Whole * stanceValue);
    percent = static_cast<float>(static_cast<double>(suppression) / Whole * static_cast<double>(percent));
    percent = static_cast<float>((Whole - static_cast<double>(suppression)) + static_cast<double>(percent));
    percent =
        static_cast<float>(static_cast<double>(percent) - chance / Whole * static_cast<double>(percent));
    return static_cast<int>(RoundHalfEven(static_cast<double>(percent)));
}

bool RollHit(int shooter, int target) {
    const int distance = UnitDistance(shooter, target);
    const int suppression = std::min((distance - 1) * SuppressionOfCell, MostSuppression);
    const int angle = HitAngle(shooter, target) * AnglePercent;
    const int stanceValue = StanceValue(UnitTable[target].stance);
    const int chance = RandomInt(MostLuck, 0);
    const int percent = HitChance(static_cast<float>(suppression), angle, stanceValue, chance);
    AddToLog("dist: " + std::to_string(distance) + ", angle: " + std::to_string(angle) +
                 ", stance: " + std::to_string(stanceValue) + ", suppr: " + std::to_string(suppression) +
                 ", rnd: " + std::to_string(chance) + ", %:" + std::to_string(percent),
             1);
    return RandomInt(100, 0) <= percent;
}

// ODDITY: a bullet that is worn to below nothing draws a negative damage, which heals, without a limit.
void TakeDamage(int shooter, Unit& target) {
    const int damage = RandomInt(bulletPower, 0);
    // ODDITY: a charge holds nothing, so its hit names no weapon.
    AddToLog(UnitTable[shooter].name + " hit " + target.name + " with " + UnitTable[shooter].hand.name +
                 " and bring " + std::to_string(damage) + " points of damage",
             1);
    target.health = std::max(target.health - damage, 0);
    TheAudience().UnitHurt(shooter, damage);
    TheAudience().SoundPlayed("bump\\wound3", AtCurrentUnit);
    CheckStatus();
}

// The current unit has died.
void Die(const Unit& unit) {
    const bool flying = fireModes.Text() != HitMode;
    if (flying) BulletTrail("return");
    PaintUnit(0, 0);
    DropAll(curUnit);
    if (flying) BulletTrail("store");
    TheAudience().SoundPlayed("bump\\death2", AtCurrentUnit);
    cellGrid[unit.cellY][unit.cellX].occupant = -1;
    TheHigherRules().endIfEliminated();
}

// A soldier who falls lets go of his weapon, and the list of fire modes follows his hand. Who goes on firing
// has his own.
void KeepModes(const ModeChoice& modes) {
    if (fireModes == modes) return;
    fireModes = modes;
    if (curUnit < ChargeBase) TheAudience().PanelChanged();
}

}  // namespace

void UnitHit(int shooter, int target) {
    Unit& unit = UnitTable[target];
    if (unit.status == Dead) return;
    RunOperation([&] {
        const ModeChoice modes = fireModes;
        AsCurrentUnit(target, [&] {
            if (RollHit(shooter, target)) TakeDamage(shooter, unit);
            if (unit.health == 0) Die(unit);
        });
        KeepModes(modes);
        ShowStatus("");
    });
}

int UnitDistance(int a, int b) {
    const int dx = UnitTable[a].cellX - UnitTable[b].cellX;
    const int dy = UnitTable[a].cellY - UnitTable[b].cellY;
    return static_cast<int>(std::floor(std::sqrt(static_cast<double>(dx * dx + dy * dy))));
}

int HitAngle(int shooter, int target) {
    const int stance = UnitTable[target].stance;
    const int targetFacing = UnitTable[target].facing;
    const int shooterFacing = UnitTable[shooter].facing;
    if (stance > Run || targetFacing >= FacingCount || shooterFacing >= FacingCount) return 0;
    const int upright = UprightAngles[AxisOfFacing[static_cast<std::size_t>(targetFacing)]]
                                     [AxisOfFacing[static_cast<std::size_t>(shooterFacing)]];
    constexpr int BothEnds = 4;  // 1 and 3 exchanged
    return stance == Prone ? BothEnds - upright : upright;
}
