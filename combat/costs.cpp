#include "combat/costs.h"

#include <algorithm>
#include <string>

#include "combat/actions.h"
#include "platform/numbers.h"
#include "state/state.h"
#include "view/panel.h"
#include "view/sound.h"

namespace {

constexpr const char* RefusedSound = "bump\\wound2";

// Takes `amount` from `purse` when it holds that much.
template <typename Purse>
bool Take(Purse& purse, float amount) {
    if (static_cast<float>(purse) < amount) return false;
    purse -= static_cast<double>(amount);
    return true;
}

bool SpendShown(i16& purse, float amount, const char* kind) {
    if (!Take(purse, amount)) {
        PlaySoundAt(RefusedSound, AtCurrentUnit);
        return false;
    }
    ShowStatus(kind);
    return true;
}

bool UsesSecondFeed(std::string_view family) {
    return family == "bloop" || family == "shot" || family == "dart";
}

void CopyFeed(std::string_view direction, i16& cap, i16& rounds, u8& itemCap, u8& itemRounds) {
    if (direction == "real2fake") {
        cap = itemCap;
        rounds = itemRounds;
    } else if (direction == "fake2real") {
        itemCap = cap;
        itemRounds = rounds;
    }
}

}  // namespace

bool Spend(float amount, std::string_view kind) {
    Unit& unit = UnitTable[curUnit];
    if (kind == "time") return SpendShown(unit.time, amount, "time");
    if (kind == "energy") return SpendShown(unit.energy, amount, "energy");
    if (kind == "money") return Take(money, amount);
    if (kind == "ammo") {
        if (!Take(unit.handRounds, amount)) return false;
        HandSync("fake2real");
        return true;
    }
    if (kind != "durab" || !Take(unit.hand.durab, amount)) return false;
    ShowStatus("durab");
    return true;
}

void HandSync(std::string_view direction) {
    Unit& unit = UnitTable[curUnit];
    InvItem& held = unit.items[0];
    if (UsesSecondFeed(ActionFamily()))
        CopyFeed(direction, unit.handCap, unit.handRounds, held.capSecond, held.roundsSecond);
    else
        CopyFeed(direction, unit.handCap, unit.handRounds, held.capMain, held.roundsMain);
    ShowWeaponBox(unit.handRounds);
    unit.fireMode = std::max(0, int{game.modes.chosen});
}
