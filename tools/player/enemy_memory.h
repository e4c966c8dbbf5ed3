// What the squad knows of the enemy: where its soldiers saw him last. Who is dead the log tells.
#pragma once

#include <array>
#include <optional>

#include "state/state.h"

class EnemyMemory {
  public:
    /// Takes in what the soldiers see now; what is older than a few turns is forgotten.
    void Update(int turn);

    /// Where the enemy nearest to the unit was seen last; nullopt when none is known of.
    std::optional<Spot> NearestTo(const Unit& unit) const;

    /// Whether any enemy is known of.
    bool Knows() const;

  private:
    struct Sighting {
        int turn = 0;  // 0: never
        Spot cell;
    };

    std::array<Sighting, TeamStride> sightings;  // by the enemy's place in his team
};
