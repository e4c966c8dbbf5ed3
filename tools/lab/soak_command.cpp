// Soaking many seeds in several processes at once, so that an end of one of them harms no other.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <map>
#include <sstream>
#include <thread>

#include "platform/files.h"
#include "tools/arguments.h"
#include "tools/game_copy.h"
#include "tools/json_text.h"
#include "tools/lab/commands.h"
#include "tools/lab/soak.h"
#include "tools/whole_file.h"

namespace fs = std::filesystem;

namespace {

struct Plan {
    SeedRange seeds;
    int events;
    std::uint32_t jobs;
    std::string recordings;  // folder, empty for none
    std::string game;
    bool json;
};

struct Totals {
    std::uint64_t missions = 0;
    std::uint64_t events = 0;
    std::map<std::string, int> ends;
    std::vector<SoakedMission> faults;
};

Plan ReadPlan(const Words& words) {
    const Arguments given(words, {"--seeds", "--events", "--jobs", "--record", "--game"}, {"--json"});
    return {.seeds = given.Seeds("--seeds", {1, 100}),
            .events = static_cast<int>(given.Number("--events", 600, 1, 1'000'000)),
            .jobs = given.Number("--jobs", 1, 1, 64),
            .recordings = given.Text("--record", ""),
            .game = given.Text("--game", GAME_FOLDER),
            .json = given.Has("--json")};
}

// A mission as a line between processes: seed, events, end, fault, parted by tabs.
void Tell(std::FILE* to, const SoakedMission& mission) {
    std::fprintf(to, "%u\t%d\t%s\t%s\n", mission.seed, mission.events, mission.end.c_str(),
                 mission.fault.c_str());
    std::fflush(to);
}

SoakedMission MissionFrom(const std::string& line) {
    std::istringstream text(line);
    std::string seed;
    std::string events;
    SoakedMission mission;
    std::getline(text, seed, '\t');
    std::getline(text, events, '\t');
    std::getline(text, mission.end, '\t');
    std::getline(text, mission.fault);
    mission.seed = static_cast<std::uint32_t>(std::stoul(seed));
    mission.events = std::stoi(events);
    return mission;
}

// Ends a process whose mission hangs, which is then told as the mission's fault.
constexpr unsigned MissionSeconds = 600;

// One process: every seed of its own, told before ("begin") and after.
void Work(const Plan& plan, std::uint32_t job, std::FILE* to) {
    const GameCopy copy(plan.game);
    SetProgramFolder(copy.Path());
    const fs::path store = copy.Path() / "dat/apc.dat";
    const std::string stock = ReadWholeFile("\\dat\\apc.dat");
    // Every mission begins with the same store, as its recording does.
    const auto soak = [&](std::uint32_t seed, const fs::path& recording = {}) {
        WriteWholeFile(store, stock);
        return Soak(seed, plan.events, recording);
    };
    for (std::uint64_t seed = std::uint64_t{plan.seeds.first} + job; seed <= plan.seeds.last;
         seed += plan.jobs) {
        const auto number = static_cast<std::uint32_t>(seed);
        std::fprintf(to, "begin %u\n", number);
        std::fflush(to);
        alarm(MissionSeconds);
        const SoakedMission mission = soak(number);
        if (!mission.fault.empty() && !plan.recordings.empty())
            soak(number, fs::path(plan.recordings) / (std::to_string(number) + ".rec"));
        Tell(to, mission);
    }
}

struct Worker {
    pid_t process = 0;
    std::FILE* from = nullptr;
};

Worker Start(const Plan& plan, std::uint32_t job) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t process = fork();
    if (process < 0) throw std::runtime_error("no process");
    if (process == 0) {
        close(ends[0]);
        Work(plan, job, fdopen(ends[1], "w"));
        std::_Exit(EXIT_SUCCESS);
    }
    close(ends[1]);
    return {process, fdopen(ends[0], "r")};
}

void Count(Totals& totals, const SoakedMission& mission) {
    ++totals.missions;
    totals.events += static_cast<std::uint64_t>(mission.events);
    ++totals.ends[mission.fault.empty() ? mission.end : "out of order"];
    if (!mission.fault.empty()) totals.faults.push_back(mission);
}

// Reads a worker's lines to their end. A process that died in a mission is that mission's fault.
void Collect(const Worker& worker, Totals& totals) {
    std::uint32_t running = 0;
    char* line = nullptr;
    std::size_t size = 0;
    bool inMission = false;
    while (getline(&line, &size, worker.from) > 0) {
        std::string text(line);
        text.pop_back();
        inMission = text.starts_with("begin ");
        if (inMission)
            running = static_cast<std::uint32_t>(std::stoul(text.substr(6)));
        else
            Count(totals, MissionFrom(text));
    }
    std::free(line);
    std::fclose(worker.from);
    int status = 0;
    waitpid(worker.process, &status, 0);
    if (inMission || status != 0)
        Count(totals, {running, 0, "", "its process died, status " + std::to_string(status)});
}

// All at once: a worker that nobody reads would wait for ever when its pipe is full.
Totals CollectAll(const std::vector<Worker>& workers) {
    std::vector<Totals> parts(workers.size());
    std::vector<std::thread> readers;
    for (std::size_t i = 0; i < workers.size(); ++i)
        readers.emplace_back([&workers, &parts, i] { Collect(workers[i], parts[i]); });
    for (std::thread& reader : readers)
        reader.join();
    Totals totals;
    for (const Totals& part : parts) {
        totals.missions += part.missions;
        totals.events += part.events;
        for (const auto& [end, count] : part.ends)
            totals.ends[end] += count;
        totals.faults.insert(totals.faults.end(), part.faults.begin(), part.faults.end());
    }
    return totals;
}

void PrintJson(const Totals& totals) {
    std::cout << "{\"missions\": " << totals.missions << ", \"events\": " << totals.events << ", \"ends\": {";
    const char* comma = "";
    for (const auto& [end, count] : totals.ends) {
        std::cout << comma << JsonQuoted(end) << ": " << count;
        comma = ", ";
    }
    std::cout << "}, \"faults\": [";
    comma = "";
    for (const SoakedMission& mission : totals.faults) {
        std::cout << comma << "{\"seed\": " << mission.seed << ", \"events\": " << mission.events
                  << ", \"fault\": " << JsonQuoted(mission.fault) << "}";
        comma = ", ";
    }
    std::cout << "]}\n";
}

void PrintTable(const Totals& totals) {
    std::cout << totals.missions << " missions, " << totals.events << " events\n";
    for (const auto& [end, count] : totals.ends)
        std::cout << "  " << count << "\t" << end << "\n";
    for (const SoakedMission& mission : totals.faults)
        std::cout << "seed " << mission.seed << ", event " << mission.events << ": " << mission.fault << "\n";
}

}  // namespace

int SoakSeeds(const Words& words) {
    const Plan plan = ReadPlan(words);
    std::vector<Worker> workers;
    for (std::uint32_t job = 0; job < plan.jobs; ++job)
        workers.push_back(Start(plan, job));
    Totals totals = CollectAll(workers);
    std::sort(totals.faults.begin(), totals.faults.end(),
              [](const SoakedMission& a, const SoakedMission& b) { return a.seed < b.seed; });
    plan.json ? PrintJson(totals) : PrintTable(totals);
    return totals.faults.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
