// What a map must hold so that a mission can be played on it. Each check throws a SourceError at the first
// cell that fails.
#pragma once

#include "map_source.h"

/// The edges that can't be stood on, the landing corner, the vehicle, the ways through the map, the landing
/// spots.
void CheckMap(const MapSource& map, const TileGrid& grid);
