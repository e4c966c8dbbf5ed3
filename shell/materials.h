// What the ground of a tile is to the ear.
#pragma once

#include <string_view>

/// How steps sound on a tile, as "gravel"; empty for grass.
std::string_view StepGround(int tileX, int tileY);

/// What a bullet that ends on a tile strikes, as "stone".
std::string_view StruckMaterial(int tileX, int tileY);
