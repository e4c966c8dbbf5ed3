#include "tools/player/way_map.h"

#include <algorithm>
#include <vector>

#include "data/terrain.h"
#include "field/geometry.h"

namespace {

constexpr int Closed = WayMap::NoWay + 1;

}  // namespace

WayMap::WayMap(int goalX, int goalY) {
    steps.fill(Closed);
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            if (LetsStepThrough(cellGrid[y][x])) steps[Index(x, y)] = NoWay;
    std::vector<std::size_t> reached = {Index(goalX, goalY)};
    reached.reserve(steps.size());
    steps[reached[0]] = 0;
    for (std::size_t i = 0; i < reached.size(); ++i) {
        const std::size_t from = reached[i];
        for (const FacingWay& way : FacingWays) {
            const std::size_t to =
                from + static_cast<std::size_t>(way.dy) * Stride + static_cast<std::size_t>(way.dx);
            if (steps[to] != NoWay) continue;
            steps[to] = steps[from] + 1;
            reached.push_back(to);
        }
    }
}

int WayMap::StepsFrom(int x, int y) const {
    return InField(x, y) ? std::min<int>(steps[Index(x, y)], NoWay) : NoWay;
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
