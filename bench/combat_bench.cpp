// How long fights take without a window.
#include <benchmark/benchmark.h>

#include <string>

#include "bench/stage.h"
#include "combat/actions.h"
#include "combat/fire_modes.h"
#include "combat/things.h"
#include "state/state.h"

namespace {

constexpr Spot Shooter = {10, 24};

// The first soldier alone on open ground with room to the east, with a thing in his hand under a mode of it.
void Prepare(const char* name, const std::string& mode) {
    StartGame();
    ClearGround(0, 0, FieldWidth, FieldHeight);
    curUnit = 0;
    PutUnit(0, Shooter, East);
    Unit& unit = UnitTable[0];
    unit.items[0] = InvItem();
    unit.items[0].name = name;
    unit.items[0].count = 1;
    RefreshHand();
    for (std::size_t i = 0; i < fireModes.offered.size(); ++i)
        if (fireModes.offered[i] == mode) ChooseMode(static_cast<int>(i));
}

void Fire(int cells, int rounds = 200) {
    Unit& unit = UnitTable[0];
    unit.time = 900;
    unit.energy = 900;
    unit.handRounds = rounds;
    unit.hand.durab = 900;
    unit.items[0].roundsMain = unit.items[0].roundsSecond = rounds;
    ActOnTarget(unit.pixelX + cells * CellSize, unit.pixelY + HalfCell);
}

void FullAutoOver40Cells(benchmark::State& state) {
    Prepare("m249", "Full auto");
    for (auto _ : state)
        Fire(40);
}
BENCHMARK(FullAutoOver40Cells)->Unit(benchmark::kMicrosecond);

void SingleShotOver40Cells(benchmark::State& state) {
    Prepare("m249", "Full auto");
    for (auto _ : state)
        Fire(40, 1);
}
BENCHMARK(SingleShotOver40Cells)->Unit(benchmark::kMicrosecond);

void BurstByLength(benchmark::State& state) {
    Prepare("m249", "Full auto");
    for (auto _ : state)
        Fire(40, static_cast<int>(state.range(0)));
}
BENCHMARK(BurstByLength)->RangeMultiplier(2)->Range(1, 16)->Unit(benchmark::kMicrosecond);

void ShotgunBlast(benchmark::State& state) {
    Prepare("spas", "Aimed shot");
    for (auto _ : state)
        Fire(10);
}
BENCHMARK(ShotgunBlast)->Unit(benchmark::kMicrosecond);

void Grenade(benchmark::State& state) {
    Prepare("mm1", "Aimed shot");
    for (auto _ : state)
        Fire(10);
}
BENCHMARK(Grenade)->Unit(benchmark::kMicrosecond);

}  // namespace
