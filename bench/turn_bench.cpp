// How long the computer's turn and whole missions take without a window.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <memory>
#include <vector>

#include "bench/stage.h"
#include "mission/setup.h"
#include "tools/player/orders.h"
#include "tools/player/scripted_player.h"
#include "view/start.h"

namespace {

// Ends the squad's turn again and again over the same state, up to its next one.
void PlayComputerTurns(benchmark::State& state) {
    const auto begun = std::make_unique<GameState>(game);  // too large for the stack
    for (auto _ : state) {
        state.PauseTiming();
        game = *begun;
        state.ResumeTiming();
        EndTurn();
    }
}

// The computer's team as `count` copies of its first soldier, in rows of five from (left, top) on.
void EnlistEnemies(int count, int left, int top) {
    constexpr int RowLength = 5;
    const int first = FirstOf(EnemyTeam);
    for (int i = 0; i < count; ++i) {
        UnitTable[first + i] = UnitTable[first];
        PutUnit(first + i, {left + i % RowLength, top + i / RowLength}, West);
    }
    teamLast[EnemyTeam] = count - 1;
}

// Each iteration puts the whole state back, which takes longer than the turn.
void ByTeamSize(benchmark::internal::Benchmark* turns) {
    constexpr int Iterations = 200;
    turns->Arg(1)->Arg(3)->Arg(10)->Arg(20)->Iterations(Iterations)->Unit(benchmark::kMicrosecond);
}

// Far from the squad, without sight of it: they walk.
void ComputerTurnOnTheMarch(benchmark::State& state) {
    StartGame();
    ClearGround(50, 20, 24, 10);
    EnlistEnemies(static_cast<int>(state.range(0)), 60, 22);
    PlayComputerTurns(state);
}
BENCHMARK(ComputerTurnOnTheMarch)->Apply(ByTeamSize);

// Eight cells before the squad's first soldier: they fire.
void ComputerTurnInAFight(benchmark::State& state) {
    StartGame();
    ClearGround(30, 20, 30, 10);
    PutUnit(0, {40, 24}, East);
    EnlistEnemies(static_cast<int>(state.range(0)), 48, 22);
    PlayComputerTurns(state);
}
BENCHMARK(ComputerTurnInAFight)->Apply(ByTeamSize);

// From the new game to the verdict, a new seed each time; its median is the counter.
void PlayMissions(benchmark::State& state, void (*begin)(std::uint32_t seed), const Habits* habits) {
    constexpr int Turns = 60;
    std::vector<double> times;
    std::uint32_t seed = 0;
    LookAway();
    for (auto _ : state) {
        const std::clock_t start = std::clock();
        begin(++seed);
        PlayMission(Turns, habits);
        times.push_back(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2),
                     times.end());
    state.counters["median"] = times[times.size() / 2];
}

void MissionOfTheSimplePlayer(benchmark::State& state) {
    PlayMissions(state, BeginGame, nullptr);
}
BENCHMARK(MissionOfTheSimplePlayer)->Iterations(100)->Unit(benchmark::kMillisecond);

void MissionOfTheSensiblePlayer(benchmark::State& state) {
    PlayMissions(state, BeginGame, HabitsNamed("sensible"));
}
BENCHMARK(MissionOfTheSensiblePlayer)->Iterations(100)->Unit(benchmark::kMillisecond);

void ShownMissionOfTheSimplePlayer(benchmark::State& state) {
    PlayMissions(state, Main, nullptr);
}
BENCHMARK(ShownMissionOfTheSimplePlayer)->Iterations(100)->Unit(benchmark::kMillisecond);

}  // namespace
