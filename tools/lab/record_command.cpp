// Rewrites a recording's lines.
#include <cstdlib>
#include <memory>

#include "platform/files.h"
#include "tools/game_copy.h"
#include "tools/lab/commands.h"
#include "tools/lab/remake.h"
#include "tools/whole_file.h"

namespace {

struct RecordOptions {
    std::filesystem::path file;
    std::filesystem::path game = GAME_FOLDER;
};

int RewriteRecording(const RecordOptions& options) {
    const Recording recording = ReadRecording(options.file);
    const GameCopy copy(options.game);
    SetProgramFolder(copy.Path());
    std::string text = RecordingHead(recording.seed) + "\n";
    for (const std::string& line : RemakeLines(recording))
        text += line + "\n";
    WriteWholeFile(options.file, text);
    return EXIT_SUCCESS;
}

}  // namespace

Work AddRecord(CLI::App& command) {
    const auto options = std::make_shared<RecordOptions>();
    AddFile(command, "FILE", options->file, "the recording");
    AddGame(command, options->game);
    return [options] { return RewriteRecording(*options); };
}
