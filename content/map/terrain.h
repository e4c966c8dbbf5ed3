// The terrain classes of the tile sheet and what their tiles stop.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

constexpr int MapWidth = 76;
constexpr int MapHeight = 46;
constexpr int SheetColumns = 32;

enum class Terrain {
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

/// The class words in the order of Terrain.
const std::vector<std::string>& TerrainNames();

struct Tile {
    int column = 0;
    Terrain terrain = Terrain::Surface;
};

bool StopsStep(const Tile& tile);
bool StopsView(const Tile& tile);

/// True for the tile that marks a landing spot of the computer's team.
bool IsLandingSpot(const Tile& tile);

/// True for a tile of the squad's vehicle.
bool IsVehicle(const Tile& tile);

using TileGrid = std::array<std::array<Tile, MapWidth>, MapHeight>;

inline const Tile& TileAt(const TileGrid& grid, int x, int y) {
    return grid[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
}

inline bool InField(int x, int y) {
    return x >= 0 && x < MapWidth && y >= 0 && y < MapHeight;
}
