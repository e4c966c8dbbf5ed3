#include "tools/lab/roster_page.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <vector>

#include "data/tables.h"
#include "data/weapons_file.h"

namespace {

constexpr int PlentyOfKits = 100;  // charges

bool HasThing(const Unit& soldier, const std::string& name) {
    return std::any_of(std::begin(soldier.items), std::end(soldier.items),
                       [&name](const InvItem& item) { return item.name == name; });
}

bool Feeds(const Unit& soldier, const std::string& kind) {
    return std::any_of(std::begin(soldier.items), std::end(soldier.items),
                       [&kind](const InvItem& item) { return item.ammoSecond == kind; });
}

bool HoldsBelts(const Unit& soldier) {
    return soldier.items[0].ammoMain == "5saw" || soldier.items[0].ammoMain == "7saw";
}

// The marksman's weapons are the ones that offer nothing but aimed shots.
bool HoldsScope(const Unit& soldier) {
    const WeaponInfo& row = WeaponInfoByName(soldier.items[0].name);
    return row.kind == "m" && row.modes[0] > 0 &&
           std::all_of(std::begin(row.modes) + 1, std::end(row.modes), [](int mode) { return mode == 0; });
}

bool HasKits(const Unit& soldier) {
    return std::any_of(std::begin(soldier.items), std::end(soldier.items), [](const InvItem& item) {
        return item.name == "med" && item.roundsMain >= PlentyOfKits;
    });
}

struct Role {
    const char* name;
    bool (*showsIn)(const Unit& soldier);
    u8 Unit::*skill;  // in which he should be the best; nullptr for none
};

// The first that fits; of the leader the kit says nothing.
constexpr Role Leader = {"leader", nullptr, &Unit::mood};
constexpr Role Roles[] = {
    {"marksman", HoldsScope, &Unit::marksmanship},
    {"gunner", HoldsBelts, &Unit::machineguns},
    {"medic", HasKits, &Unit::intelligence},
    {"sapper", [](const Unit& soldier) { return HasThing(soldier, "c4"); }, &Unit::explosives},
    {"scout", [](const Unit& soldier) { return Feeds(soldier, "arrows"); }, &Unit::stealth},
    {"grenadier", [](const Unit& soldier) { return Feeds(soldier, "40gren"); }, nullptr},
    {"first through the door", [](const Unit& soldier) { return Feeds(soldier, "12gauge"); }, &Unit::melee},
    {"rifleman", [](const Unit& /*soldier*/) { return true; }, nullptr},
};

const Unit& SoldierAt(int place) {
    return UnitTable[FirstOf(RosterTeam) + place];
}

const Role& RoleAt(int place) {
    if (place == 0) return Leader;
    return *std::find_if(std::begin(Roles), std::end(Roles),
                         [place](const Role& role) { return role.showsIn(SoldierAt(place)); });
}

std::string FaceFile(const Unit& soldier) {
    const std::string number = std::to_string(soldier.faceNo);
    return soldier.facePrefix + soldier.faceGroup + (number.size() < 2 ? "0" : "") + number;
}

std::string TitleOf(const InvItem& item) {
    const std::string& title = WeaponInfoByName(item.name).title;
    return title.empty() ? item.name : title;
}

// "5.56 mm NATO (3)"
std::string Kit(const Unit& soldier) {
    std::vector<std::pair<std::string, int>> things;
    for (const InvItem& item : soldier.items) {
        if (item.name.empty()) continue;
        const std::string title = TitleOf(item);
        const auto known = std::find_if(things.begin(), things.end(),
                                        [&](const auto& thing) { return thing.first == title; });
        if (known == things.end())
            things.emplace_back(title, 1);
        else
            ++known->second;
    }
    std::string text;
    for (const auto& [title, count] : things)
        text += (text.empty() ? "" : ", ") + title + (count > 1 ? " (" + std::to_string(count) + ")" : "");
    return text;
}

struct Column {
    const char* title;
    u8 Unit::*figure;
};

constexpr Column Columns[] = {
    {"Vitality", &Unit::vitality},
    {"Strength", &Unit::strength},
    {"Agility", &Unit::agility},
    {"Perception", &Unit::perception},
    {"Intelligence", &Unit::intelligence},
    {"Mood", &Unit::mood},
    {"Marksmanship", &Unit::marksmanship},
    {"Stealth", &Unit::stealth},
    {"Melee", &Unit::melee},
    {"Sidearms", &Unit::sidearms},
    {"SMGs", &Unit::smgs},
    {"Rifles", &Unit::rifles},
    {"Machine guns", &Unit::machineguns},
    {"Explosives", &Unit::explosives},
};

bool NobodyHasMore(u8 figure, u8 Unit::*of) {
    for (int place = 0; place <= teamLast[RosterTeam]; ++place)
        if (SoldierAt(place).*of > figure) return false;
    return true;
}

void AppendFigures(std::ostream& page, int place) {
    const Unit& soldier = SoldierAt(place);
    const Role& role = RoleAt(place);
    page << "| " << soldier.name << " | " << role.name;
    for (const Column& column : Columns) {
        const u8 figure = soldier.*column.figure;
        const char* mark = column.figure == role.skill && NobodyHasMore(figure, role.skill) ? "**" : "";
        page << " | " << mark << int{figure} << mark;
    }
    page << " |\n";
}

}  // namespace

std::string RosterMarkdown(const std::string& faces) {
    std::ostringstream page;
    page << "# The squad\n\nMade by `sarnoth-lab roster` from the game's data; the source is "
            "`content/campaign/roster.txt`. A soldier's role is what his\nkit shows; where the role asks for "
            "a "
            "skill and nobody has more of it, it stands out.\n\n"
            "| Portrait | Name | Role | In hand | With him |\n|---|---|---|---|---|\n";
    for (int place = 0; place <= teamLast[RosterTeam]; ++place) {
        const Unit& soldier = SoldierAt(place);
        const std::string face = FaceFile(soldier);
        page << "| ![" << face << "](" << faces << "/" << face << ".png) `" << face << ".png` | "
             << rankNames[soldier.rank] << " " << soldier.name << ", " << soldier.country << " | "
             << RoleAt(place).name << " | " << TitleOf(soldier.items[0]) << " | " << Kit(soldier) << " |\n";
    }
    page << "\n| Name | Role |";
    for (const Column& column : Columns)
        page << " " << column.title << " |";
    page << "\n|---|---|";
    for (std::size_t column = 0; column < std::size(Columns); ++column)
        page << "---|";
    page << "\n";
    for (int place = 0; place <= teamLast[RosterTeam]; ++place)
        AppendFigures(page, place);
    return page.str();
}
