#include "tools/way_map.h"

#include <vector>

#include "field/geometry.h"

WayMap::WayMap(int goalX, int goalY) {
    for (auto& row : steps)
        row.fill(NoWay);
    struct Place {
        int x, y;
    };
    std::vector<Place> reached = {{goalX, goalY}};
    const auto at = [this](int x, int y) -> int& {
        return steps[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
    };
    at(goalX, goalY) = 0;
    for (std::size_t i = 0; i < reached.size(); ++i) {
        const Place from = reached[i];
        for (const FacingWay& way : FacingWays) {
            const Place to = {from.x + way.dx, from.y + way.dy};
            if (!CellOpen("step", to.x, to.y) || at(to.x, to.y) != NoWay) continue;
            at(to.x, to.y) = at(from.x, from.y) + 1;
            reached.push_back(to);
        }
    }
}

int WayMap::StepsFrom(int x, int y) const {
    return InField(x, y) ? steps[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] : NoWay;
}

int WayMap::BestStep(const Unit& unit) const {
    int best = -1;
    int bestSteps = StepsFrom(unit.cellX, unit.cellY);
    for (int facing = 0; facing < FacingCount; ++facing) {
        const FacingWay way = WayOf(facing);
        const int there = StepsFrom(unit.cellX + way.dx, unit.cellY + way.dy);
        const bool better = there < bestSteps || (there == bestSteps && facing == unit.facing);
        if (!better || !CellFreeToStep(unit.cellX + way.dx, unit.cellY + way.dy)) continue;
        best = facing;
        bestSteps = there;
    }
    return best;
}
