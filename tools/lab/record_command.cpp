// Writes a recording's lines anew.
#include <cstdlib>

#include "platform/files.h"
#include "tools/arguments.h"
#include "tools/game_copy.h"
#include "tools/lab/commands.h"
#include "tools/lab/remake.h"
#include "tools/whole_file.h"

int RecordFile(const Words& words) {
    const Arguments given(words, {"--game"}, {}, 1);
    const std::string name = given.Plain()[0];
    const Recording recording = ReadRecording(name);
    const GameCopy copy(given.Text("--game", GAME_FOLDER));
    SetProgramFolder(copy.Path());
    std::string text = RecordingHead(recording.seed) + "\n";
    for (const std::string& line : RemakeLines(recording))
        text += line + "\n";
    WriteWholeFile(name, text);
    return EXIT_SUCCESS;
}
