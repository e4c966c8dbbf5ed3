#include "tile_drawing.h"

#include "grounds.h"
#include "joints.h"

namespace art {

void AddTiles(TileRow& row, TileGround ground, std::span<const TileDrawing> drawings) {
    for (const TileDrawing draw : drawings) {
        Relief relief;
        if (ground == TileGround::Grass) GrassGround(relief);
        draw(relief);
        row.push_back(Finished(relief));
    }
}

void AddWalls(TileRow& row, const WallMake& make) {
    for (std::size_t i = 0; i < FullJoints; ++i) {
        Relief relief;
        GrassGround(relief);
        BuildApron(relief, Joints[i], make);
        BuildWall(relief, Joints[i], make);
        row.push_back(Finished(relief));
    }
}

}  // namespace art
