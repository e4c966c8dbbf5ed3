#include "shell/walk_forecast.h"

#include "field/geometry.h"
#include "field/path_search.h"
#include "field/walking.h"
#include "mission/orders.h"
#include "shell/wording.h"

namespace {

const StepCost& CostOf(const Unit& unit) {
    return StepCosts.at(static_cast<std::size_t>(int{unit.stance}));
}

bool IsWayOpen(const Unit& unit, int cellX, int cellY) {
    const std::vector<PlanStep> plan = SearchPath(unit.cellX, unit.cellY, cellX, cellY, 1, [] {});
    return !plan.empty() && (plan[0].dx != 0 || plan[0].dy != 0);
}

// Why a soldier who has so much left goes no further.
Refusal WhyStopped(const Unit& unit, const WalkForecast& walk) {
    if (walk.paid >= walk.steps.size()) return {};
    const int energy = EnergyOfStep(unit);
    if (walk.energyLeft < energy && walk.timeLeft >= CostOf(unit).time)
        return {walk.paid == 0 ? Why::StepEnergy : Why::WalkEnergy, energy, walk.energyLeft, unit.name};
    return {Why::WalkTime, CostOf(unit).time, walk.timeLeft, unit.name};
}

}  // namespace

std::string ObstacleAt(int cellX, int cellY) {
    const Cell& cell = cellGrid[cellY][cellX];
    const int occupant = cell.occupant;
    if (occupant >= 0 && (TeamOfUnit(occupant) != EnemyTeam || SquadHasSighted(occupant)))
        return NameOf(occupant);
    const char* const ground = LetsStepThrough(cell) ? nullptr : TerrainName(cell.tileY);
    return ground == nullptr ? "something" : ground;
}

int EnergyOfStep(const Unit& unit) {
    return CostOf(unit).energy * (unit.load > unit.strength ? 2 : 1);
}

WalkForecast ForecastWalk(Rehearsal& rehearsal, int cellX, int cellY, float x, float y) {
    WalkForecast walk;
    const bool turnsFirst = cellX != lastClickX || cellY != lastClickY;
    const auto turnAndWalk = [&] {
        GoTo(cellX, cellY, x, y);
        if (turnsFirst) GoTo(cellX, cellY, x, y);
    };
    walk.turnsFirst = turnsFirst;
    if (turnsFirst) walk.turnTime = rehearsal.Try([&] { GoTo(cellX, cellY, x, y); }).time;
    const Trial whole = rehearsal.Try(turnAndWalk, Purse::Plenty);
    if (whole.failed) return walk;
    walk.known = true;
    walk.time = whole.time;
    walk.energy = whole.energy;
    const Trial own = rehearsal.Try(turnAndWalk);
    const Unit& unit = UnitTable[curUnit];
    walk.timeLeft = unit.time;
    walk.energyLeft = unit.energy;
    const Unit& before = rehearsal.Before().UnitTable[curUnit];
    if (whole.steps.empty() && !IsWayOpen(before, cellX, cellY)) {
        walk.refusal = {Why::NoWay, own.time};
        return walk;
    }
    walk.steps = whole.steps;
    walk.paid = own.steps.size();
    walk.closed = walk.steps.empty() || !(walk.steps.back().cell == Spot{cellX, cellY});
    walk.refusal = WhyStopped(before, walk);
    if (walk.steps.empty()) walk.refusal = {Why::WayClosed, 0, 0, ObstacleAt(cellX, cellY)};
    return walk;
}
