#include "combat/fire_modes.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "combat/families.h"
#include "data/mode_words.h"
#include "data/weapons_file.h"
#include "state/audience.h"
#include "state/state.h"

namespace {

// clang-format off
struct ToolModes {
    std::string_view name;  // of the held tool
    std::array<std::string_view, 4> modes;
};

constexpr ToolModes Tools[] = {
    {"bsl",       {HitMode, DigMode, FillMode}},
    {"mpl",       {HitMode, DigMode, FillMode}},
    {"etool",     {HitMode, DigMode, FillMode, FoldMode}},
    {"etoolfold", {UnfoldMode}},
    {"med",       {CureMode}},
};
// clang-format on

std::vector<std::string> ModesOf(const WeaponInfo& row) {
    std::vector<std::string> modes;
    for (std::size_t place = 0; place < ModesOfRow.size(); ++place) {
        const int digit = row.modes[static_cast<int>(place)];
        if (digit <= 0) continue;
        std::string text(ModesOfRow[place]);
        if (place == BurstPlace) text += " [" + std::to_string(digit) + "]";
        modes.push_back(text);
    }
    return modes;
}

std::vector<std::string> OfferedModes(const std::string& name) {
    for (const ToolModes& tool : Tools) {
        if (tool.name != name) continue;
        std::vector<std::string> modes;
        for (const std::string_view mode : tool.modes)
            if (!mode.empty()) modes.emplace_back(mode);
        return modes;
    }
    return ModesOf(WeaponInfoByName(name));
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
    if (FamilyNamed(ActionFamily()).secondFeed)
        CopyFeed(direction, unit.handCap, unit.handRounds, held.capSecond, held.roundsSecond);
    else
        CopyFeed(direction, unit.handCap, unit.handRounds, held.capMain, held.roundsMain);
    TheAudience().RoundsChanged();
    unit.fireMode = std::max(0, int{fireModes.chosen});
}
