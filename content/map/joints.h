// Chooses the tile of each cell by its glyph and its neighbours, so that walls, roads, trenches, wire and
// banks meet.
#pragma once

#include "map_source.h"

/// Throws SourceError where the sheet has no tile for a joint.
TileGrid PlaceTiles(const MapSource& map);
