#include "combat/actions.h"

#include <array>
#include <string>
#include <vector>

#include "combat/costs.h"
#include "combat/shooting.h"
#include "combat/things.h"
#include "combat/tools.h"
#include "data/weapons_file.h"
#include "field/geometry.h"
#include "state/operation.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/log.h"
#include "view/panel.h"
#include "view/sound.h"

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

struct ToolModes {
    std::string_view name;  // of the held tool
    std::array<const char*, 4> modes;
};

constexpr ToolModes Tools[] = {
    {"bsl",       {"Hit", "Dig", "Fill"}},
    {"mpl",       {"Hit", "Dig", "Fill"}},
    {"etool",     {"Hit", "Dig", "Fill", "Fold"}},
    {"etoolfold", {"Unfold"}},
    {"med",       {"Cure"}},
};
// clang-format on

// By place of WeaponInfo::modes.
constexpr std::array<const char*, 7> ModeNames = {"Aimed shot", "Snap shot", "Burst", "Full auto",
                                                  "Secondary",  "Hit",       "Throw"};
constexpr int BurstPlace = 2;

// What the held thing's own name settles; nothing for most.
std::string_view NamedFamilyOf(const std::string& name, bool secondary) {
    for (const NamedFamily& row : NamedFamilies)
        if (row.name == name) return secondary ? row.secondary : row.family;
    return "";
}

std::vector<std::string> ModesOfRow(const WeaponInfo& row) {
    std::vector<std::string> modes;
    for (int place = 0; place <= row.modes.Upper; ++place) {
        if (row.modes[place] <= 0) continue;
        std::string text = ModeNames[static_cast<std::size_t>(place)];
        if (place == BurstPlace) text += " [" + std::to_string(row.modes[place]) + "]";
        modes.push_back(text);
    }
    return modes;
}

std::vector<std::string> OfferedModes(const std::string& name) {
    for (const ToolModes& tool : Tools) {
        if (tool.name != name) continue;
        std::vector<std::string> modes;
        for (const char* mode : tool.modes)
            if (mode != nullptr) modes.emplace_back(mode);
        return modes;
    }
    return ModesOfRow(WeaponInfoByName(name));
}

// Folding a tool changes what it is, and costs nothing.
void Refold(const char* logWord, const char* name, int count) {
    Unit& unit = UnitTable[curUnit];
    AddToLog(logWord, 1);
    unit.items[0].name = name;
    unit.items[0].count = count;
    ShowSlot(0, frmField);
    unit.hand.name = name;
    ListActions();  // which remembers the tool by its new name
}

void Dig(const char* logWord, int delta) {
    const Unit& unit = UnitTable[curUnit];
    if (!Spend(static_cast<float>(unit.hand.time), "time")) return;
    AddToLog(logWord, 1);
    PlaySoundAt("weapons\\" + unit.hand.sound, AtCurrentUnit);
    SurfaceChange(unit.cellX, unit.cellY, delta);
}

void UseTool(int targetX, int targetY) {
    constexpr int Spadeful = 20;  // of 200 levels of the ground
    const std::string mode = game.modes.Text();
    // ODDITY: a refused spadeful leaves this line open, so the next one in the log begins with it.
    AddToLog("dig it: ", 0);
    if (mode == "Fold") Refold("fold", "etoolfold", 0);
    if (mode == "Unfold") Refold("unfold", "etool", 1);
    if (mode == "Dig") Dig("dig", -Spadeful);
    if (mode == "Fill") Dig("fill", Spadeful);
    if (mode == "Hit") {
        AddToLog("hit", 1);
        MeleeHit(targetX, targetY);
    }
}

}  // namespace

std::string_view ActionFamily() {
    const WeaponInfo& hand = UnitTable[curUnit].hand;
    const std::string mode = game.modes.Text();
    const std::string_view named = NamedFamilyOf(hand.name, mode == "Secondary");
    if (!named.empty()) return named;
    if (hand.weaponClass == "knife" && mode == "Hit") return "hit";
    if (hand.weaponClass == "knife" && mode == "Throw") return "throw";
    if (hand.name == "med") return "cure";
    return hand.kind == "m" || hand.kind == "w" ? "fire" : "";
}

void ActOnTarget(int x, int y) {
    RunOperation([x, y] {
        const std::string_view family = ActionFamily();
        if (family == "cure")
            CureAt(CellOfPixel(x), CellOfPixel(y));
        else if (family == "hit")
            MeleeHit(CellOfPixel(x), CellOfPixel(y));
        else if (family == "dig")
            UseTool(CellOfPixel(x), CellOfPixel(y));
        else
            ShootAt(x, y, family);
    });
}

void ListActions() {
    const std::string& name = UnitTable[curUnit].hand.name;
    game.modes.weapon = name;
    game.modes.offered = OfferedModes(name);
    ChooseMode(0);
}

void ChooseMode(int index) {
    const bool offered = index >= 0 && index < static_cast<int>(game.modes.offered.size());
    game.modes.chosen = offered ? index : -1;
    ShowModes();
    HandSync("real2fake");
}
