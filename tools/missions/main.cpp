// sarnoth-missions: plays whole missions without a window and tells how they ended.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "mission/setup.h"
#include "platform/files.h"
#include "platform/quiet_host.h"
#include "state/quiet_audience.h"
#include "tools/game_copy.h"
#include "tools/missions/heat_map.h"
#include "tools/missions/options.h"
#include "tools/missions/summary.h"
#include "tools/missions/watchdog.h"
#include "tools/player/squad_player.h"
#include "tools/whole_file.h"

namespace {

enum ExitCode { AllEnded, SomeFailed };

using Clock = std::chrono::steady_clock;

void Report(std::uint32_t seed, const std::string& error) {
    std::cerr << "seed " << seed << ": " << error << std::endl;
}

PlayedMission Play(std::uint32_t seed, const MissionOptions& options, const GameCopy& copy) {
    const Watchdog watchdog(std::chrono::seconds(options.limit), [seed, &options, &copy] {
        Report(seed, "the mission hasn't ended after " + std::to_string(options.limit) + " s");
        copy.RemoveAll();
        std::_Exit(SomeFailed);
    });
    const QuietHost host;
    PlayedMission mission;
    mission.seed = seed;
    try {
        BeginGame(seed);
        mission.result = PlayMission(options.turns, HabitsNamed(options.player));
        const std::string& verdict = mission.result.verdict;
        if (std::find(Verdicts.begin(), Verdicts.end(), verdict) == Verdicts.end())
            mission.error = "ended as \"" + verdict + "\"";
    } catch (const ProcessEnded& end) {
        mission.error = "ended with exit code " + std::to_string(end.exitCode);
    } catch (const std::exception& error) {
        mission.error = error.what();
    }
    if (!mission.error.empty()) Report(seed, mission.error);
    return mission;
}

// Prints the log as it is written.
class LogPrinter : public QuietAudience {
  public:
    void LineLogged(const std::string& line) override { std::cout << line << "\n"; }
};

ExitCode PrintLog(const MissionOptions& options, const GameCopy& copy) {
    LogPrinter printer;
    InstallAudience(&printer);
    const PlayedMission mission = Play(*options.log, options, copy);
    return mission.error.empty() ? AllEnded : SomeFailed;
}

void PrintSpeed(std::size_t missions, std::chrono::duration<double> time) {
    std::cerr << missions << " missions in " << time.count() << " s, "
              << static_cast<double>(missions) / time.count() << " a second\n";
}

void Print(const std::vector<PlayedMission>& missions, const MissionOptions& options) {
    if (options.json)
        std::cout << MissionJson(missions);
    else if (options.markdown)
        std::cout << MissionMarkdown(options.player, missions);
    else
        std::cout << MissionTable(missions);
    if (!options.heat.empty()) WriteWholeFile(options.heat, HeatMapSvg(ClassesOfField(), missions));
}

ExitCode PlayAll(const MissionOptions& options, const GameCopy& copy) {
    const Clock::time_point start = Clock::now();
    FallWatch watch;
    InstallAudience(&watch);
    std::vector<PlayedMission> missions;
    for (std::uint64_t seed = options.seeds.first; seed <= options.seeds.last; ++seed) {
        missions.push_back(Play(static_cast<std::uint32_t>(seed), options, copy));
        missions.back().falls = watch.Falls();
    }
    Print(missions, options);
    if (options.time) PrintSpeed(missions.size(), Clock::now() - start);
    const bool ended = std::all_of(missions.begin(), missions.end(),
                                   [](const PlayedMission& mission) { return mission.error.empty(); });
    return ended ? AllEnded : SomeFailed;
}

int PlayMissions(const MissionOptions& options) {
    const GameCopy copy(options.game);
    SetProgramFolder(copy.Path());
    return options.log ? PrintLog(options, copy) : PlayAll(options, copy);
}

Work AddMissions(CLI::App& app) {
    const auto options = std::make_shared<MissionOptions>();
    AddMissionOptions(app, *options);
    return [options] { return PlayMissions(*options); };
}

}  // namespace

int main(int count, char** arguments) {
    CommandLine line(
        "sarnoth-missions",
        "Plays whole missions without a window, one for each seed, and shows how they ended.\n"
        "The same command prints the same bytes. The game folder is only read.",
        "Exit code 0: every mission ended; 1: one didn't, standard error names its seed; 2: a wrong command "
        "line.");
    return line.Follow(count, arguments, AddMissions);
}
