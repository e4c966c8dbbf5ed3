#include "shell/materials.h"

#include <span>

#include "data/terrain.h"

namespace {

struct Material {
    TileRange tiles;
    std::string_view word;
};

// The first row that matches counts.
// clang-format off
constexpr Material Grounds[] = {
    // class    tiles    sounds like
    {{Surface,   8,  9}, "earth"},
    {{Surface,  10, 10}, "gravel"},
    {{Surface,  11, 13}, "earth"},
    {{Surface,  14, 14}, "leaves"},  // grain
    {{Surface,  15, 15}, "earth"},
    {{Water},            "water"},
    {{Trees},            "leaves"},
    {{Wooden},           "wood"},
    {{Concrete},         "hard"},
    {{Stone,    16, 16}, "gravel"},  // rubble
    {{Stone},            "hard"},
    {{Roads,    16, 16}, "wood"},    // plank bridges
    {{Roads,    19, 19}, "wood"},
    {{Roads,    17, 17}, "hard"},    // cobbles
    {{Roads},            "earth"},
    {{Trenches},         "earth"},
    {{Ships},            "wood"},
    {{Various,   0,  0}, "wood"},    // a rug, indoors
    {{Various,   1,  1}, "leaves"},  // hay
    {{Various,   6,  6}, "earth"},   // vegetables
    {{Various,   9,  9}, "leaves"},
    {{Various,  11, 11}, "wood"},    // flat crates
    {{Various,  13, 13}, "water"},   // a puddle
    {{Various,  16, 16}, "wood"},    // logs
    {{Highways},         "hard"},
    {{Fence,    13, 14}, "wood"},    // fallen
};

constexpr Material Struck[] = {
    // class    tiles    material
    {{Surface,  10, 10}, "stone"},   // gravel
    {{Water},            "water"},
    {{Trees},            "leaves"},
    {{Wooden},           "wood"},
    {{Concrete, 19, 19}, "metal"},   // the generator
    {{Concrete},         "stone"},
    {{Stone},            "stone"},
    {{Roads,    16, 16}, "wood"},
    {{Roads,    19, 19}, "wood"},
    {{Roads,    17, 17}, "stone"},
    {{Prickles,  0, 14}, "metal"},
    {{Ships,     0, 12}, "metal"},   // hulls
    {{Ships,    19, 19}, "metal"},   // the engine
    {{Ships},            "wood"},
    {{Various,   0,  0}, "wood"},
    {{Various,   1,  1}, "leaves"},
    {{Various,   9,  9}, "leaves"},
    {{Various,  11, 11}, "wood"},
    {{Various,  13, 13}, "water"},
    {{Various,  14, 14}, "wood"},    // a stump
    {{Various,  16, 17}, "wood"},
    {{Various,  18, 25}, "metal"},   // the vehicle
    {{Highways},         "stone"},
    {{Fence,     0, 10}, "metal"},
    {{Fence},            "wood"},
};
// clang-format on

std::string_view FirstMatch(std::span<const Material> rows, int tileX, int tileY,
                            std::string_view otherwise) {
    for (const Material& row : rows)
        if (row.tiles.Holds(tileX, tileY)) return row.word;
    return otherwise;
}

}  // namespace

std::string_view StepGround(int tileX, int tileY) {
    return FirstMatch(Grounds, tileX, tileY, "");
}

std::string_view StruckMaterial(int tileX, int tileY) {
    return FirstMatch(Struck, tileX, tileY, "earth");
}
