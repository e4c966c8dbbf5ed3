// Records a mission that a player in code plays: for a window or a page to play the same one, or for a look
// at it.
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <stdexcept>

#include "platform/files.h"
#include "platform/headless_host.h"
#include "tools/game_copy.h"
#include "tools/lab/commands.h"
#include "tools/lab/recorder.h"
#include "tools/lab/recording.h"
#include "tools/player/orders.h"
#include "tools/player/scripted_player.h"
#include "tools/player/squad_player.h"

namespace {

struct PlayedOptions {
    std::uint32_t seed = 1;
    std::string player = "simple";
    int turns = 40;
    std::filesystem::path file;
    std::filesystem::path game = GAME_FOLDER;
};

Recorder* running = nullptr;

void GiveToRecorder(const InputEvent& event) {
    running->Dispatch(event);
}

int RecordMission(const PlayedOptions& options) {
    const GameCopy copy(options.game);
    SetProgramFolder(copy.Path());
    std::ofstream file(options.file);
    file << RecordingHead(options.seed) << "\n";
    Recorder recorder([&file](const std::string& line) { file << line << "\n"; });
    const HeadlessHost host(GiveToRecorder);
    running = &recorder;
    SendOrdersTo(GiveToRecorder);
    recorder.Start(options.seed);
    const MissionResult result = PlayMission(options.turns, HabitsNamed(options.player));
    if (!file.flush()) throw std::runtime_error(options.file.string() + ": it can't be written");
    std::cout << result.verdict << ", " << result.turns << " turns, " << recorder.Events() << " events\n";
    return EXIT_SUCCESS;
}

}  // namespace

Work AddMission(CLI::App& command) {
    const auto options = std::make_shared<PlayedOptions>();
    AddFile(command, "FILE", options->file, "the recording to write");
    AddSeed(command, options->seed);
    AddPlayer(command, options->player);
    AddTurns(command, options->turns);
    AddGame(command, options->game);
    return [options] { return RecordMission(*options); };
}
