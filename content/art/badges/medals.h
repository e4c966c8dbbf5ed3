// The awards' pictures for the file window: medals with ribbons, plain ribbons, bars and counters.
#pragma once

#include "kit/drawing.h"

namespace art {

constexpr int AwardKinds = 25;
constexpr int AwardTimes = 20;

// Award 00 to 24, won 01 to 20 times, as AATT; 105 by 41.
Drawings AwardDrawings();

// The paths of all awards, each won another number of times; for mock pictures.
std::vector<std::string> AwardsOften();

}  // namespace art
