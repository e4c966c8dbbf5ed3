// A player who does what comes to mind, drawn by a generator of his own.
#pragma once

#include <cstdint>
#include <random>

#include "platform/input_event.h"

class RandomPlayer {
  public:
    explicit RandomPlayer(std::uint32_t seed) : chance(seed) {}

    /// What he does next, fit for what is on the screen or not.
    InputEvent Next();

    /// 0 to `below` - 1.
    int Draw(int below) { return static_cast<int>(chance() % static_cast<std::uint32_t>(below)); }

  private:
    InputEvent Sensible();
    InputEvent Hasty();
    InputEvent Nonsense();
    InputEvent InFile();
    InputEvent OnField(int button, int cellX, int cellY);

    std::mt19937 chance;
};
