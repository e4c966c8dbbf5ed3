#include "data/terrain.h"

#include <array>
#include <cstddef>
#include <limits>
#include <span>

namespace {

// A range of tiles of one terrain class and what the rule gives them. The first row that matches counts.
struct TileRule {
    int terrain;
    int first;
    int last;
    int value;
};

constexpr int Low = std::numeric_limits<int>::min();
constexpr int High = std::numeric_limits<int>::max();

// clang-format off
constexpr TileRule DurabRules[] = {
    // class    tiles      strength
    {Surface,   Low, High, 200},
    {Wooden,      0,   10,  80},  // walls
    {Wooden,     11,   12,   5},  // windows
    {Wooden,     16,   19,  10},  // furniture
    {Concrete,    0,   10, 220},
    {Concrete,   11,   12, 100},
    {Concrete,   13,   15, 140},
    {Concrete,   16,   19, 220},
    {Concrete,   20,   23, 140},
    {Stone,      13,   16, 100},
    {Stone,     Low, High, 220},
    {Roads,      16,   16, 100},  // bridges
    {Roads,      19,   19, 100},
    {Prickles,    0,   14,  40},
    {Ships,       0,   10,  80},
    {Ships,      11,   12,   5},
    {Ships,      16,   19,  10},
    {Various,    18,   25, 140},  // the vehicle
    {Highways,    0,   10, 100},
    {Fence,       0,   10,  30},
};

constexpr TileRule BlockRules[] = {
    // class    tiles    stops
    {Water,       0,  0, 1},  // open water
    {Water,      13, 13, 1},
    {Trees,       0,  0, 2},  // dense wood
    {Trees,      13, 16, 2},
    {Trees,      19, 21, 2},
    {Wooden,      0, 10, 3},  // walls
    {Wooden,     11, 12, 1},  // windows
    {Wooden,     16, 19, 1},  // furniture
    {Concrete,    0, 10, 3},
    {Concrete,   11, 12, 1},
    {Concrete,   16, 17, 1},  // low barriers
    {Concrete,   18, 19, 3},
    {Stone,       0, 14, 3},
    {Stone,      17, 18, 3},
    {Prickles,    0, 14, 1},
    {Ships,       0, 10, 3},
    {Ships,      11, 12, 1},
    {Ships,      16, 19, 1},
    {Various,    18, 25, 3},  // the vehicle
    {Fence,       0, 10, 3},
};
// clang-format on

constexpr std::array<const char*, 13> TerrainNames = {
    "surface",  "water",    "trees", "wooden",  "concrete", "stone", "roads",
    "trenches", "prickles", "ships", "various", "highways", "fence"};

int FirstMatch(std::span<const TileRule> rules, int tileX, int tileY) {
    for (const TileRule& rule : rules)
        if (rule.terrain == tileY && tileX >= rule.first && tileX <= rule.last) return rule.value;
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
