// Chooses the tile of each cell by its glyph and its neighbours, so that walls, roads, trenches, wire and
// banks meet.
#pragma once

#include "map_source.h"

/// A fault where the sheet has no tile for a joint; such a cell gets the first column of its class.
TileGrid PlaceTiles(const MapSource& map, SourceFaults& faults);
