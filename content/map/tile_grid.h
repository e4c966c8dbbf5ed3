// The grid of tiles that a map is compiled to.
#pragma once

#include <array>
#include <cstddef>

#include "data/terrain.h"

constexpr int MapWidth = 76;
constexpr int MapHeight = 46;
constexpr int SheetColumns = 32;

struct Tile {
    int column = 0;
    Terrain terrain = Surface;
};

inline bool StopsStep(const Tile& tile) {
    return (TileBlock(tile.column, tile.terrain) & BlocksSteps) != 0;
}

inline bool StopsView(const Tile& tile) {
    return (TileBlock(tile.column, tile.terrain) & BlocksView) != 0;
}

/// True for the tile that marks a landing spot of the computer's team.
inline bool IsLandingSpot(const Tile& tile) {
    return tile.terrain == Various && tile.column == LandingMark;
}

/// True for a tile of the squad's vehicle.
inline bool IsVehicle(const Tile& tile) {
    return tile.terrain == Various && tile.column >= FirstStoreTile && tile.column <= LastStoreTile;
}

using TileGrid = std::array<std::array<Tile, MapWidth>, MapHeight>;

inline const Tile& TileAt(const TileGrid& grid, int x, int y) {
    return grid[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
}

inline bool OnMap(int x, int y) {
    return x >= 0 && x < MapWidth && y >= 0 && y < MapHeight;
}
