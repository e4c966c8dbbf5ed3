// The commands that show a window.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <memory>

#include "desktop/game_window.h"
#include "personal/personal_file.h"
#include "platform/files.h"
#include "platform/host.h"
#include "shell/companion.h"
#include "tools/game_copy.h"
#include "tools/lab/commands.h"
#include "tools/lab/journal_recording.h"
#include "tools/lab/recorder.h"
#include "tools/lab/replay.h"
#include "view/events.h"
#include "view/mini_map.h"
#include "view/start.h"

namespace fs = std::filesystem;

namespace {

void Tell(const ReplayResult& result) {
    if (result.difference.empty())
        std::cout << result.events << " events replayed, all as recorded\n";
    else
        std::cout << "it went another way at " << result.difference << "\n";
}

// What a journal comes to, for it says nothing of it itself.
void TellEnd(const Recording& recording) {
    const auto isSum = [](const std::string& line) { return line.starts_with("after "); };
    const auto last = std::find_if(recording.lines.rbegin(), recording.lines.rend(), isSum);
    if (last != recording.lines.rend()) std::cout << *last << "\n";
}

// The process ends where it is, so no destructor does it.
std::function<int(int exitCode)> Removing(const GameCopy& copy) {
    return [&copy](int exitCode) {
        copy.RemoveAll();
        return exitCode;
    };
}

// The toolkit takes the name that main had.
int RunWindow(const WindowRun& run) {
    char name[] = "sarnoth-lab";
    char* arguments[] = {name, nullptr};
    return RunInWindow(arguments, run);
}

int ReplayInWindow(const Recording& recording, const fs::path& pictures, const GameCopy& copy) {
    Companion companion;
    Replay replay(recording, companion, pictures);
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
    return RunWindow({.begin = [&replay] { replay.Start(); },
                      .dispatch = [](const InputEvent&) {},
                      .playBack = playBack,
                      .atEnd = atEnd,
                      .companion = &companion});
}

struct PlayOptions {
    std::uint32_t seed = 1;
    fs::path record;  // empty for none
    fs::path game = GAME_FOLDER;
};

int Play(const PlayOptions& options) {
    const GameCopy copy(options.game);
    std::ofstream file;
    Recorder::Sink sink;
    if (!options.record.empty()) {
        file.open(options.record);
        if (!file) throw CLI::ValidationError("--record", "can't write " + options.record.string());
        file << RecordingHead(options.seed) << std::endl;
        // The process may end at any line.
        sink = [&file](const std::string& line) { file << line << std::endl; };
    }
    Recorder recorder(sink);
    SetProgramFolder(copy.Path());
    return RunWindow({.begin = [&] { recorder.Start(options.seed); },
                      .dispatch = [&](const InputEvent& event) { recorder.Dispatch(event); },
                      .atEnd = Removing(copy)});
}

struct ReplayOptions {
    fs::path file;
    bool window = false;
    fs::path pictures;  // empty for none
    fs::path game = GAME_FOLDER;
};

int ReplayFile(const ReplayOptions& options) {
    const GameCopy copy(options.game);
    SetProgramFolder(copy.Path());
    const bool isJournal = IsJournal(options.file);
    const Recording recording =
        isJournal ? RecordingOfJournal(options.file, copy.Path()) : ReadRecording(options.file);
    if (isJournal) TellEnd(recording);
    if (options.window) return ReplayInWindow(recording, options.pictures, copy);
    const ReplayResult result = ReplayHeadless(recording, options.pictures);
    Tell(result);
    return result.difference.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

struct ShotOptions {
    fs::path file;
    std::uint32_t seed = 1;
    std::string window = "field";
    fs::path game = GAME_FOLDER;
};

int PaintShot(const ShotOptions& options) {
    const GameCopy copy(options.game);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const auto begin = [&] {
        Main(options.seed);
        if (options.window == "info") LoadInfo();
        if (options.window == "map") ToggleBigMap();
        const bool saved = SaveWindow(options.window == "info" ? "frmInfo" : "frmField", options.file);
        if (!saved) std::cerr << "sarnoth-lab: can't write " << options.file.string() << "\n";
        TheHost().EndProcess(saved ? EXIT_SUCCESS : EXIT_FAILURE);
    };
    SetProgramFolder(copy.Path());
    return RunWindow({.begin = begin, .dispatch = Dispatch, .atEnd = Removing(copy)});
}

}  // namespace

Work AddPlay(CLI::App& command) {
    const auto options = std::make_shared<PlayOptions>();
    AddSeed(command, options->seed);
    command.add_option("--record", options->record, "writes every event with what it changed into it")
        ->type_name("FILE");
    AddGame(command, options->game);
    return [options] { return Play(*options); };
}

Work AddReplay(CLI::App& command) {
    const auto options = std::make_shared<ReplayOptions>();
    AddFile(command, "FILE", options->file, "the recording, or the journal of a game");
    command.add_flag("--window", options->window, "in a window, to look at");
    command
        .add_option("--pictures", options->pictures,
                    "where the field looks different, its two pictures are painted there as\n"
                    "recorded.png and replayed.png")
        ->type_name("FOLDER");
    AddGame(command, options->game);
    return [options] { return ReplayFile(*options); };
}

Work AddShot(CLI::App& command) {
    const auto options = std::make_shared<ShotOptions>();
    AddFile(command, "FILE.png", options->file, "the picture");
    AddSeed(command, options->seed);
    command.add_option("--window", options->window, "field, info or map")
        ->type_name("NAME")
        ->check(CLI::IsMember({"field", "info", "map"}).description(""))
        ->capture_default_str();
    AddGame(command, options->game);
    return [options] { return PaintShot(*options); };
}
