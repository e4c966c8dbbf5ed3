// The commands that show a window.
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>

#include "desktop/game_window.h"
#include "personal/personal_file.h"
#include "platform/files.h"
#include "platform/host.h"
#include "tools/arguments.h"
#include "tools/game_copy.h"
#include "tools/lab/commands.h"
#include "tools/lab/recorder.h"
#include "tools/lab/replay.h"
#include "view/events.h"
#include "view/mini_map.h"
#include "view/start.h"

namespace {

void Tell(const ReplayResult& result) {
    if (result.difference.empty())
        std::cout << result.events << " events replayed, all as recorded\n";
    else
        std::cout << "it went another way at " << result.difference << "\n";
}

// The process ends where it is, so no destructor does it.
std::function<int(int exitCode)> Removing(const GameCopy& copy) {
    return [&copy](int exitCode) {
        copy.RemoveAll();
        return exitCode;
    };
}

int ReplayInWindow(const Recording& recording, const std::string& pictures, const GameCopy& copy,
                   char** arguments) {
    Replay replay(recording, pictures);
    bool byTheGame = true;
    const auto playBack = [&](int pump) {
        replay.LetIn(pump);
        if (pump != 0 || !replay.Done()) return;
        byTheGame = false;
        TheHost().EndProcess(EXIT_SUCCESS);
    };
    const auto atEnd = [&](int exitCode) {
        if (byTheGame) replay.Ended(exitCode);
        Tell(replay.Result());
        copy.RemoveAll();
        return replay.Result().difference.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
    };
    return RunInWindow(arguments, {.begin = [&replay] { replay.Start(); },
                                   .dispatch = [](const InputEvent&) {},
                                   .playBack = playBack,
                                   .atEnd = atEnd});
}

}  // namespace

int PlayInWindow(const Words& words, char** arguments) {
    const Arguments given(words, {"--seed", "--record", "--game"}, {}, 0);
    const GameCopy copy(given.Text("--game", GAME_FOLDER));
    const std::uint32_t seed = given.Number("--seed", 1);
    std::ofstream file;
    Recorder::Sink sink;
    if (given.Has("--record")) {
        file.open(given.Text("--record", ""));
        if (!file) throw UsageError("can't write " + given.Text("--record", ""));
        file << RecordingHead(seed) << std::endl;
        // The process may end at any line.
        sink = [&file](const std::string& line) { file << line << std::endl; };
    }
    Recorder recorder(sink);
    SetProgramFolder(copy.Path());
    return RunInWindow(arguments, {.begin = [&] { recorder.Start(seed); },
                                   .dispatch = [&](const InputEvent& event) { recorder.Dispatch(event); },
                                   .atEnd = Removing(copy)});
}

int ReplayFile(const Words& words, char** arguments) {
    const Arguments given(words, {"--game", "--pictures"}, {"--window"}, 1);
    const std::string pictures = given.Text("--pictures", "");
    const Recording recording = ReadRecording(given.Plain()[0]);
    const GameCopy copy(given.Text("--game", GAME_FOLDER));
    SetProgramFolder(copy.Path());
    if (given.Has("--window")) return ReplayInWindow(recording, pictures, copy, arguments);
    const ReplayResult result = ReplayHeadless(recording, pictures);
    Tell(result);
    return result.difference.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

int PaintShot(const Words& words, char** arguments) {
    const Arguments given(words, {"--seed", "--window", "--game"}, {}, 1);
    const GameCopy copy(given.Text("--game", GAME_FOLDER));
    const std::string window = given.Text("--window", "field");
    if (window != "field" && window != "info" && window != "map")
        throw UsageError("no window \"" + window + "\"");
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const std::uint32_t seed = given.Number("--seed", 1);
    const auto begin = [&] {
        Main(seed);
        if (window == "info") LoadInfo();
        if (window == "map") ToggleBigMap();
        const bool saved = SaveWindow(window == "info" ? "frmInfo" : "frmField", given.Plain()[0]);
        if (!saved) std::cerr << "sarnoth-lab: can't write " << given.Plain()[0] << "\n";
        TheHost().EndProcess(saved ? EXIT_SUCCESS : EXIT_FAILURE);
    };
    SetProgramFolder(copy.Path());
    return RunInWindow(arguments, {.begin = begin, .dispatch = Dispatch, .atEnd = Removing(copy)});
}
