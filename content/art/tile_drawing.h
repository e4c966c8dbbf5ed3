// Rows of tiles from tables of drawings.
#pragma once

#include <span>

#include "relief.h"
#include "tile_rows.h"
#include "walls.h"

namespace art {

using TileDrawing = void (*)(Relief&);

enum class TileGround { Grass, Bare };

// Adds a tile for each drawing, over the ground.
void AddTiles(TileRow& row, TileGround ground, std::span<const TileDrawing> drawings);

// Adds a wall's tile for each full joint, over grass.
void AddWalls(TileRow& row, const WallMake& make);

}  // namespace art
