#include "state/chance.h"

#include <cmath>

#include "state/state.h"

void SeedRandom(std::uint32_t seed) {
    randomSource.Seed(seed);
}

float NextRandom() {
    return randomSource.Next();
}

int RandomInt(int high, int low) {
    const double span = static_cast<double>(high) - low + 1;
    return static_cast<int>(std::floor(span * static_cast<double>(NextRandom()) + low));
}
