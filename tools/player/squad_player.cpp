#include "tools/player/squad_player.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "field/geometry.h"
#include "field/stances.h"
#include "field/walking.h"
#include "tools/player/orders.h"
#include "tools/player/shot_odds.h"

namespace {

// clang-format off
constexpr Habits AllHabits[] = {
    //            marching contact resting bound shots odds closest careful
    {"sensible",  Stand,   Crouch, Crouch, 12,   1,    0.10, 5,     true},
    {"careless",  Run,     Run,    Run,    99,   0,    0.15, 1,     false},
};
// clang-format on

constexpr int AheadAtMost = 10;   // steps before the section's middle
constexpr int ContactRange = 24;  // cells; an enemy farther off is the others' business

bool IsCurrent(const Unit& unit) {
    return &UnitTable[curUnit] == &unit;
}

Spot PlaceOf(const Unit& unit) {
    return {unit.cellX, unit.cellY};
}

// The nearest living enemy whom the unit sees itself and `suits` accepts.
template <typename Suits>
std::optional<Spot> NearestSeen(const Unit& unit, Suits suits) {
    std::optional<Spot> nearest;
    for (int place = 0; place <= teamLast[EnemyTeam]; ++place) {
        const Unit& enemy = UnitTable[FirstOf(EnemyTeam) + place];
        if (unit.seen[place] != 1 || enemy.status == Dead || !suits(PlaceOf(enemy))) continue;
        if (!nearest || DistanceBetween(unit, PlaceOf(enemy)) < DistanceBetween(unit, *nearest))
            nearest = PlaceOf(enemy);
    }
    return nearest;
}

// The facing of a free neighbour cell out of the danger's view; -1 for none.
int CoverFrom(Spot danger, const Unit& unit) {
    for (int facing = 0; facing < FacingCount; ++facing) {
        const FacingWay way = ::WayOf(facing);
        const Spot cell = {unit.cellX + way.dx, unit.cellY + way.dy};
        if (CellFreeToStep(cell.x, cell.y) && !ViewIsClear(cell, danger)) return facing;
    }
    return -1;
}

}  // namespace

const Habits* HabitsNamed(std::string_view name) {
    const auto* row = std::find_if(std::begin(AllHabits), std::end(AllHabits),
                                   [name](const Habits& habits) { return habits.name == name; });
    return row != std::end(AllHabits) ? row : nullptr;
}

SquadPlayer::SquadPlayer(const Habits& chosen) : habits(chosen) {}

void SquadPlayer::PlayTurn() {
    turn = squadTurns;
    if (!GiveAll(&SquadPlayer::Advance)) return;
    if (memory.Knows()) {
        if (!GiveAll(&SquadPlayer::Fire)) return;
        if (habits.careful && !GiveAll(&SquadPlayer::Settle)) return;
    }
    EndTurn();
}

// Each soldier once, as the selection brings them. False when the turn has ended meanwhile.
bool SquadPlayer::GiveAll(Orders orders) {
    for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
        const Unit& unit = UnitTable[curUnit];
        Observe();
        (this->*orders)(unit);
        if (squadTurns == turn && IsCurrent(unit)) PassToNext();
        if (squadTurns != turn) return false;
    }
    return true;
}

void SquadPlayer::Advance(const Unit& unit) {
    for (int steps = 0; steps < habits.bound && IsCurrent(unit) && MayWalk(unit); ++steps) {
        if (habits.careful && FireOnce(unit)) continue;
        const Stance stance = Danger(unit) ? habits.inContact : habits.marching;
        if (unit.stance != stance) TakeStance(stance);
        if (!IsCurrent(unit) || !StepOnce(unit)) break;
    }
    Fire(unit);
    if (IsCurrent(unit) && !Danger(unit) && unit.stance > habits.resting) TakeStance(habits.resting);
}

void SquadPlayer::Fire(const Unit& unit) {
    while (IsCurrent(unit) && FireOnce(unit))
        memory.Update(turn);
}

void SquadPlayer::Settle(const Unit& unit) {
    const std::optional<Spot> danger = Danger(unit);
    if (!danger || !ViewIsClear(PlaceOf(unit), *danger)) return;
    const int cover = CoverFrom(*danger, unit);
    if (cover >= 0)
        TurnAndStep(unit, cover);
    else if (unit.stance > Prone)
        TakeStance(Prone);
}

// What the soldier who has the order sees.
void SquadPlayer::Observe() {
    memory.Update(turn);
    search.Look(UnitTable[curUnit], turn);
}

// Where the nearest enemy was seen last, if that is any concern of the unit's.
std::optional<Spot> SquadPlayer::Danger(const Unit& unit) const {
    const std::optional<Spot> enemy = memory.NearestTo(unit);
    return enemy && DistanceBetween(unit, *enemy) <= ContactRange ? enemy : std::nullopt;
}

std::optional<Spot> SquadPlayer::Target(const Unit& unit) const {
    return NearestSeen(unit, [this, &unit](Spot cell) {
        return OddsOf(unit, cell) >= habits.fairOdds && !(habits.careful && EndangersComrade(unit, cell));
    });
}

// One order to fire, if there is a target. False when it came to nothing.
bool SquadPlayer::FireOnce(const Unit& unit) {
    if (unit.time < unit.hand.time || unit.handRounds == 0) return false;
    const std::optional<Spot> target = Target(unit);
    if (!target) return false;
    if (habits.careful && unit.stance > Prone && unit.time >= unit.hand.time + StanceTime * unit.stance)
        TakeStance(Prone);
    // Under another fire mode than his own he may strike at the air, which costs nothing.
    const int time = unit.time;
    ActOn(target->x, target->y);
    return !IsCurrent(unit) || unit.time < time;
}

bool SquadPlayer::MayWalk(const Unit& unit) {
    const std::optional<Spot> danger = Danger(unit);
    const int goingDown = habits.careful ? 2 * StanceTime : 0;
    const int kept = habits.shotsKept * unit.hand.time + goingDown;
    const Stance stance = danger ? habits.inContact : habits.marching;
    if (unit.time - StepCosts[stance].time < kept) return false;
    if (!danger) return !habits.careful || KeepsUp(unit);
    return !NearestSeen(unit,
                        [this, &unit](Spot cell) { return DistanceBetween(unit, cell) <= habits.closest; });
}

// Whether the unit isn't too far before its section, none of which is wounded.
bool SquadPlayer::KeepsUp(const Unit& unit) {
    const WayMap& way = WayOf(unit);
    const int first = curUnit / SectionSize * SectionSize;
    std::vector<int> steps;
    for (int i = first; i < first + SectionSize; ++i) {
        if (UnitTable[i].status == Wounded) return false;
        if (UnitTable[i].status == Active)
            steps.push_back(way.StepsFrom(UnitTable[i].cellX, UnitTable[i].cellY));
    }
    const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
    std::nth_element(steps.begin(), middle, steps.end());
    return way.StepsFrom(unit.cellX, unit.cellY) > *middle - AheadAtMost;
}

// False when the unit could neither turn nor step.
bool SquadPlayer::StepOnce(const Unit& unit) {
    const int facing = WayOf(unit).BestStep(unit);
    if (facing < 0) return false;
    const int time = unit.time;
    TurnAndStep(unit, facing);
    return IsCurrent(unit) && unit.time < time;
}

void SquadPlayer::TurnAndStep(const Unit& unit, int facing) {
    if (unit.facing != facing) {
        TurnOrStepTo(static_cast<Facing>(facing));
        if (!IsCurrent(unit)) return;
        Observe();
    }
    TurnOrStepTo(static_cast<Facing>(facing));
    if (IsCurrent(unit)) Observe();
}

// To the enemy who concerns the current unit, else to where its section searches.
const WayMap& SquadPlayer::WayOf(const Unit& unit) {
    Section& section = sections[static_cast<std::size_t>(curUnit / SectionSize)];
    std::optional<Spot> goal = Danger(unit);
    if (!goal && section.goal && search.IsUnsearched(*section.goal, turn)) goal = section.goal;
    if (!goal) goal = search.NearestUnsearched(unit, turn);
    if (!goal) goal = PlaceOf(unit);
    if (!section.goal || section.goal->x != goal->x || section.goal->y != goal->y) {
        section.goal = goal;
        section.way.emplace(goal->x, goal->y);
    }
    return *section.way;
}
