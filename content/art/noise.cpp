#include "noise.h"

#include <algorithm>
#include <cmath>

namespace art {
namespace {

float Lattice(int x, int y, std::uint32_t seed) {
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x9E3779B1u ^ static_cast<std::uint32_t>(y) * 0x85EBCA77u ^
                      seed * 0xC2B2AE3Du;
    h ^= h >> 15;
    h *= 0x2C1B3C6Du;
    h ^= h >> 12;
    h *= 0x297A2D39u;
    h ^= h >> 15;
    return static_cast<float>(h & 0xFFFFu) / 32767.5f - 1.0f;
}

float Ease(float t) { return t * t * (3 - 2 * t); }

int Wrap(int value, int count) { return ((value % count) + count) % count; }

}  // namespace

float Noise(float x, float y, float cell, float period, std::uint32_t seed) {
    const int count = std::max(1, static_cast<int>(std::lround(period / cell)));
    const float scale = static_cast<float>(count) / period;
    const float fx = std::floor(x * scale);
    const float fy = std::floor(y * scale);
    const float tx = Ease(x * scale - fx);
    const float ty = Ease(y * scale - fy);
    const int x0 = Wrap(static_cast<int>(fx), count);
    const int y0 = Wrap(static_cast<int>(fy), count);
    const int x1 = Wrap(x0 + 1, count);
    const int y1 = Wrap(y0 + 1, count);
    const float top = std::lerp(Lattice(x0, y0, seed), Lattice(x1, y0, seed), tx);
    const float bottom = std::lerp(Lattice(x0, y1, seed), Lattice(x1, y1, seed), tx);
    return std::lerp(top, bottom, ty);
}

float Fractal(float x, float y, float cell, float period, std::uint32_t seed) {
    return 0.55f * Noise(x, y, cell, period, seed) + 0.3f * Noise(x, y, cell / 2, period, seed + 1) +
           0.15f * Noise(x, y, cell / 4, period, seed + 2);
}

float Dice::Roll(float low, float high) {
    return low + (high - low) * static_cast<float>(engine() >> 8) / 16777216.0f;
}

int Dice::Pick(int count) { return static_cast<int>(engine() % static_cast<std::uint32_t>(count)); }

}  // namespace art
