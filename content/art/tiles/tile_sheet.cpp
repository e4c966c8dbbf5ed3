#include "tiles/tile_sheet.h"

#include "kit/canvas.h"
#include "tiles/tile_rows.h"

namespace art {
namespace {

constexpr int SheetColumns = 32;
constexpr int SheetRows = 32;

}  // namespace

QImage Finished(const Relief& relief) {
    return Settle(relief.Render());
}

std::vector<TileClass> AllTileClasses(const TileRow& trees) {
    return {
        {"SURFACE", SurfaceTiles()}, {"WATER", WaterTiles()},       {"TREES", trees},
        {"WOODEN", WoodenTiles()},   {"CONCRETE", ConcreteTiles()}, {"STONE", StoneTiles()},
        {"ROADS", RoadTiles()},      {"TRENCHES", TrenchTiles()},   {"PRICKLES", WireTiles()},
        {"SHIPS", ShipTiles()},      {"VARIOUS", VariousTiles()},   {"HIGHWAYS", HighwayTiles()},
        {"FENCE", FenceTiles()},
    };
}

QImage TileSheet(const std::vector<TileClass>& classes) {
    QImage sheet = Sheet(SheetColumns * CellSize, SheetRows * CellSize);
    const QImage& grass = classes.front().tiles.front();
    for (std::size_t row = 0; row < classes.size(); ++row) {
        const TileRow& tiles = classes[row].tiles;
        for (std::size_t column = 0; column < SheetColumns; ++column) {
            Place(sheet, static_cast<int>(column) * CellSize, static_cast<int>(row) * CellSize,
                  column < tiles.size() ? tiles[column] : grass);
        }
    }
    return sheet;
}

}  // namespace art
