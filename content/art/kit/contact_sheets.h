// Sheets for looking: every group enlarged, each picture under its number.
#pragma once

#include <string>
#include <vector>

#include <QImage>

namespace art {

// Pictures in rows of `across`, enlarged by `times`, on a ground that shows what is see-through.
QImage ContactSheet(const std::string& title, const std::vector<QImage>& pictures, int across, int times,
                    const QImage& ground = {});

}  // namespace art
