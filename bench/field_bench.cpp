// A look and a path search on the game's own map, each beside the library that the field uses for the like.
#include <benchmark/benchmark.h>
#include <libtcod/libtcod.hpp>

#include <utility>
#include <vector>

#include "bench/stage.h"
#include "field/geometry.h"
#include "field/path_search.h"
#include "field/sight.h"
#include "field/sightings.h"
#include "platform/headless_host.h"
#include "state/state.h"

namespace {

TCODMap PeerMap() {
    TCODMap map(FieldWidth, FieldHeight);
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            map.setProperties(x, y, CellOpen("view", x, y), CellFreeToStep(x, y));
    return map;
}

constexpr int SightRadius = 26;  // cells, as far as our fan reaches

// Calls `look` from 64 places in turn, every facing.
template <typename LookFrom>
void LookAround(benchmark::State& state, LookFrom look) {
    const std::vector<Spot> places = Standings(64);
    std::size_t i = 0;
    for (auto _ : state) {
        look(places[i % places.size()], static_cast<int>(i % FacingCount));
        ++i;
    }
}

void CastFanFrom(Spot place, int facing) {
    int cells = 0;
    CastFan(facing, place.x, place.y, [&cells](int x, int y) {
        ++cells;
        return InField(x, y) && LetsViewThrough(cellGrid[y][x]);
    });
    benchmark::DoNotOptimize(cells);
}

void Look(benchmark::State& state) {
    StartGame();
    LookAround(state, CastFanFrom);
}
BENCHMARK(Look);

// Most looks find nobody within reach whom they could sight, and cast no fan.
void LookOfAUnit(benchmark::State& state) {
    StartGame();
    curUnit = 0;
    LookAround(state, [](Spot place, int facing) {
        UnitTable[0].cellX = place.x;
        UnitTable[0].cellY = place.y;
        UnitTable[0].facing = facing;
        UnitLookEnemies();
    });
}
BENCHMARK(LookOfAUnit);

void LookByFill(benchmark::State& state) {
    StartGame();
    WallOff(static_cast<int>(state.range(0)));
    LookAround(state, CastFanFrom);
}
BENCHMARK(LookByFill)->DenseRange(0, 40, 10);

void PeerFieldOfView(benchmark::State& state) {
    StartGame();
    TCODMap map = PeerMap();
    const std::vector<Spot> places = Standings(64);
    std::size_t i = 0;
    for (auto _ : state) {
        const Spot& from = places[i++ % places.size()];
        map.computeFov(from.x, from.y, SightRadius, true, static_cast<TCOD_fov_algorithm_t>(state.range(0)));
    }
}
BENCHMARK(PeerFieldOfView)->ArgName("algorithm")->DenseRange(FOV_BASIC, FOV_SYMMETRIC_SHADOWCAST);

// The same walks for both: every pair that a path joins.
std::vector<std::pair<Spot, Spot>> Walks() {
    std::vector<std::pair<Spot, Spot>> walks;
    const std::vector<Spot> places = Standings(200);
    TCODMap map = PeerMap();
    TCODPath path(&map, 1.0F);
    for (std::size_t i = 0; i + 1 < places.size(); i += 2)
        if (path.compute(places[i].x, places[i].y, places[i + 1].x, places[i + 1].y))
            walks.emplace_back(places[i], places[i + 1]);
    return walks;
}

void SearchWalks(benchmark::State& state) {
    const auto walks = Walks();
    std::size_t i = 0;
    for (auto _ : state) {
        const auto& [from, to] = walks[i++ % walks.size()];
        benchmark::DoNotOptimize(SearchPath(from.x, from.y, to.x, to.y, 250, [] { TheHost().PumpEvents(); }));
    }
}

void PeerSearchWalks(benchmark::State& state) {
    const auto walks = Walks();
    TCODMap map = PeerMap();
    TCODPath path(&map, 1.0F);
    std::size_t i = 0;
    for (auto _ : state) {
        const auto& [from, to] = walks[i++ % walks.size()];
        benchmark::DoNotOptimize(path.compute(from.x, from.y, to.x, to.y));
    }
}

void Search(benchmark::State& state) {
    StartGame();
    SearchWalks(state);
}
BENCHMARK(Search);

void PeerAStar(benchmark::State& state) {
    StartGame();
    PeerSearchWalks(state);
}
BENCHMARK(PeerAStar);

void SearchByFill(benchmark::State& state) {
    StartGame();
    WallOff(static_cast<int>(state.range(0)));
    SearchWalks(state);
}
BENCHMARK(SearchByFill)->DenseRange(0, 40, 10);

void PeerAStarByFill(benchmark::State& state) {
    StartGame();
    WallOff(static_cast<int>(state.range(0)));
    PeerSearchWalks(state);
}
BENCHMARK(PeerAStarByFill)->DenseRange(0, 40, 10);

}  // namespace
