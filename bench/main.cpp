// Benchmarks of the game without a window, on a copy of the built game's own data.
#include <benchmark/benchmark.h>

#include <cstring>

#include "bench/table_reporter.h"
#include "platform/files.h"
#include "platform/headless_host.h"
#include "tools/game_copy.h"
#include "view/events.h"

/// With --table the results come as the tables of docs/performance.md; other arguments are the library's.
int main(int argc, char** argv) {
    const GameCopy copy(GAME_FOLDER);
    SetProgramFolder(copy.Path());
    const HeadlessHost host(Dispatch);
    const bool table = argc > 1 && std::strcmp(argv[1], "--table") == 0;
    if (table) {
        --argc;
        ++argv;
    }
    benchmark::Initialize(&argc, argv);
    TableReporter tables;
    benchmark::RunSpecifiedBenchmarks(table ? &tables : nullptr);
}
