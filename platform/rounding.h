// Rounding as the whole game does it, written out so that it depends on no mode of the machine.
#pragma once

#include <cmath>

/// The nearest integer to `value`, ties to the even one. Not-a-number stays so.
inline double RoundHalfEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5) return below;
    if (rest > 0.5) return below + 1;
    return std::fmod(below, 2.0) == 0 ? below : below + 1;
}

/// `value` / `divisor` toward minus infinity; `divisor` above 0.
constexpr int FloorDivide(int value, int divisor) {
    return value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor);
}

/// The pixel that a pointer's position falls on, half to even.
inline int WholePixel(float position) {
    return static_cast<int>(RoundHalfEven(static_cast<double>(position)));
}
