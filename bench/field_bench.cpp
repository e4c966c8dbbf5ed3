// A look and a path search on the game's own map, each beside the library that the field uses for the like.
#include <benchmark/benchmark.h>
#include <libtcod/libtcod.hpp>

#include <random>
#include <vector>

#include "field/geometry.h"
#include "field/path_search.h"
#include "field/sight.h"
#include "field/sightings.h"
#include "platform/headless_host.h"
#include "state/setup.h"
#include "state/state.h"

namespace {

struct Place {
    int x;
    int y;
};

// Cells that a unit can stand on, the same for every run.
std::vector<Place> Standings(int count) {
    std::mt19937 generator(5);
    std::vector<Place> places;
    while (static_cast<int>(places.size()) < count) {
        const int x = 1 + static_cast<int>(generator() % (FieldWidth - 1));
        const int y = 1 + static_cast<int>(generator() % (FieldHeight - 1));
        if (CellFreeToStep(x, y)) places.push_back({x, y});
    }
    return places;
}

TCODMap PeerMap() {
    TCODMap map(FieldWidth, FieldHeight);
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            map.setProperties(x, y, CellOpen("view", x, y), CellFreeToStep(x, y));
    return map;
}

constexpr int SightRadius = 26;  // cells, as far as our fan reaches

// A whole look as the game does it: the enemies on the way are noted, the window is told.
void Look(benchmark::State& state) {
    Main(1);
    const std::vector<Place> places = Standings(64);
    Unit& looker = UnitTable[0];
    curUnit = 0;
    std::size_t i = 0;
    for (auto _ : state) {
        looker.cellX = places[i % places.size()].x;
        looker.cellY = places[i % places.size()].y;
        looker.facing = static_cast<int>(i % FacingCount);
        UnitLookEnemies();
        ++i;
    }
}
BENCHMARK(Look);

void PeerFieldOfView(benchmark::State& state) {
    Main(1);
    TCODMap map = PeerMap();
    const std::vector<Place> places = Standings(64);
    std::size_t i = 0;
    for (auto _ : state) {
        const Place& from = places[i++ % places.size()];
        map.computeFov(from.x, from.y, SightRadius, true, static_cast<TCOD_fov_algorithm_t>(state.range(0)));
    }
}
BENCHMARK(PeerFieldOfView)->ArgName("algorithm")->DenseRange(FOV_BASIC, FOV_SYMMETRIC_SHADOWCAST);

// The same walks for both: every pair that a path joins.
std::vector<std::pair<Place, Place>> Walks() {
    std::vector<std::pair<Place, Place>> walks;
    const std::vector<Place> places = Standings(200);
    TCODMap map = PeerMap();
    TCODPath path(&map, 1.0F);
    for (std::size_t i = 0; i + 1 < places.size(); i += 2)
        if (path.compute(places[i].x, places[i].y, places[i + 1].x, places[i + 1].y))
            walks.emplace_back(places[i], places[i + 1]);
    return walks;
}

void Search(benchmark::State& state) {
    Main(1);
    const auto walks = Walks();
    std::size_t i = 0;
    for (auto _ : state) {
        const auto& [from, to] = walks[i++ % walks.size()];
        benchmark::DoNotOptimize(SearchPath(from.x, from.y, to.x, to.y, 250, [] { TheHost().PumpEvents(); }));
    }
    state.SetLabel(std::to_string(walks.size()) + " walks");
}
BENCHMARK(Search);

void PeerAStar(benchmark::State& state) {
    Main(1);
    const auto walks = Walks();
    TCODMap map = PeerMap();
    TCODPath path(&map, 1.0F);
    std::size_t i = 0;
    for (auto _ : state) {
        const auto& [from, to] = walks[i++ % walks.size()];
        benchmark::DoNotOptimize(path.compute(from.x, from.y, to.x, to.y));
    }
}
BENCHMARK(PeerAStar);

}  // namespace
