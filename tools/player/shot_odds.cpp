#include "tools/player/shot_odds.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "combat/shooting.h"
#include "field/geometry.h"

namespace {

constexpr double HalfWidth = 0.5;  // of a cell

// How far a round may end from the point aimed at, on either axis, in cells.
double ScatterOf(const Unit& unit, Spot target) {
    const double distance = DistanceBetween(unit, target);
    const double spread = std::max(0.0, 2.0 * FullSkill - unit.marksmanship - unit.hand.accur + distance);
    return distance * spread / ScatterDivisor / CellSize;
}

}  // namespace

double DistanceBetween(const Unit& unit, Spot cell) {
    return std::hypot(unit.cellX - cell.x, unit.cellY - cell.y);
}

// It must go straight enough, and not end before the target; it scatters evenly in a square.
double OddsOf(const Unit& unit, Spot target) {
    const double scatter = ScatterOf(unit, target);
    return scatter <= HalfWidth ? 1 : HalfWidth / scatter * (scatter + HalfWidth) / (2 * scatter);
}

// The rounds fly within a wedge that is as wide at the target as they scatter there.
bool EndangersComrade(const Unit& unit, Spot target) {
    constexpr double Berth = 0.6;  // cells; a body, and a little
    const double distance = DistanceBetween(unit, target);
    const double scatter = ScatterOf(unit, target);
    const double dx = (target.x - unit.cellX) / distance;
    const double dy = (target.y - unit.cellY) / distance;
    for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
        const Unit& comrade = UnitTable[i];
        if (&comrade == &unit || comrade.status == Dead) continue;
        const int x = comrade.cellX - unit.cellX;
        const int y = comrade.cellY - unit.cellY;
        const double along = x * dx + y * dy;
        const double aside = std::abs(x * dy - y * dx);
        if (along > 0 && along < distance + scatter && aside < Berth + scatter * along / distance)
            return true;
    }
    return false;
}

bool ViewIsClear(Spot from, Spot to) {
    const int dx = to.x - from.x;
    const int dy = to.y - from.y;
    const int steps = 2 * std::max(std::abs(dx), std::abs(dy));
    for (int i = 1; i < steps; ++i) {
        const int x = CellOfPixel(from.x * CellSize + HalfCell + dx * CellSize * i / steps);
        const int y = CellOfPixel(from.y * CellSize + HalfCell + dy * CellSize * i / steps);
        if (!CellOpen("view", x, y)) return false;
    }
    return true;
}
