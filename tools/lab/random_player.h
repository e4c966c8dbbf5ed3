// A player who does what comes to mind, drawn by a generator of his own.
#pragma once

#include <cstdint>
#include <deque>
#include <random>

#include "platform/input_event.h"

class RandomPlayer {
  public:
    explicit RandomPlayer(std::uint32_t seed) : chance(seed) {}

    /// What he does next, fit for what is on the screen or not.
    InputEvent Next();

    /// An order that takes its time, for the events of Meanwhile to fall into: bursts, blasts, long walks,
    /// the end of a turn in which a charge may blow.
    InputEvent Lasting();

    /// What an impatient player does while an order runs: for the next soldier, for the same one, or to stop
    /// it.
    InputEvent Meanwhile();

    /// 0 to `below` - 1. Each draw stands in a statement of its own, so that every compiler's missions are
    /// the same.
    int Draw(int below) { return static_cast<int>(chance() % static_cast<std::uint32_t>(below)); }

  private:
    InputEvent Sensible();
    InputEvent Hasty();
    InputEvent Nonsense();
    InputEvent InFile();
    InputEvent WithThings();
    InputEvent WithCatalogue();
    InputEvent OfOtherWindow();
    InputEvent OnField(int button, int cellX, int cellY);
    InputEvent AtEnemy(int button);
    InputEvent AtComrade(int button);
    InputEvent NearBy(int button);
    InputEvent PastTheEdge();
    InputEvent OnSlot(int button, int slot);
    int SlotWithThing();

    std::mt19937 chance;
    std::deque<InputEvent> planned;  // what belongs to the last thing that he began
};
