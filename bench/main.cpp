// Benchmarks of the game without a window, on the built game's own data.
#include <benchmark/benchmark.h>

#include "platform/files.h"
#include "platform/headless_host.h"
#include "view/events.h"

int main(int argc, char** argv) {
    SetProgramFolder(GAME_FOLDER);
    const HeadlessHost host(Dispatch);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
