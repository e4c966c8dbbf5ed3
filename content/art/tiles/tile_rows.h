// One routine a terrain class: its tiles by column.
#pragma once

#include "tiles/tile_sheet.h"

namespace art {

TileRow SurfaceTiles();
TileRow WaterTiles();
TileRow WoodenTiles();
TileRow ConcreteTiles();
TileRow StoneTiles();
TileRow RoadTiles();
TileRow TrenchTiles();
TileRow WireTiles();
TileRow ShipTiles();
TileRow VariousTiles();
TileRow HighwayTiles();
TileRow FenceTiles();

// The trees, and the tops of the same trees that cover a soldier, see-through around the leaves.
struct TreePictures {
    TileRow tiles, tops;
};
TreePictures DrawTrees();

}  // namespace art
