// Soaking one seed after the other. scripts/soak.sh gives every seed a process of its own, so that the end of
// one of them harms no other.
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>

#include "platform/files.h"
#include "tools/game_copy.h"
#include "tools/json_text.h"
#include "tools/lab/commands.h"
#include "tools/lab/soak.h"
#include "tools/whole_file.h"

namespace fs = std::filesystem;

namespace {

struct SoakOptions {
    SeedRange seeds{1, 100};
    int events = 600;
    bool json = false;
    fs::path recordings;  // folder, empty for none
    fs::path game = GAME_FOLDER;
};

struct Totals {
    std::uint64_t missions = 0;
    std::uint64_t events = 0;
    std::map<std::string, int> ends;
    std::vector<SoakedMission> faults;
};

std::string EndOf(const SoakedMission& mission) {
    return mission.fault.empty() ? mission.end : "out of order";
}

void Count(Totals& totals, const SoakedMission& mission) {
    ++totals.missions;
    totals.events += static_cast<std::uint64_t>(mission.events);
    ++totals.ends[EndOf(mission)];
    if (!mission.fault.empty()) totals.faults.push_back(mission);
}

// At once: the next mission may end the process.
void PrintLine(const SoakedMission& mission) {
    std::cout << "seed " << mission.seed << ", event " << mission.events << ": " << EndOf(mission);
    if (!mission.fault.empty()) std::cout << ": " << mission.fault;
    std::cout << std::endl;
}

void PrintJson(const Totals& totals) {
    auto faults = nlohmann::ordered_json::array();
    for (const SoakedMission& mission : totals.faults)
        faults.push_back({{"seed", mission.seed}, {"events", mission.events}, {"fault", mission.fault}});
    std::cout << JsonText({{"missions", totals.missions},
                           {"events", totals.events},
                           {"ends", totals.ends},
                           {"faults", faults}});
}

int SoakSeeds(const SoakOptions& options) {
    const GameCopy copy(options.game);
    SetProgramFolder(copy.Path());
    const std::string stock = ReadWholeFile("\\dat\\apc.dat");
    // Every mission begins with the same store, as its recording does.
    const auto soak = [&](std::uint32_t seed, const fs::path& recording = {}) {
        WriteWholeFile(copy.Path() / "dat/apc.dat", stock);
        return Soak(seed, options.events, recording);
    };
    Totals totals;
    for (std::uint64_t seed = options.seeds.first; seed <= options.seeds.last; ++seed) {
        const SoakedMission mission = soak(static_cast<std::uint32_t>(seed));
        if (!mission.fault.empty() && !options.recordings.empty())
            soak(mission.seed, options.recordings / (std::to_string(seed) + ".rec"));
        Count(totals, mission);
        if (!options.json) PrintLine(mission);
    }
    if (options.json) PrintJson(totals);
    return totals.faults.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

Work AddSoak(CLI::App& command) {
    const auto options = std::make_shared<SoakOptions>();
    AddSeeds(command, options->seeds);
    command.add_option("--events", options->events, "the squad leaves the field after so many")
        ->type_name("N")
        ->check(Within(1, 1'000'000))
        ->capture_default_str();
    command.add_flag("--json", options->json, "for programs: the totals, and the missions out of order");
    command.add_option("--record", options->recordings, "a mission out of order is recorded there")
        ->type_name("FOLDER")
        ->check(CLI::ExistingDirectory.description(""));
    AddGame(command, options->game);
    return [options] { return SoakSeeds(*options); };
}
