#include "platform/random.h"

#include <cmath>
#include <random>

namespace {

std::mt19937 generator;
std::uint64_t draws = 0;

}  // namespace

void SeedRandom(std::uint32_t seed) {
    generator.seed(seed);
    draws = 0;
}

float NextRandom() {
    ++draws;
    return static_cast<float>(generator() >> 8) * 0x1p-24F;
}

std::uint64_t RandomDraws() {
    return draws;
}

int RandomInt(int high, int low) {
    const double span = static_cast<double>(high) - low + 1;
    return static_cast<int>(std::floor(span * static_cast<double>(NextRandom()) + low));
}
