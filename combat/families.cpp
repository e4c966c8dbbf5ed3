#include "combat/families.h"

#include <string>

#include "data/weapon_keys.h"
#include "state/state.h"

std::string_view ActionFamily() {
    const WeaponInfo& hand = UnitTable[curUnit].hand;
    const std::string mode = fireModes.Text();
    const WeaponKey* const known = WeaponKeyOf(hand.name);
    if (known != nullptr && !known->family.empty())
        return mode == "Secondary" ? known->secondary : known->family;
    if (hand.weaponClass == "knife" && mode == "Hit") return "hit";
    if (hand.weaponClass == "knife" && mode == "Throw") return "throw";
    return hand.kind == "m" || hand.kind == "w" ? "fire" : "";
}
