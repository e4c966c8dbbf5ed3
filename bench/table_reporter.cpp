#include "bench/table_reporter.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ostream>

namespace {

struct Operation {
    const char* benchmark;
    const char* text;
    const char* peerBenchmark = "";
    const char* peerText = "";
};

constexpr Operation Operations[] = {
    {"Look", "a look: the fan of 27 rays from 64 places, every facing", "PeerFieldOfView/algorithm:2",
     "its fastest field of view at the fan's radius of 26 cells (shadow casting)"},
    {"LookOfAUnit",
     "a unit's look in a mission's first turn, which mostly finds nobody within its fan's reach"},
    {"Search", "the path search of a walk, with the event pump after each wave", "PeerAStar",
     "its A* over the same walks"},
    {"SingleShotOver40Cells", "a bullet's flight over 40 cells"},
    {"FullAutoOver40Cells", "full auto over 40 cells, as long as the time lasts"},
    {"ShotgunBlast", "a shotgun blast, 30 pellets"},
    {"Grenade", "a grenade from a launcher, with its blast and crater"},
    {"ComputerTurnOnTheMarch/3", "the computer's turn, three units on the march"},
    {"ComputerTurnInAFight/3", "the computer's turn, three units in a fight at 8 cells"},
    {"RepaintCell", "one cell repainted, with the mini map"},
    {"PaintUnitFrame", "one frame of a soldier (a step is twenty)"},
    {"PaintWholeMap", "painting the whole map, 3,496 cells"},
    {"MiniMapCell", "one cell of the mini map"},
    {"MiniMapOfWholeField", "the whole mini map"},
    {"NewGameQuiet", "a new game: files, map, landing, first selection"},
    {"NewGameShown", "the same with its windows painted"},
    {"MissionOfTheSimplePlayer", "a mission from the new game to the verdict, simple player, median of 100"},
    {"ShownMissionOfTheSimplePlayer", "the same with its windows painted"},
    {"MissionOfTheSensiblePlayer", "a mission of the sensible player (most of it is his thinking)"},
};

struct Growth {
    const char* benchmark;
    const char* heading;
    const char* unit;
    std::array<int, 5> arguments;  // 0 at the end: none
};

constexpr Growth Growths[] = {
    {"LookByFill", "a look, by walls on the field", "%", {0, 10, 20, 30, 40}},
    {"SearchByFill", "a path search, by walls on the field", "%", {0, 10, 20, 30, 40}},
    {"PeerAStarByFill", "the peer's A* over the same walks", "%", {0, 10, 20, 30, 40}},
    {"ComputerTurnOnTheMarch", "the computer's turn on the march, by units", "", {1, 3, 10, 20}},
    {"ComputerTurnInAFight", "the computer's turn in a fight, by units", "", {1, 3, 10, 20}},
    {"BurstByLength", "a burst over 40 cells, by rounds", "", {1, 2, 4, 8, 16}},
};

// Two digits that count, in the unit that suits.
std::string TimeText(double seconds) {
    struct Unit {
        double size;
        const char* name;
    };
    constexpr Unit Units[] = {{1e-3, "ms"}, {1e-6, "µs"}, {1e-9, "ns"}};
    const Unit* unit = Units;
    while (seconds < unit->size && unit->size > 1e-9)
        ++unit;
    const double amount = seconds / unit->size;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), amount < 10 ? "%.1f %s" : "%.0f %s", amount, unit->name);
    return text.data();
}

}  // namespace

bool TableReporter::ReportContext(const Context& /*context*/) {
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.error_occurred) {
            GetErrorStream() << run.benchmark_name() << ": " << run.error_message << "\n";
            std::exit(EXIT_FAILURE);
        }
        std::string name = run.run_name.function_name;
        if (!run.run_name.args.empty()) name += "/" + run.run_name.args;
        const auto median = run.counters.find("median");
        seconds[name] = median != run.counters.end()
                            ? median->second.value
                            : run.cpu_accumulated_time / static_cast<double>(run.iterations);
    }
}

void TableReporter::Finalize() {
    const auto time = [this](const std::string& benchmark) {
        const auto found = seconds.find(benchmark);
        return found == seconds.end() ? std::string() : TimeText(found->second);
    };
    std::ostream& out = GetOutputStream();
    out << "| Operation | Time | Peer | Peer's time |\n|---|---|---|---|\n";
    for (const Operation& row : Operations)
        out << "| " << row.text << " | " << time(row.benchmark) << " | " << row.peerText << " | "
            << time(row.peerBenchmark) << " |\n";
    for (const Growth& growth : Growths) {
        std::string heads = "\n| " + std::string(growth.heading) + " |";
        std::string line = "|---|";
        std::string times = "| |";
        for (const int argument : growth.arguments) {
            const std::string found = time(std::string(growth.benchmark) + "/" + std::to_string(argument));
            if (found.empty()) continue;
            heads += " " + std::to_string(argument) + growth.unit + " |";
            line += "---|";
            times += " " + found + " |";
        }
        out << heads << "\n" << line << "\n" << times << "\n";
    }
}
