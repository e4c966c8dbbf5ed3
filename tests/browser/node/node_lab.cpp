// What the laboratory does with recordings and whole missions, in WebAssembly under node.
// Usage: node_lab GAME_FOLDER replay RECORDING...     exit code 1 where one goes another way
//        node_lab GAME_FOLDER missions FIRST LAST     plays them, and shows how each ended and what time it
//        took
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <vector>

#include "mission/setup.h"
#include "platform/files.h"
#include "platform/quiet_host.h"
#include "state/quiet_audience.h"
#include "state/state.h"
#include "tools/game_copy.h"
#include "tools/lab/replay.h"
#include "tools/player/scripted_player.h"

namespace {

int ReplayAll(const std::filesystem::path& game, const std::vector<std::string>& files) {
    int failed = 0;
    for (const std::string& file : files) {
        const GameCopy copy(game);
        SetProgramFolder(copy.Path());
        const ReplayResult result = ReplayHeadless(ReadRecording(file));
        const bool isSame = result.difference.empty();
        std::printf("%s: %zu events, %s\n", file.c_str(), result.events,
                    isSame ? "all as recorded" : ("another way at " + result.difference).c_str());
        if (!isSame) ++failed;
    }
    return failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

void PlayOne(std::uint32_t seed) {
    constexpr int MostTurns = 40;
    const QuietHost host;
    try {
        BeginGame(seed);
        PlayMission(MostTurns);
    } catch (const ProcessEnded&) {
    }
    std::printf("%u %s in turn %d\n", static_cast<unsigned>(seed), missionVerdict.c_str(),
                static_cast<int>(squadTurns));
}

int PlayAll(const std::filesystem::path& game, std::uint32_t first, std::uint32_t last) {
    using Clock = std::chrono::steady_clock;
    const GameCopy copy(game);
    SetProgramFolder(copy.Path());
    QuietAudience nobody;
    InstallAudience(&nobody);
    const Clock::time_point start = Clock::now();
    for (std::uint32_t seed = first; seed <= last; ++seed)
        PlayOne(seed);
    const std::chrono::duration<double, std::milli> time = Clock::now() - start;
    std::fprintf(stderr, "%.1f ms a mission\n", time.count() / (last - first + 1));
    return EXIT_SUCCESS;
}

}  // namespace

int main(int count, char** arguments) {
    const std::vector<std::string> words(arguments + 1, arguments + count);
    try {
        if (words.size() > 2 && words[1] == "replay")
            return ReplayAll(words[0], {words.begin() + 2, words.end()});
        if (words.size() == 4 && words[1] == "missions")
            return PlayAll(words[0], static_cast<std::uint32_t>(std::stoul(words[2])),
                           static_cast<std::uint32_t>(std::stoul(words[3])));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "node_lab: %s\n", error.what());
        return EXIT_FAILURE;
    }
    std::fputs("usage: node_lab GAME_FOLDER replay RECORDING... | missions FIRST LAST\n", stderr);
    return 2;
}
