// The terrain sheet: every class draws its row, this puts the rows together.
#pragma once

#include <vector>

#include <QImage>

#include "kit/relief.h"

namespace art {

// The tiles of one class by column, as settled pictures.
using TileRow = std::vector<QImage>;

// A tile as it goes on the sheet.
QImage Finished(const Relief& relief);

struct TileClass {
    const char* name;
    TileRow tiles;
};

// All classes in the order of the sheet's rows.
std::vector<TileClass> AllTileClasses(const TileRow& trees);

// 640 by 640. Columns that a class leaves out are plain grass, rows without a class black.
QImage TileSheet(const std::vector<TileClass>& classes);

}  // namespace art
