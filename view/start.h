// The start of the game on its windows.
#pragma once

#include <cstdint>

/// The program's entry: puts everything to its start, shows the main window and begins a mission. The
/// generator is seeded from the system's timer. Throws RunTimeError.
void Main();

/// The same with a seed of the caller's.
void Main(std::uint32_t seed);
