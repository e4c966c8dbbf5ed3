// One order of a unit that shoots, throws or sets something: its rounds, their scatter, and what lies or
// bursts at the end.
#pragma once

#include <string_view>

constexpr int FullSkill = 100;         // marksmanship and accuracy; each point below widens the scatter
constexpr double ScatterDivisor = 20;  // the distance in cells times the width over this is pixels

/// All rounds of the current unit's order at the field pixel (x, y), for a family of
/// combat/families; any other word, and none, is a plain shot.
void ShootAt(int x, int y, std::string_view familyWord);
