#include "data/terrain.h"

#include <array>
#include <cstddef>
#include <span>

namespace {

// What a rule gives the tiles of a range. The first row that matches counts.
struct TileRule {
    TileRange tiles;
    int value;
};

// clang-format off
constexpr TileRule DurabRules[] = {
    // class    tiles    strength
    {{Surface},          200},
    {{Wooden,    0, 10},  80},  // walls
    {{Wooden,   11, 12},   5},  // windows
    {{Wooden,   16, 19},  10},  // furniture
    {{Concrete,  0, 10}, 220},
    {{Concrete, 11, 12}, 100},
    {{Concrete, 13, 15}, 140},
    {{Concrete, 16, 19}, 220},
    {{Concrete, 20, 23}, 140},
    {{Stone,    13, 16}, 100},
    {{Stone},            220},
    {{Roads,    16, 16}, 100},  // bridges
    {{Roads,    19, 19}, 100},
    {{Prickles,  0, 14},  40},
    {{Ships,     0, 10},  80},
    {{Ships,    11, 12},   5},
    {{Ships,    16, 19},  10},
    {{Various,  18, 25}, 140},  // the vehicle
    {{Highways,  0, 10}, 100},
    {{Fence,     0, 10},  30},
};

constexpr TileRule BlockRules[] = {
    // class    tiles    what they stop
    {{Water,     0,  0}, BlocksSteps},  // open water
    {{Water,    13, 13}, BlocksSteps},
    {{Trees,     0,  0}, BlocksView},   // dense wood
    {{Trees,    13, 16}, BlocksView},
    {{Trees,    19, 21}, BlocksView},
    {{Wooden,    0, 10}, BlocksBoth},   // walls
    {{Wooden,   11, 12}, BlocksSteps},  // windows
    {{Wooden,   16, 19}, BlocksSteps},  // furniture
    {{Concrete,  0, 10}, BlocksBoth},
    {{Concrete, 11, 12}, BlocksSteps},
    {{Concrete, 16, 17}, BlocksSteps},  // low barriers
    {{Concrete, 18, 19}, BlocksBoth},
    {{Stone,     0, 14}, BlocksBoth},
    {{Stone,    17, 18}, BlocksBoth},
    {{Prickles,  0, 14}, BlocksSteps},
    {{Ships,     0, 10}, BlocksBoth},
    {{Ships,    11, 12}, BlocksSteps},
    {{Ships,    16, 19}, BlocksSteps},
    {{Various,  18, 25}, BlocksBoth},   // the vehicle
    {{Fence,     0, 10}, BlocksBoth},
};
// clang-format on

constexpr std::array<const char*, 13> TerrainNames = {
    "surface",  "water",    "trees", "wooden",  "concrete", "stone", "roads",
    "trenches", "prickles", "ships", "various", "highways", "fence"};

int FirstMatch(std::span<const TileRule> rules, int tileX, int tileY) noexcept {
    for (const TileRule& rule : rules)
        if (rule.tiles.Holds(tileX, tileY)) return rule.value;
    return 0;
}

}  // namespace

int CellDurab(int tileX, int tileY) {
    return FirstMatch(DurabRules, tileX, tileY);
}

int TileBlock(int tileX, int tileY) {
    return FirstMatch(BlockRules, tileX, tileY);
}

const char* TerrainName(int tileY) {
    if (tileY < 0 || tileY >= TerrainCount) return nullptr;
    return TerrainNames[static_cast<std::size_t>(tileY)];
}
