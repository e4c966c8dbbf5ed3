// The game. With "--watch FILE" it plays a recording back.
#include "data/campaign_files.h"
#include "desktop/arguments.h"
#include "desktop/debriefing_window.h"
#include "desktop/game_window.h"
#include "desktop/question_box.h"
#include "platform/files.h"
#include "platform/game_folders.h"
#include "platform/host.h"
#include "platform/run_time_error.h"
#include "shell/companion.h"
#include "shell/debriefing.h"
#include "shell/playing_back.h"
#include "shell/questions.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "view/start.h"

namespace {

void FindFolders() {
    const GameFolders folders = FoldersOf(OwnFolder());
    SetProgramFolder(folders.program, folders.players);
}

// Before there is a window. A player without a folder learns of it when the game begins.
std::string LoadSettings(SettingsFile& settings) {
    try {
        FindFolders();
    } catch (const RunTimeError&) {
        return {};
    }
    return settings.Load();
}

void Begin(Session& session, const std::string& trouble, const std::filesystem::path& watched) {
    FindFolders();
    if (!watched.empty()) return session.WatchRecording(watched, FoldersOf(OwnFolder()).program);
    KeepStore();
    if (!trouble.empty()) TheHost().ShowMessage(trouble);
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
    const Arguments given = ReadArguments(count, arguments);
    if (given.exitCode) return *given.exitCode;
    SettingsFile settings;
    const std::string trouble = LoadSettings(settings);
    Companion companion;
    const AfterWatching after =
        given.watched.empty() ? AfterWatching::PlayGoesOn : AfterWatching::ProcessEnds;
    const auto ask = [&companion](const std::string& text) {
        companion.ForgetUnseen();
        return AskToContinue(text);
    };
    Session session(ask, [&](Watching& watching) { ShowPlayedBack(watching, companion, after); });
    const Questions questions(settings, session, AskInBox);
    const auto dispatch = [&](const InputEvent& event) {
        companion.Pass(event, [&] { session.Dispatch(event); });
    };
    return RunInWindow(arguments,
                       {.begin = [&] { Begin(session, trouble, given.watched); },
                        .dispatch = dispatch,
                        .atEnd = [&](int exitCode) { return session.AtEnd(exitCode); },
                        .atMessage = [&] { session.NoteEnd(); },
                        .atVerdict = [&] { Debrief(companion, session); },
                        .companion = &companion,
                        .mayEnter = [&](const InputEvent& event) { return questions.LetsIn(event); },
                        .settings = &settings});
}
