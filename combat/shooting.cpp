#include "combat/shooting.h"

#include <array>
#include <cmath>
#include <string>

#include "combat/explosions.h"
#include "combat/families.h"
#include "combat/flight.h"
#include "combat/things.h"
#include "data/mode_words.h"
#include "data/weapons_file.h"
#include "field/geometry.h"
#include "platform/rounding.h"
#include "state/audience.h"
#include "state/chance.h"
#include "state/costs.h"
#include "state/log.h"
#include "state/state.h"

namespace {

constexpr int FullAutoRounds = 20;

struct Offset {
    int x;
    int y;
};

// clang-format off
// Where the muzzle is, from the left top corner of the unit's cell, by facing.
constexpr std::array<Offset, FacingCount> Muzzles = {
    {{20, 10}, {0, 10}, {10, 0}, {10, 20}, {20, 0}, {20, 20}, {0, 20}, {0, 0}}};
// clang-format on

void PlaceMuzzle(const Unit& unit) {
    const Offset& muzzle = Muzzles.at(static_cast<std::size_t>(int{unit.facing}));
    muzzleX = unit.pixelX + muzzle.x;
    muzzleY = unit.pixelY + muzzle.y;
}

int RoundsOf(const std::string& mode, const WeaponInfo& hand) {
    if (mode.starts_with(BurstMode)) return WeaponInfoByName(hand.name).modes[static_cast<int>(BurstPlace)];
    return mode == FullAutoMode ? FullAutoRounds : 1;
}

void SoundLaunch(const Unit& unit, const Family& family) {
    if (family.launch == nullptr || fireModes.Text() != SecondaryMode) return;
    if (unit.time >= unit.hand.time && unit.handRounds >= 1)
        TheAudience().SoundPlayed(family.launch, AtCurrentUnit);
}

// Pays for one round; the first refusal ends the order.
// ODDITY: without rounds the weapon's time and condition stay spent; the player pays for the empty click.
bool PayRound(const Unit& unit) {
    if (!Spend(1, "durab")) {
        TheAudience().SoundPlayed("ric\\wood", AtCurrentUnit);
        return false;
    }
    if (!Spend(static_cast<float>(unit.hand.time), "time")) {
        Spend(-1, "durab");
        return false;
    }
    if (!Spend(1, "ammo")) {
        TheAudience().SoundPlayed("weapons\\empty", AtCurrentUnit);
        return false;
    }
    return true;
}

// What the bullets of one order share.
struct Aim {
    int x;  // pixel that the next bullet scatters around
    int y;
    int targetX;  // cell first aimed at
    int targetY;
};

i16 DistanceTo(const Unit& unit, const Aim& aim) {
    const double dx = unit.cellX - aim.targetX;
    const double dy = unit.cellY - aim.targetY;
    return std::sqrt(dy * dy + dx * dx);
}

i16 ScatterOf(const Unit& unit, int distance) {
    i16 spread = (FullSkill - unit.marksmanship) + (FullSkill - unit.hand.accur) + distance;
    if (spread < 0) spread = 0;
    const i16 product = distance * spread;
    return product / ScatterDivisor;
}

// A pixel up to `scatter` to either side, in single precision.
i16 Scattered(int pixel, int scatter) {
    return static_cast<float>(pixel - scatter) + static_cast<float>(2 * scatter) * NextRandom();
}

// ODDITY: each bullet scatters around the point that the one before it was aimed at, while the distance still
// counts from the cell first aimed at; so a burst wanders off the longer it lasts.
void FireBullet(const Unit& unit, Aim& aim, const Family& family) {
    bulletPower = unit.hand.power / static_cast<double>(family.pellets);
    bulletAccur = unit.hand.accur;
    bulletHorizon = unit.hand.range * CellSize;
    const int scatter = ScatterOf(unit, DistanceTo(unit, aim));
    aim.x = Scattered(aim.x, scatter);
    aim.y = Scattered(aim.y, scatter);
    BulletFly(muzzleX, muzzleY, aim.x, aim.y);
}

// Leaves the held thing on the ground where the flight ended, with one round in it.
void LayDown(const InvItem& held) {
    if (!InField(impactX, impactY)) return AddToLog(held.name + " is lost outside the field", 1);
    for (InvItem& place : groundItems[impactY][impactX]) {
        if (!place.name.empty()) continue;
        place = held;
        place.roundsMain = 1;
        return;
    }
}

// What an order fires. Events in its middle may put something else into the hand: no more rounds are fired
// then, and what flies already is still this.
struct Fired {
    const Family& family;
    WeaponInfo hand;
    InvItem item;

    bool IsHeldBy(const Unit& unit) const { return unit.hand.name == hand.name; }
};

void EndOrder(const Fired& fired) {
    Unit& unit = UnitTable[curUnit];
    const AtEnd end = fired.family.atEnd;
    const bool bursts = end == AtEnd::Bursts;
    const bool inField = InField(impactX, impactY);
    const bool held = fired.IsHeldBy(unit);
    if (end == AtEnd::LiesThere || end == AtEnd::IsSet) LayDown(fired.item);
    if (bursts && !held) unit.hand = fired.hand;
    if (bursts) ChargeBlow(impactX, impactY);
    if (end == AtEnd::LiesThere && inField) WeaponAdd(impactX, impactY);
    if (end == AtEnd::IsSet && inField) ChargeAdd(impactX, impactY);
    const bool usedUp = held && fired.family.usesThingUp && unit.items[0].roundsMain == 0;
    if (usedUp) ClearItem(0);
    if (usedUp || !held) RefreshHand();
}

}  // namespace

void ShootAt(int x, int y, std::string_view familyWord) {
    const Unit& unit = UnitTable[curUnit];
    const Family& family = FamilyNamed(familyWord);
    Aim aim{x, y, CellOfPixel(x), CellOfPixel(y)};
    PlaceMuzzle(unit);
    if (family.log != nullptr) AddToLog(family.log, 1);
    const int rounds = RoundsOf(fireModes.Text(), unit.hand);
    const Fired fired{family, unit.hand, unit.items[0]};
    SoundLaunch(unit, family);
    for (int round = 0; round < rounds; ++round) {
        if (!fired.IsHeldBy(unit) || !PayRound(unit)) return;
        TheAudience().SoundPlayed("weapons\\" + unit.hand.sound, AtCurrentUnit);
        for (int pellet = 0; pellet < family.pellets; ++pellet)
            FireBullet(unit, aim, family);
    }
    EndOrder(fired);
}
