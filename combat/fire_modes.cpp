#include "combat/fire_modes.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "combat/families.h"
#include "data/weapons_file.h"
#include "state/audience.h"
#include "state/state.h"

namespace {

// clang-format off
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

void ListActions() {
    const std::string& name = UnitTable[curUnit].hand.name;
    fireModes.weapon = name;
    fireModes.offered = OfferedModes(name);
    ChooseMode(0);
}

void ChooseMode(int index) {
    const bool offered = index >= 0 && index < static_cast<int>(fireModes.offered.size());
    fireModes.chosen = offered ? index : -1;
    TheAudience().ModesChanged();
    HandSync("real2fake");
}

void HandSync(std::string_view direction) {
    Unit& unit = UnitTable[curUnit];
    InvItem& held = unit.items[0];
    if (UsesSecondFeed(ActionFamily()))
        CopyFeed(direction, unit.handCap, unit.handRounds, held.capSecond, held.roundsSecond);
    else
        CopyFeed(direction, unit.handCap, unit.handRounds, held.capMain, held.roundsMain);
    TheAudience().RoundsChanged();
    unit.fireMode = std::max(0, int{fireModes.chosen});
}
