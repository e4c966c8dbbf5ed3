// The odds as tables: by weapon and distance, stance, facing, direction, and what stands between.
#pragma once

#include <string>
#include <vector>

#include "tools/lab/odds_study.h"

struct OddsPlan {
    std::vector<std::string> weapons;  // keys
    std::string studied;               // whose first mode is fired for stances, facings, directions, screens
};

/// One weapon of each group of the arsenal.
const OddsPlan& WholePlan();

/// The rows and chart lines are named after a weapon by this.
std::string WeaponTitle(const std::string& weapon);

/// All tables as Markdown, with a head that tells how they were made.
std::string OddsMarkdown(const OddsPlan& plan, OddsStudy& study);
