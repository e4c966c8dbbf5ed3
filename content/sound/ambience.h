// The sounds of the valley when nothing happens: loops that end where they begin.
#pragma once

#include <vector>

#include "signal.h"

struct Loop {
    const char* name;  // under the sound folder, without extension
    int seconds;
    int thinness;   // of so many samples one is kept: what is left reaches up to half of that rate
    double meanDb;  // decibels under full scale
    Signal (*make)(std::mt19937& random, double seconds);
};

std::vector<Loop> AmbienceLoops();

/// Samples a second of the rendered loop.
int LoopRate(const Loop& loop);

/// The loop's samples. Its chance is its own, seeded by its name.
Signal Render(const Loop& loop);
