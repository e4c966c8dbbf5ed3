// The terrain classes, and what the rules derive from a tile alone: how strong it is and what it stops.
// Shared by the game and the compiler of maps.
#pragma once

#include <limits>

/// The rows of the tile sheet.
enum Terrain {
    Surface,
    Water,
    Trees,
    Wooden,
    Concrete,
    Stone,
    Roads,
    Trenches,
    Prickles,
    Ships,
    Various,
    Highways,
    Fence
};

constexpr int TerrainCount = Fence + 1;

constexpr int LandingMark =
    7;  // tile of class "various": in a map file, a landing spot of the computer's team
constexpr int BrokenTile =
    81;  // wood that broke: beyond the sheet, and nothing stops or bears there any more
constexpr int RemainsTile = 15;     // tile of class "wooden" that is shown of it
constexpr int FirstStoreTile = 18;  // tiles of class "various" that show the squad's vehicle
constexpr int LastStoreTile = 25;

/// What a tile stops, as Cell::block has it.
enum Blocking { BlocksNothing, BlocksSteps, BlocksView, BlocksBoth };

/// The tiles of one class from `first` to `last`, all of them where nothing else is said.
struct TileRange {
    int terrain;
    int first = std::numeric_limits<int>::min();
    int last = std::numeric_limits<int>::max();

    constexpr bool Holds(int tileX, int tileY) const {
        return tileY == terrain && tileX >= first && tileX <= last;
    }
};

/// The strength of a fresh cell with this tile.
int CellDurab(int tileX, int tileY);

/// What a cell with this tile stops, as a Blocking.
int TileBlock(int tileX, int tileY);

/// The word for a terrain class, as "trees"; nullptr outside the classes.
const char* TerrainName(int tileY);
