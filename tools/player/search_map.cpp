#include "tools/player/search_map.h"

#include "field/geometry.h"
#include "field/sight.h"
#include "tools/player/way_map.h"

namespace {

constexpr int TurnsTrusted = 15;  // an enemy may have come there since

}  // namespace

void SearchMap::Look(const Unit& unit, int turn) {
    At(unit.cellX, unit.cellY) = turn;
    CastFan(unit.facing, unit.cellX, unit.cellY, [this, turn](int x, int y) {
        if (InField(x, y)) At(x, y) = turn;
        return CellOpen("view", x, y);
    });
}

std::optional<Spot> SearchMap::NearestUnsearched(const Unit& unit, int turn) const {
    const WayMap way(unit.cellX, unit.cellY);
    std::optional<Spot> nearest;
    int least = WayMap::NoWay;
    for (int y = 0; y < FieldHeight; ++y) {
        for (int x = 0; x < FieldWidth; ++x) {
            const Spot cell = {x, y};
            const int steps = way.StepsFrom(x, y);
            if (steps >= least || !IsUnsearched(cell, turn)) continue;
            least = steps;
            nearest = cell;
        }
    }
    return nearest;
}

bool SearchMap::IsUnsearched(Spot cell, int turn) const {
    const int looked = lookedAt[static_cast<std::size_t>(cell.y)][static_cast<std::size_t>(cell.x)];
    return looked == 0 || turn - looked > TurnsTrusted;
}
