#include "platform/random.h"

void Random::Seed(std::uint32_t seed) {
    generator.seed(seed);
    draws = 0;
}

float Random::Next() {
    ++draws;
    return static_cast<float>(generator() >> 8) * 0x1p-24F;
}
