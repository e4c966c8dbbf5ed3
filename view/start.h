// The start of the game on its windows.
#pragma once

#include <cstdint>

/// The program's entry: puts everything to its start, shows the main window and begins a mission. Throws
/// RunTimeError.
void Main(std::uint32_t seed);

/// A seed from the system's timer, for a player's game.
std::uint32_t TimerSeed();
