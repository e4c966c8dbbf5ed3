// The generator behind the game's chance.
#pragma once

#include <cstdint>
#include <random>

class Random {
  public:
    /// Starts the generator again.
    void Seed(std::uint32_t seed);

    /// The next float in [0, 1), a multiple of 2^-24.
    float Next();

    /// How often it was drawn from since it was seeded; with the seed this is its whole state.
    std::uint64_t Draws() const { return draws; }

    bool operator==(const Random&) const = default;

  private:
    std::mt19937 generator;
    std::uint64_t draws = 0;
};
