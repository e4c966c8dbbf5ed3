// What a map must hold so that a mission can be played on it.
#pragma once

#include "source_text.h"
#include "tile_grid.h"

/// The edges that can't be stood on, the landing corner, the vehicle, the ways through the map, the landing
/// spots. Cell (x, y) is at line `firstLine` + y, column x + 1 of its file; what is said of the whole map is
/// at cell (0, 0).
void CheckMap(const TileGrid& grid, int firstLine, SourceFaults& faults);
