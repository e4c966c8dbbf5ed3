#include "tiles/tile_drawing.h"

#include "tiles/grounds.h"

namespace art {
namespace {

template <typename Drawing>
void AddOnGrass(TileRow& row, Drawing draw) {
    Relief relief;
    GrassGround(relief);
    draw(relief);
    row.push_back(Finished(relief));
}

}  // namespace

void AddTiles(TileRow& row, TileGround ground, std::span<const TileDrawing> drawings) {
    for (const TileDrawing draw : drawings) {
        Relief relief;
        if (ground == TileGround::Grass) GrassGround(relief);
        draw(relief);
        row.push_back(Finished(relief));
    }
}

void AddJoints(TileRow& row, void (*draw)(Relief&, const Joint&), int count) {
    for (const Joint& joint : std::span(Joints).first(static_cast<std::size_t>(count)))
        AddOnGrass(row, [&](Relief& relief) { draw(relief, joint); });
}

void AddWalls(TileRow& row, const WallMake& make) {
    for (const Joint& joint : std::span(Joints).first(FullJoints)) {
        AddOnGrass(row, [&](Relief& relief) {
            BuildApron(relief, joint, make);
            BuildWall(relief, joint, make);
        });
    }
}

}  // namespace art
