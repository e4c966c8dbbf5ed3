#include "terrain.h"

namespace {

struct StopRange {
    Terrain terrain;
    int first, last;  // columns
    bool step, view;
};

constexpr StopRange Stops[] = {
    {Terrain::Water, 0, 0, true, false},       // open water
    {Terrain::Water, 13, 13, true, false},     // ripples
    {Terrain::Trees, 0, 0, false, true},       // dense crown
    {Terrain::Trees, 13, 16, false, true},     // conifers
    {Terrain::Trees, 19, 21, false, true},     // thick wood
    {Terrain::Wooden, 0, 10, true, true},      // walls
    {Terrain::Wooden, 11, 12, true, false},    // windows
    {Terrain::Wooden, 16, 19, true, false},    // furniture
    {Terrain::Concrete, 0, 10, true, true},    // walls
    {Terrain::Concrete, 11, 12, true, false},  // windows
    {Terrain::Concrete, 16, 17, true, false},  // barriers
    {Terrain::Concrete, 18, 19, true, true},   // pillar, generator
    {Terrain::Stone, 0, 14, true, true},       // walls, rocks, loose walls
    {Terrain::Stone, 17, 18, true, true},      // chimney, well
    {Terrain::Prickles, 0, 14, true, false},   // wire
    {Terrain::Ships, 0, 10, true, true},       // hulls
    {Terrain::Ships, 11, 12, true, false},     // portholes
    {Terrain::Ships, 16, 19, true, false},     // thwarts, gear
    {Terrain::Various, 18, 25, true, true},    // the squad's vehicle
    {Terrain::Fence, 0, 10, true, true},       // boards and mesh
};

constexpr int LandingSpotColumn = 7;
constexpr int FirstVehicleColumn = 18;
constexpr int LastVehicleColumn = 25;

const StopRange* FindStops(const Tile& tile) {
    for (const StopRange& range : Stops) {
        if (range.terrain == tile.terrain && tile.column >= range.first && tile.column <= range.last)
            return &range;
    }
    return nullptr;
}

}  // namespace

const std::vector<std::string>& TerrainNames() {
    static const std::vector<std::string> names = {"surface", "water",    "trees",    "wooden",   "concrete",
                                                   "stone",   "roads",    "trenches", "prickles", "ships",
                                                   "various", "highways", "fence"};
    return names;
}

bool StopsStep(const Tile& tile) {
    const StopRange* const range = FindStops(tile);
    return range != nullptr && range->step;
}

bool StopsView(const Tile& tile) {
    const StopRange* const range = FindStops(tile);
    return range != nullptr && range->view;
}

bool IsLandingSpot(const Tile& tile) {
    return tile.terrain == Terrain::Various && tile.column == LandingSpotColumn;
}

bool IsVehicle(const Tile& tile) {
    return tile.terrain == Terrain::Various && tile.column >= FirstVehicleColumn &&
           tile.column <= LastVehicleColumn;
}
