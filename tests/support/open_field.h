// A field of their own for tests: open ground, and units put on it.
#pragma once

#include "tools/field_tile.h"

/// Open ground on the whole field with nobody on it, and tables filled.
void ClearField();

/// Puts a unit on a cell. It is active, stands, looks east, and has a turn's time and energy.
void PutUnit(int index, int x, int y);
