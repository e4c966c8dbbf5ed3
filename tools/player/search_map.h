// Which cells of the field the squad has looked at, and when: where else an enemy may be.
#pragma once

#include <array>
#include <optional>

#include "state/state.h"

class SearchMap {
  public:
    /// Notes what the unit has before its eyes.
    void Look(const Unit& unit, int turn);

    /// The cell nearest to the unit on foot at which nobody has looked for long; nullopt when there is none.
    std::optional<Spot> NearestUnsearched(const Unit& unit, int turn) const;

    bool IsUnsearched(Spot cell, int turn) const;

  private:
    int& At(int x, int y) { return lookedAt[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]; }

    std::array<std::array<int, FieldWidth>, FieldHeight> lookedAt = {};  // the turn; 0: never
};
