// The game: it takes no arguments and reads no settings.
#include "data/campaign_files.h"
#include "desktop/debriefing_window.h"
#include "desktop/game_window.h"
#include "platform/files.h"
#include "platform/game_folders.h"
#include "shell/companion.h"
#include "shell/debriefing.h"
#include "shell/session.h"
#include "view/start.h"

namespace {

void Begin(Session& session) {
    const GameFolders folders = FoldersOf(OwnFolder());
    SetProgramFolder(folders.program, folders.players);
    KeepStore();
    session.Begin(TimerSeed());
}

void Debrief(const Companion& companion, const Session& session) {
    SaveRecording save;
    if (session.HasRecording())
        save = [&session](const std::filesystem::path& file) { return session.SaveRecording(file); };
    ShowDebriefing(PageOf(DebriefingOf(companion.TheChronicle())), save);
}

}  // namespace

int main(int /*count*/, char** arguments) {
    Companion companion;
    Session session(AskToContinue, [&](Watching& watching) { ShowPlayedBack(watching, companion); });
    return RunInWindow(arguments, {.begin = [&] { Begin(session); },
                                   .dispatch = [&](const InputEvent& event) { session.Dispatch(event); },
                                   .atEnd = [&](int exitCode) { return session.AtEnd(exitCode); },
                                   .atMessage = [&] { session.NoteEnd(); },
                                   .atVerdict = [&] { Debrief(companion, session); },
                                   .companion = &companion});
}
