#include "kit/noise.h"

#include <algorithm>
#include <cmath>

namespace art {
namespace {

float Lattice(int x, int y, std::uint32_t seed) {
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x9E3779B1u ^
                      static_cast<std::uint32_t>(y) * 0x85EBCA77u ^ seed * 0xC2B2AE3Du;
    h ^= h >> 15;
    h *= 0x2C1B3C6Du;
    h ^= h >> 12;
    h *= 0x297A2D39u;
    h ^= h >> 15;
    return static_cast<float>(h & 0xFFFFu) / 32767.5f - 1.0f;
}

float Ease(float t) {
    return t * t * (3 - 2 * t);
}

int Wrap(int value, int count) {
    return ((value % count) + count) % count;
}

// std::lerp and std::floor keep promises for odd values that cost half the drawing time here.
float Mix(float from, float to, float share) {
    return from + (to - from) * share;
}

int Floor(float value) {
    const int cut = static_cast<int>(value);
    return static_cast<float>(cut) > value ? cut - 1 : cut;
}

}  // namespace

float Noise(float x, float y, float cell, float period, std::uint32_t seed) {
    const int count = std::max(1, static_cast<int>(std::lround(period / cell)));
    const float scale = static_cast<float>(count) / period;
    const int left = Floor(x * scale);
    const int above = Floor(y * scale);
    const float tx = Ease(x * scale - static_cast<float>(left));
    const float ty = Ease(y * scale - static_cast<float>(above));
    const int x0 = Wrap(left, count);
    const int y0 = Wrap(above, count);
    const int x1 = x0 + 1 == count ? 0 : x0 + 1;
    const int y1 = y0 + 1 == count ? 0 : y0 + 1;
    const float top = Mix(Lattice(x0, y0, seed), Lattice(x1, y0, seed), tx);
    const float bottom = Mix(Lattice(x0, y1, seed), Lattice(x1, y1, seed), tx);
    return Mix(top, bottom, ty);
}

float Fractal(float x, float y, float cell, float period, std::uint32_t seed) {
    return 0.55f * Noise(x, y, cell, period, seed) + 0.3f * Noise(x, y, cell / 2, period, seed + 1) +
           0.15f * Noise(x, y, cell / 4, period, seed + 2);
}

float Dice::Roll(float low, float high) {
    return low + (high - low) * static_cast<float>(engine() >> 8) / 16777216.0f;
}

int Dice::Pick(int count) {
    return static_cast<int>(engine() % static_cast<std::uint32_t>(count));
}

}  // namespace art
