// What moves in the valley, each once: a bubble of the river, a bird's song, an insect's call, a plank that
// creaks. Each is near and dry; distance is its listener's.
#pragma once

#include "signal.h"

Signal Bubble(std::mt19937& random, double lowestHz, double highestHz);

Signal Tit(std::mt19937& random);
Signal Finch(std::mt19937& random);
Signal Thrush(std::mt19937& random);
Signal Pigeon(std::mt19937& random);

Signal Grasshopper(std::mt19937& random);
Signal Cricket(std::mt19937& random);
Signal Bee(std::mt19937& random);

Signal Creak(std::mt19937& random);

/// A wave against a hull.
Signal Lap(std::mt19937& random);
