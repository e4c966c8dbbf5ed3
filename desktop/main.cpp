// The game. With "--watch FILE" it plays a recording back.
#include <filesystem>
#include <string_view>

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

void Begin(Session& session, const std::filesystem::path& recording) {
    const GameFolders folders = FoldersOf(OwnFolder());
    SetProgramFolder(folders.program, folders.players);
    if (!recording.empty()) return session.WatchRecording(recording, folders.program);
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

int main(int count, char** arguments) {
    const bool watches = count == 3 && arguments[1] == std::string_view("--watch");
    const std::filesystem::path recording = watches ? std::filesystem::absolute(arguments[2]) : "";
    Companion companion;
    const auto ask = [&companion](const std::string& text) {
        companion.ForgetUnseen();
        return AskToContinue(text);
    };
    Session session(ask, [&](Watching& watching) {
        ShowPlayedBack(watching, companion, watches ? AfterWatching::ProcessEnds : AfterWatching::PlayGoesOn);
    });
    return RunInWindow(arguments, {.begin = [&] { Begin(session, recording); },
                                   .dispatch = [&](const InputEvent& event) { session.Dispatch(event); },
                                   .atEnd = [&](int exitCode) { return session.AtEnd(exitCode); },
                                   .atMessage = [&] { session.NoteEnd(); },
                                   .atVerdict = [&] { Debrief(companion, session); },
                                   .companion = &companion});
}
