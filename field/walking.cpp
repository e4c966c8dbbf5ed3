#include "field/walking.h"

#include <cstdlib>

#include "field/geometry.h"
#include "field/moving.h"
#include "field/path_search.h"
#include "field/sightings.h"
#include "platform/host.h"
#include "platform/rounding.h"
#include "state/costs.h"
#include "state/operation.h"
#include "state/state.h"

namespace {

const StepCost& CostOfStep(const Unit& unit) {
    return StepCosts.at(static_cast<std::size_t>(int{unit.stance}));
}

int FacingOfOffset(int dx, int dy) {
    for (int facing = 0; facing < FacingCount; ++facing)
        if (WayOf(facing).dx == dx && WayOf(facing).dy == dy) return facing;
    return -1;
}

int FacingOfAngle(int angleStep) {
    for (int facing = 0; facing < FacingCount; ++facing)
        if (WayOf(facing).angleStep == angleStep) return facing;
    return -1;
}

// One step of 45 degrees the shorter way round; a reversal goes clockwise.
int TurnedBy45(int facing, int dir) {
    const int from = WayOf(facing).angleStep;
    const int clockwise = (WayOf(dir).angleStep - from + FacingCount) % FacingCount;
    const int turn = clockwise <= FacingCount / 2 ? 1 : FacingCount - 1;
    return FacingOfAngle((from + turn) % FacingCount);
}

bool Step(Unit& unit, int dir) {
    const FacingWay way = WayOf(dir);
    if (!CellFreeToStep(unit.cellX + way.dx, unit.cellY + way.dy)) return false;
    const StepCost& cost = CostOfStep(unit);
    const int energy = unit.load > unit.strength ? cost.energy * 2 : cost.energy;
    if (!Spend(static_cast<float>(energy), "energy")) return false;
    // ODDITY: a step that is refused for want of time keeps the energy it has paid; the player loses energy
    // without moving.
    if (!Spend(static_cast<float>(cost.time), "time")) return false;
    PaintUnit(way.dx, way.dy);
    UnitLookEnemies();
    return true;
}

// ODDITY: a turn that runs out of time stops on its way and doesn't look, and yet counts as done.
bool Turn(Unit& unit, int dir) {
    if (!Spend(TurnTime, "time")) return false;
    for (;;) {
        unit.facing = TurnedBy45(unit.facing, dir);
        PaintUnit(0, 0);
        if (unit.facing == dir) break;
        if (!Spend(TurnTime, "time")) return true;
    }
    UnitLookEnemies();
    return true;
}

int Sign(int value) {
    return value > 0 ? 1 : value < 0 ? -1 : 0;
}

bool IsTwice(int larger, int smaller) {
    return std::abs(larger) > std::abs(smaller) &&
           std::abs(larger) / static_cast<double>(std::abs(smaller)) >= 2;
}

// The distance in pixels from a unit's centre; within its own square it counts as none.
int DistanceFromCentre(float pixel, int unitPixel) {
    const int distance = static_cast<int>(
        RoundHalfEven(static_cast<double>(pixel - static_cast<float>(unitPixel + HalfCell))));
    return std::abs(distance) <= HalfCell ? 0 : distance;
}

// Whether the walk that began with order number `order` on `unit` is still what the player wants.
bool StillWanted(int order, int unit) {
    return orderCount == order && curUnit == unit;
}

float CentreOf(int cell) {
    return static_cast<float>(cell * CellSize + HalfCell);
}

// Not inlined: who owns the plan has a clean-up, and in a browser each call past a clean-up goes through the
// page.
[[gnu::noinline]] bool WalkPlan(const std::vector<PlanStep>& plan, int order, int walker) {
    Unit& unit = UnitTable[walker];
    int x = unit.cellX;
    int y = unit.cellY;
    bool stopped = false;
    for (const PlanStep& step : plan) {
        x += step.dx;
        y += step.dy;
        TurnTowards(CentreOf(x), CentreOf(y));
        if (!StillWanted(order, walker)) return false;
        TurnOrStep(true, unit.facing);
        stopped = unit.time < CostOfStep(unit).time || walkOn == 0;
        if (stopped) break;
        if (unit.team == SquadTeam) TheHost().PumpEvents();
        if (!StillWanted(order, walker)) return false;
    }
    return !stopped;
}

}  // namespace

void TurnTowards(float px, float py) {
    const Unit& unit = UnitTable[curUnit];
    int dx = DistanceFromCentre(px, unit.pixelX);
    int dy = DistanceFromCentre(py, unit.pixelY);
    if (dx != 0 && dy != 0) {
        if (IsTwice(dx, dy))
            dy = 0;
        else if (IsTwice(dy, dx))
            dx = 0;
    }
    const int dir = FacingOfOffset(Sign(dx), Sign(dy));
    if (dir >= 0) TurnOrStep(false, dir);
}

bool TurnOrStep(bool doStep, int dir) {
    bool result = false;
    RunOperation([&] {
        Unit& unit = UnitTable[curUnit];
        if (unit.facing != dir)
            result = Turn(unit, dir);
        else if (doStep)
            result = Step(unit, dir);
    });
    return result;
}

bool WalkTo(int x, int y, int maxSteps) {
    const int walker = curUnit;
    const int order = ++orderCount;
    const std::vector<PlanStep> plan = SearchPath(UnitTable[walker].cellX, UnitTable[walker].cellY, x, y,
                                                  maxSteps, [] { TheHost().PumpEvents(); });
    return StillWanted(order, walker) && WalkPlan(plan, order, walker);
}
