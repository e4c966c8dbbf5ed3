#include "shell/act_forecast.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "combat/families.h"
#include "combat/tools.h"
#include "data/mode_words.h"
#include "data/terrain.h"
#include "field/geometry.h"
#include "field/walking.h"
#include "mission/orders.h"
#include "state/chance.h"

namespace {

constexpr std::uint32_t OddsSeed = 20'011;  // any one will do
constexpr int MostOrders = 600;
constexpr int FewestOrders = 250;
constexpr int FlightsCounted = 4000;  // so that the odds of a long burst take no longer than others

enum class Manner { Fires, Strikes, Cures, Digs, Folds };

Manner MannerOf(std::string_view family, const std::string& mode) {
    if (family == "cure") return Manner::Cures;
    if (family == "hit") return Manner::Strikes;
    if (family != "dig") return Manner::Fires;
    if (mode == HitMode) return Manner::Strikes;
    return mode == DigMode || mode == FillMode ? Manner::Digs : Manner::Folds;
}

float AsPixel(int pixel) {
    return static_cast<float>(pixel);
}

int CellsBetween(const Unit& unit, int cellX, int cellY) {
    return std::max(std::abs(unit.cellX - cellX), std::abs(unit.cellY - cellY));
}

int KnownOccupant(int cellX, int cellY) {
    const int occupant = cellGrid[cellY][cellX].occupant;
    return occupant >= 0 && occupant < FightingUnits ? occupant : -1;
}

// Whether a flight from where the last one began ends before the cell for want of reach, if it doesn't
// scatter.
bool FallsShort(const Unit& unit, int x, int y) {
    const int dx = x - muzzleX;
    const int dy = y - muzzleY;
    const int major = std::max(std::abs(dx), std::abs(dy));
    const int horizon = unit.hand.range * CellSize;
    if (horizon >= major) return false;
    const int endX = muzzleX + dx * horizon / major;
    const int endY = muzzleY + dy * horizon / major;
    return CellOfPixel(endX) != CellOfPixel(x) || CellOfPixel(endY) != CellOfPixel(y);
}

std::string NameOfHeld(const Unit& unit) {
    return unit.hand.title.empty() ? unit.hand.name : unit.hand.title;
}

// Everything that tells why: the unit before the order, and what the order came to with its own time.
struct Case {
    const Unit& before;
    const Unit& after;
    const Trial& own;
    int turnTime;
    int cellX;
    int cellY;
};

Refusal WhyNotFired(const Case& order, const ActForecast& act, bool fallsShort) {
    const Unit& before = order.before;
    const int each = before.hand.time;
    const bool isOwn = order.cellX == before.cellX && order.cellY == before.cellY;
    if (order.own.flights == 0) {
        if (before.hand.durab < 1) return {Why::WornOut, 0, 0, NameOfHeld(before)};
        if (before.time - order.turnTime < each) return {Why::ActTime, order.turnTime + each, before.time};
        return {Why::NoRounds, order.own.time};
    }
    if (isOwn) return {Why::OwnCell};
    if (fallsShort) return {Why::BeyondReach, act.distance, act.range, NameOfHeld(before)};
    if (act.paid >= act.rounds) return {};
    const bool byTime = order.after.time < each;
    return {byTime ? Why::TimeForRounds : Why::RoundsForRounds, act.rounds, act.paid};
}

Refusal WhyNotReached(const Case& order, const ActForecast& act, bool reachesItself) {
    if (act.distance > 1) return {Why::ArmsLength};
    if (act.distance == 0 && !reachesItself) return {Why::OwnCell};
    if (cellGrid[order.cellY][order.cellX].occupant == -1) return {Why::NobodyThere};
    return {Why::ArmsCorner, LastColumnInReach, LastRowInReach};
}

Refusal WhyNotDug(const Case& order, const Cell& before) {
    const Unit& unit = order.before;
    const Cell& after = cellGrid[unit.cellY][unit.cellX];
    if (after.durab != before.durab) return {};
    if (before.tileY != Surface && before.tileY != Trenches) {
        const char* const ground = TerrainName(before.tileY);
        return {Why::GroundIsHard, 0, 0, ground == nullptr ? "" : ground};
    }
    return {before.durab == 0 ? Why::DeepEnough : Why::FullEnough};
}

// For what is done at arm's length.
Refusal WhyNotDone(const Case& order, const ActForecast& act, Manner manner, const Cell& ground) {
    if (manner == Manner::Folds) return {};
    if (order.before.time < act.time) return {Why::ActTime, act.time, order.before.time};
    if (manner == Manner::Digs) return WhyNotDug(order, ground);
    if (manner == Manner::Cures && order.before.handRounds < 1) return {Why::NoRounds, act.time};
    if (order.own.acted) return {};
    return WhyNotReached(order, act, manner == Manner::Cures);
}

int RoundsIn(const Trial& trial, std::string_view family) {
    return trial.flights / FamilyNamed(family).pellets;
}

// With time and rounds for all that the mode fires.
Trial TryWhole(Rehearsal& rehearsal, int x, int y) {
    constexpr int EnoughRounds = 100;
    return rehearsal.Try(
        [x, y] {
            Unit& unit = UnitTable[curUnit];
            unit.handRounds = EnoughRounds;
            unit.hand.durab = EnoughRounds;
            ActAt(AsPixel(x), AsPixel(y));
        },
        Purse::Plenty);
}

// Who of the squad would lie within three cells by three.
std::vector<Danger> InBlast(int cellX, int cellY) {
    std::vector<Danger> ours;
    for (int unit = 0; unit <= teamLast[SquadTeam]; ++unit)
        if (UnitTable[unit].status != Dead && CellsBetween(UnitTable[unit], cellX, cellY) <= 1)
            ours.push_back({unit, -1});
    return ours;
}

// Sums over the orders.
struct Count {
    int orders = 0;
    int hits = 0;
    int kills = 0;
    int disables = 0;
    int damage = 0;
    std::array<int, TeamStride> ours = {};

    void Add(const Trial& trial, const GameState& before, int target) {
        ++orders;
        if (trial.failed) return;
        for (int unit = 0; unit <= teamLast[SquadTeam]; ++unit)
            ours.at(static_cast<std::size_t>(unit)) += HurtIn(trial, unit) ? 1 : 0;
        if (target < 0) return;
        const Unit& now = UnitTable[target];
        hits += HurtIn(trial, target) ? 1 : 0;
        kills += now.status == Dead ? 1 : 0;
        disables += now.status == Dead || now.status == Immobile ? 1 : 0;
        damage += before.UnitTable[target].health - now.health;
    }

    double Share(int count) const { return static_cast<double>(count) / orders; }

  private:
    static bool HurtIn(const Trial& trial, int unit) {
        return trial.hits.at(static_cast<std::size_t>(unit)) > 0;
    }
};

}  // namespace

ActForecast ForecastAct(Rehearsal& rehearsal, int x, int y) {
    const GameState& was = rehearsal.Before();
    const Unit& before = was.UnitTable[was.curUnit];
    ActForecast act;
    act.family = ActionFamily();
    act.mode = fireModes.Text();
    const int cellX = CellOfPixel(x);
    const int cellY = CellOfPixel(y);
    act.target = KnownOccupant(cellX, cellY);
    act.distance = CellsBetween(before, cellX, cellY);
    const Manner manner = MannerOf(act.family, act.mode);
    const int turnTime = rehearsal.Try([&] { TurnTowards(AsPixel(x), AsPixel(y)); }, Purse::Plenty).time;
    const Trial whole = TryWhole(rehearsal, x, y);
    act.known = !whole.failed;
    act.time = whole.time;
    const bool fires = manner == Manner::Fires;
    const bool fallsShort = fires && FallsShort(before, x, y);
    const Trial own = rehearsal.Try([&] { ActAt(AsPixel(x), AsPixel(y)); });
    const Case order{before, UnitTable[was.curUnit], own, turnTime, cellX, cellY};
    if (fires) {
        act.rounds = RoundsIn(whole, act.family);
        act.paid = RoundsIn(own, act.family);
        act.range = before.hand.range;
        act.blasts =
            FamilyNamed(act.family).atEnd == AtEnd::Bursts || FamilyNamed(act.family).atEnd == AtEnd::IsSet;
        act.refusal = WhyNotFired(order, act, fallsShort);
    } else {
        act.refusal = WhyNotDone(order, act, manner, was.cellGrid[before.cellY][before.cellX]);
    }
    return act;
}

Odds CountOdds(Rehearsal& rehearsal, const ActForecast& act, int x, int y) {
    if (act.rounds > 0 && act.paid == 0) return {};
    const int flights = std::max(1, act.paid * FamilyNamed(act.family).pellets);
    const int orders = std::clamp(FlightsCounted / flights, FewestOrders, MostOrders);
    Count count;
    SeedRandom(OddsSeed);
    while (count.orders < orders)
        count.Add(rehearsal.Try([x, y] { ActAt(AsPixel(x), AsPixel(y)); }), rehearsal.Before(), act.target);
    Odds odds{count.Share(count.hits),
              count.Share(count.kills),
              count.Share(count.disables),
              count.Share(count.damage),
              {}};
    if (FamilyNamed(act.family).atEnd == AtEnd::IsSet) odds.ours = InBlast(CellOfPixel(x), CellOfPixel(y));
    for (int unit = 0; unit <= teamLast[SquadTeam]; ++unit) {
        const int hurt = count.ours.at(static_cast<std::size_t>(unit));
        if (hurt > 0 && unit != act.target) odds.ours.push_back({unit, count.Share(hurt)});
    }
    return odds;
}
