#include "combat/families.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "data/mode_words.h"
#include "data/weapon_keys.h"
#include "state/state.h"

namespace {

// clang-format off
constexpr Family Families[] = {
    //          second pellets end              uses up  log                 launch
    {"shot",    true,  30,     AtEnd::Nothing,   false, "shotgun party",    "weapons\\shot"},
    {"bloop",   true,   1,     AtEnd::Bursts,    false, "bloop'em",         "weapons\\bloop"},
    {"dart",    true,   1,     AtEnd::Nothing,   false, "psst",             nullptr},
    {"gren",    false,  1,     AtEnd::Bursts,    true,  "fire in the hole", nullptr},
    {"charge",  false,  1,     AtEnd::IsSet,     true,  "kaboom",           nullptr},
    {"throw",   false,  1,     AtEnd::LiesThere, true,  "throw it",         nullptr},
    {"varmint", false,  1,     AtEnd::Nothing,   false, "varmint",          nullptr},
};
// clang-format on

constexpr Family PlainShot = {"fire", false, 1, AtEnd::Nothing, false, nullptr, nullptr};

}  // namespace

std::string_view ActionFamily() {
    const WeaponInfo& hand = UnitTable[curUnit].hand;
    const std::string mode = fireModes.Text();
    const WeaponKey* const known = WeaponKeyOf(hand.name);
    if (known != nullptr && !known->family.empty())
        return mode == SecondaryMode ? known->secondary : known->family;
    if (hand.weaponClass == "knife" && mode == HitMode) return "hit";
    if (hand.weaponClass == "knife" && mode == ThrowMode) return "throw";
    return hand.kind == "m" || hand.kind == "w" ? "fire" : "";
}

const Family& FamilyNamed(std::string_view word) {
    const auto* const row = std::find_if(std::begin(Families), std::end(Families),
                                         [word](const Family& family) { return family.word == word; });
    return row == std::end(Families) ? PlainShot : *row;
}
