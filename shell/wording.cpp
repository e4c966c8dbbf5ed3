#include "shell/wording.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "data/mode_words.h"
#include "data/weapon_keys.h"
#include "data/weapons_file.h"
#include "state/state.h"

namespace {

bool IsOurs(int unit) {
    return unit >= 0 && TeamOfUnit(unit) == SquadTeam;
}

std::string InCell(const Happening& happening) {
    return ", [" + std::to_string(happening.x / CellSize) + "," + std::to_string(happening.y / CellSize) +
           "]";
}

// What flies or bursts, by the thing's key or its family of action.
struct Means {
    std::string_view word;
    const char* text;
};

constexpr Means MeansTable[] = {
    {"thronives", "a throwing knife"},
    {"shuriken", "a throwing spike"},
    {"shaken", "a throwing star"},
    {"crossbow", "a crossbow bolt"},
    {"airpipe", "a dart"},
    {"gren", "a grenade"},
    {"bloop", "a launched grenade"},
    {"shot", "shotgun fire"},
};

const char* MeansNamed(std::string_view word) {
    const auto* const row = std::find_if(std::begin(MeansTable), std::end(MeansTable),
                                         [word](const Means& means) { return means.word == word; });
    return row == std::end(MeansTable) ? nullptr : row->text;
}

// A title within a sentence: "Battle knife" is written small, "BSL-110" isn't.
std::string WithinSentence(std::string title) {
    const auto isSmall = [](char letter) { return letter >= 'a' && letter <= 'z'; };
    if (title.size() > 1 && isSmall(title[1])) title[0] = static_cast<char>(title[0] | 0x20);
    return title;
}

std::string WhoseMeans(const Happening& act) {
    if (!IsOurs(act.by)) return "";
    return act.by == act.unit ? " of their own" : " of " + NameOf(act.by);
}

std::string Times(int times) {
    if (times == 1) return "";
    return times == 2 ? " twice" : " " + std::to_string(times) + " times";
}

}  // namespace

std::string_view FamilyOf(std::string_view weapon, std::string_view mode) {
    const WeaponKey* const known = WeaponKeyOf(weapon);
    if (known == nullptr) return "";
    return mode == SecondaryMode ? known->secondary : known->family;
}

std::string NameOf(int unit) {
    if (IsOurs(unit)) return UnitTable[unit].name;
    return "Enemy " + std::to_string(unit - FirstOf(EnemyTeam) + 1);
}

std::string MeansOf(const std::string& weapon, const std::string& mode) {
    if (weapon.empty()) return "a charge";
    const WeaponInfo& row = WeaponInfoByName(weapon);
    if (mode == HitMode) return weapon == "hand" ? "a punch" : "a blow with the " + WithinSentence(row.title);
    for (const std::string_view word : {std::string_view(weapon), FamilyOf(weapon, mode)})
        if (const char* const text = MeansNamed(word)) return text;
    const bool isThrown = mode == ThrowMode || FamilyOf(weapon, mode) == "charge";
    return isThrown ? "a thrown " + WithinSentence(row.title) : row.title + " fire";
}

std::string SightingText(const Happening& sighting) {
    return NameOf(sighting.by) + " sights " + NameOf(sighting.unit) + InCell(sighting);
}

std::string HitText(const Happening& hit, int times, int amount) {
    const std::string by = " by " + MeansOf(hit.text, hit.mode) + WhoseMeans(hit);
    if (amount == 0) return NameOf(hit.unit) + " grazed" + Times(times) + by + InCell(hit);
    const std::string health = (amount < 0 ? "+" : "") + std::to_string(-amount);
    return NameOf(hit.unit) + " hit" + Times(times) + by + ", " + health + " health" + InCell(hit);
}

std::string DeathText(const Happening& death) {
    const bool ofWounds = death.by < 0;
    return NameOf(death.unit) +
           (ofWounds ? " died of wounds"
                     : " killed by " + MeansOf(death.text, death.mode) + WhoseMeans(death)) +
           InCell(death);
}
