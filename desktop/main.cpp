// The game: it takes no arguments and reads no settings.
#include "data/campaign_files.h"
#include "desktop/game_window.h"
#include "platform/files.h"
#include "platform/game_folders.h"
#include "shell/companion.h"
#include "shell/session.h"
#include "view/start.h"

namespace {

void Begin(Session& session) {
    const GameFolders folders = FoldersOf(OwnFolder());
    SetProgramFolder(folders.program, folders.players);
    KeepStore();
    session.Begin(TimerSeed());
}

}  // namespace

int main(int /*count*/, char** arguments) {
    Companion companion;
    Session session(AskToContinue);
    const auto dispatch = [&](const InputEvent& event) {
        companion.Pass(event, [&] { session.Dispatch(event); });
    };
    return RunInWindow(arguments, {.begin = [&] { Begin(session); },
                                   .dispatch = dispatch,
                                   .atEnd = [&](int exitCode) { return session.AtEnd(exitCode); },
                                   .atMessage = [&] { session.NoteEnd(); },
                                   .companion = &companion});
}
