// Checks weapons.dat, row by row and as a whole.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tools/check/findings.h"

/// What a check of weapons.dat looks up elsewhere.
struct WeaponSurroundings {
    std::vector<std::string> countries;  // codes
    std::filesystem::path game;          // the folder of pic/ and wav/
};

/// Adds the faults to `text` and returns a text that the game's reader takes: in the place of each row that
/// it wouldn't read right stands a row with the same key and the kind "?", about whose things no rule says
/// anything. Needs itemKinds.
std::string CheckWeapons(CheckedText& text, const WeaponSurroundings& surroundings);
