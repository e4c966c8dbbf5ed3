// Medals, ribbons and bars for the awards plate, each with the number of times it was won.
#pragma once

#include <QImage>

namespace art {

constexpr int AwardKinds = 25;
constexpr int AwardTimes = 20;

// An award before any device: 105 by 41.
QImage AwardBase(int award);

// The same, won so many times (1 to 20): devices on the ribbon and the number. `base` is its AwardBase.
QImage AwardPicture(const QImage& base, int award, int times);

}  // namespace art
