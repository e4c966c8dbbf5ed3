// The game's one source of chance: seeded once, drawn in the order that the rules name. Effects that only
// decorate never draw from it.
#pragma once

#include <cstdint>

/// Starts the generator again.
void SeedRandom(std::uint32_t seed);

/// The next float in [0, 1), a multiple of 2^-24.
float NextRandom();

/// A whole number from `low` to `high`, both included; note the order of the arguments. With `high` below
/// `low` the result lies between `high` + 1 and `low`.
int RandomInt(int high, int low);
