// The game: it takes no arguments and reads no settings.
#include "data/campaign_files.h"
#include "desktop/game_window.h"
#include "platform/files.h"
#include "platform/game_folders.h"
#include "view/events.h"
#include "view/start.h"

namespace {

void Begin() {
    const GameFolders folders = FoldersOf(OwnFolder());
    SetProgramFolder(folders.program, folders.players);
    KeepStore();
    Main();
}

}  // namespace

int main(int /*count*/, char** arguments) {
    return RunInWindow(arguments, {.begin = Begin, .dispatch = Dispatch});
}
