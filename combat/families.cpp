#include "combat/families.h"

#include <string>

#include "state/state.h"

namespace {

struct NamedFamily {
    std::string_view name;  // of the held thing
    std::string_view family;
    std::string_view secondary;  // when the chosen mode is "Secondary"
};

// clang-format off
constexpr NamedFamily NamedFamilies[] = {
    // thing       family     as "Secondary"
    {"m4m203",     "fire",    "bloop"},
    {"steyrm203",  "fire",    "bloop"},
    {"xm8xm320",   "fire",    "bloop"},
    {"famasm203",  "fire",    "bloop"},
    {"xm8lss",     "fire",    "shot"},
    {"mkey",       "fire",    "shot"},
    {"m203",       "bloop",   "bloop"},
    {"mm1",        "bloop",   "bloop"},
    {"m67",        "gren",    "gren"},
    {"m67a2",      "gren",    "gren"},
    {"m367",       "gren",    "gren"},
    {"c4",         "charge",  "charge"},
    {"nova",       "shot",    "shot"},
    {"spas",       "shot",    "shot"},
    {"super90",    "shot",    "shot"},
    {"jackham",    "shot",    "shot"},
    {"rem870l",    "shot",    "shot"},
    {"rem870m",    "shot",    "shot"},
    {"rem870s",    "shot",    "shot"},
    {"rem870gs",   "shot",    "shot"},
    {"crossbow",   "dart",    "dart"},
    {"airpipe",    "dart",    "dart"},
    {"anschutz",   "varmint", "varmint"},
    {"american",   "varmint", "varmint"},
    {"etool",      "dig",     "dig"},
    {"etoolfold",  "dig",     "dig"},
    {"bsl",        "dig",     "dig"},
    {"mpl",        "dig",     "dig"},
};

// clang-format on

// What the held thing's own name settles; nothing for most.
std::string_view NamedFamilyOf(const std::string& name, bool secondary) {
    for (const NamedFamily& row : NamedFamilies)
        if (row.name == name) return secondary ? row.secondary : row.family;
    return "";
}

}  // namespace

std::string_view ActionFamily() {
    const WeaponInfo& hand = UnitTable[curUnit].hand;
    const std::string mode = fireModes.Text();
    const std::string_view named = NamedFamilyOf(hand.name, mode == "Secondary");
    if (!named.empty()) return named;
    if (hand.weaponClass == "knife" && mode == "Hit") return "hit";
    if (hand.weaponClass == "knife" && mode == "Throw") return "throw";
    if (hand.name == "med") return "cure";
    return hand.kind == "m" || hand.kind == "w" ? "fire" : "";
}
