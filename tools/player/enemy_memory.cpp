#include "tools/player/enemy_memory.h"

#include <algorithm>

#include "tools/player/shot_odds.h"

namespace {

constexpr int TurnsRemembered = 2;

// Whether some soldier sees the enemy of that place, which draws him on the field.
bool IsSighted(int place) {
    for (int i = 0; i <= teamLast[SquadTeam]; ++i)
        if (UnitTable[i].seen[place] == 1) return true;
    return false;
}

}  // namespace

void EnemyMemory::Update(int turn) {
    for (int place = 0; place <= teamLast[EnemyTeam]; ++place) {
        const Unit& enemy = UnitTable[FirstOf(EnemyTeam) + place];
        Sighting& sighting = sightings[static_cast<std::size_t>(place)];
        if (enemy.status != Dead && IsSighted(place)) sighting = {turn, {enemy.cellX, enemy.cellY}};
        if (enemy.status == Dead || turn - sighting.turn > TurnsRemembered) sighting.turn = 0;
    }
}

std::optional<Spot> EnemyMemory::NearestTo(const Unit& unit) const {
    std::optional<Spot> nearest;
    for (const Sighting& sighting : sightings) {
        if (sighting.turn == 0) continue;
        if (!nearest || DistanceBetween(unit, sighting.cell) < DistanceBetween(unit, *nearest))
            nearest = sighting.cell;
    }
    return nearest;
}

bool EnemyMemory::Knows() const {
    return std::any_of(sightings.begin(), sightings.end(),
                       [](const Sighting& sighting) { return sighting.turn > 0; });
}
