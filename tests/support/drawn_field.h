// Fields drawn as text for tests: "." open ground, "#" a wall, "T" dense trees, "=" what stops a step alone;
// a digit or a small letter stands for a unit of the squad or of the computer's team.
#pragma once

#include <string>
#include <vector>

#include "tools/field_tile.h"

/// Open ground on the whole field with nobody on it, and tables filled.
void ClearField();

/// Puts the drawing's left top corner on cell (x, y): its cells, units 0 to 9 for the digits, 20 to 29 for
/// "a" to "j". Units are active, stand, look east, and have a turn's time and energy.
void DrawField(int x, int y, const std::vector<std::string>& rows);

/// Puts a unit on a cell, as DrawField does.
void PutUnit(int index, int x, int y);
