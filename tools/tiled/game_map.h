// A map as the game's files hold it: the tiles, landing spots among them, and the things on the ground.
#pragma once

#include <filesystem>
#include <vector>

#include "place_source.h"
#include "tile_grid.h"
#include "tools/check/findings.h"

struct GameMap {
    TileGrid grid;
    std::vector<ThingPlace> places;  // an item without a name is an empty place among the thirty
};

/// The files `stem`1.map, `stem`2.map and `stem`g.map; the third layer says nothing. With findings the map
/// isn't fit for use.
GameMap ReadGameMap(const std::filesystem::path& stem, Findings& findings);

/// All four files. Throws std::runtime_error when one can't be written.
void WriteGameMap(const std::filesystem::path& stem, const GameMap& map);
