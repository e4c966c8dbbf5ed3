// Where men fell and where missions were decided, over the field, as a picture.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "tools/missions/summary.h"

/// What each row and column of the field is to the eye: the terrain classes of a game's map.
using FieldClasses = std::array<std::array<int, FieldWidth>, FieldHeight>;

/// Those of the map that was read last.
FieldClasses ClassesOfField();

/// An SVG: the field with a spot on every cell where somebody fell, the larger the more often; soldiers of
/// the squad, enemies, and the last to fall in colours of their own.
std::string HeatMapSvg(const FieldClasses& field, const std::vector<PlayedMission>& missions);
