// Periodic noise for grain, and the one source of chance that drawing uses. Both give the same values on each
// run.
#pragma once

#include <cstdint>
#include <random>

namespace art {

// Smooth noise from -1 to 1 at a place in pixels. Its bumps are about `cell` wide and it repeats every
// `period` pixels both ways, so that a tile filled with it joins with itself.
float Noise(float x, float y, float cell, float period, std::uint32_t seed);

// Noise of three sizes laid over each other, coarse to fine.
float Fractal(float x, float y, float cell, float period, std::uint32_t seed);

// Chance for placing leaves, stones and tufts.
class Dice {
  public:
    explicit Dice(std::uint32_t seed) : engine(seed) {}
    float Roll(float low, float high);
    int Pick(int count);

  private:
    std::mt19937 engine;
};

}  // namespace art
