// Rows of tiles from tables of drawings.
#pragma once

#include <span>

#include "kit/joints.h"
#include "kit/relief.h"
#include "tiles/tile_rows.h"
#include "tiles/walls.h"

namespace art {

using TileDrawing = void (*)(Relief&);

enum class TileGround { Grass, Bare };

// Adds a tile for each drawing, over the ground.
void AddTiles(TileRow& row, TileGround ground, std::span<const TileDrawing> drawings);

// Adds a tile for each of the first `count` joints, over grass.
void AddJoints(TileRow& row, void (*draw)(Relief&, const Joint&), int count = AllJoints);

// Adds a wall's tile for each full joint, over grass.
void AddWalls(TileRow& row, const WallMake& make);

}  // namespace art
