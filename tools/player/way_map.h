// How far every cell of the field lies from a goal, on foot: what a person reads off the map before he sends
// somebody. Soldiers in the way don't count.
#pragma once

#include <array>
#include <cstddef>

#include "state/state.h"

class WayMap {
  public:
    static constexpr int NoWay = 9999;

    /// All ways to the cell (goalX, goalY), over the field as it is now.
    WayMap(int goalX, int goalY);

    /// Steps from (x, y) to the goal; NoWay where there is none, and outside the field.
    int StepsFrom(int x, int y) const;

    /// The facing of the best step that the unit can take now: nearer to the goal, else past a comrade at the
    /// same distance; straight on where that is as good. -1 for none.
    int BestStep(const Unit& unit) const;

  private:
    // With a border of closed cells around the field, so that a search needs no other bounds.
    static constexpr std::size_t Stride = FieldWidth + 2;
    static std::size_t Index(int x, int y) {
        return static_cast<std::size_t>(y + 1) * Stride + static_cast<std::size_t>(x + 1);
    }

    std::array<int, Stride*(FieldHeight + 2)> steps;
};
