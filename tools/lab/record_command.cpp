// Writes a recording's lines anew.
#include <cstdlib>
#include <fstream>

#include "platform/files.h"
#include "tools/game_copy.h"
#include "tools/lab/arguments.h"
#include "tools/lab/commands.h"
#include "tools/lab/remake.h"
#include "tools/usage_error.h"

namespace lab {

int RecordFile(const Words& words) {
    const Arguments given(words, {"--game"}, {}, 1);
    const std::string name = given.Plain()[0];
    const Recording recording = ReadRecording(name);
    const GameCopy copy(given.Text("--game", GAME_FOLDER));
    SetProgramFolder(copy.Path());
    const std::vector<std::string> lines = RemakeLines(recording);
    std::ofstream file(name);
    file << RecordingHead(recording.seed) << "\n";
    for (const std::string& line : lines)
        file << line << "\n";
    if (!file.flush()) throw UsageError("can't write " + name);
    return EXIT_SUCCESS;
}

}  // namespace lab
