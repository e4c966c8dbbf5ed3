// What a mission that is over has come to, for the player to read before the last message: outcome, what each
// soldier did, what came home in the vehicle, and the medals that the rules have for such a mission. Nothing
// is granted by it.
#pragma once

#include <string>
#include <vector>

#include "shell/chronicle.h"

/// For each enemy killed; a point of damage done to one is worth one.
constexpr int PointsForKill = 50;

struct SoldierReport {
    std::string name;
    Tally tally;
    int points = 0;
    std::string state;  // as "ready, 40 of 51"

    bool operator==(const SoldierReport&) const = default;
};

/// A kind of thing of which the vehicle now holds more, or fewer.
struct ThingReport {
    std::string title;
    int more = 0;

    bool operator==(const ThingReport&) const = default;
};

struct MedalReport {
    std::string title;
    std::vector<std::string> soldiers;  // as "Marcus Hale (3rd)"

    bool operator==(const MedalReport&) const = default;
};

struct Debriefing {
    std::string outcome;  // as "Victory"
    int turns = 0;
    int enemiesKilled = 0;
    int enemies = 0;
    std::vector<SoldierReport> soldiers;
    std::vector<ThingReport> things;
    std::vector<MedalReport> medals;
};

/// Of the mission as it stands, with its verdict.
Debriefing DebriefingOf(const Chronicle& chronicle);

/// As a page of headings, paragraphs and tables.
std::string PageOf(const Debriefing& debriefing);
