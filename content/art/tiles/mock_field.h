// The main window as it would look in play, put together from the finished pictures. For looking only.
#pragma once

#include <vector>

#include <QImage>

#include "tiles/tile_sheet.h"

namespace art {

QImage MockWindow(const std::vector<TileClass>& classes, const TileRow& tops,
                  const QImage& panel);  // 799 by 636

}  // namespace art
