// The three layers of a map as the game reads them: a character a cell, whose code less 32 is the value, and
// lines that end with carriage return and line feed.
#pragma once

#include <array>
#include <string>

#include "source_text.h"
#include "tile_grid.h"

constexpr int FirstCode = 32;  // the character of the value 0

/// The columns of the tile sheet, the terrain classes, and the strengths, which the game works out itself:
/// any character does.
struct LayerTexts {
    std::string columns, classes, strengths;
};

LayerTexts LayersOf(const TileGrid& grid);

/// How many columns of a class the tile sheet draws; all of them are used from 0 on.
int KnownColumns(Terrain terrain);

/// The tiles that two layers tell. Where one has a fault the tile is plain grass. Faults of a value go to
/// the layer that holds it.
TileGrid ReadLayers(const std::string& columns, const std::string& classes, SourceFaults& columnFaults,
                    SourceFaults& classFaults);

/// The faults of the third layer, whose values don't count: its size and characters under a blank.
void CheckStrengths(const std::string& strengths, SourceFaults& faults);
