// The map: three text layers read into cellGrid, and what the game derives from a cell's tile, how strong it
// is and what it stops.
#pragma once

#include <string>

/// Reads the layers "\map\<name>1.map" to "3.map" into cellGrid and landingSpots. Throws RunTimeError with
/// line and column.
void ReadMapLayers(const std::string& name);

/// What the cell stops by its present tile, as a Blocking of data/terrain.
int CellBlock(int x, int y);
