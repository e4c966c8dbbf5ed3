// The game.
#include "data/campaign_files.h"
#include "desktop/arguments.h"
#include "desktop/game_window.h"
#include "desktop/question_box.h"
#include "platform/files.h"
#include "platform/game_folders.h"
#include "platform/host.h"
#include "platform/run_time_error.h"
#include "shell/companion.h"
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

void Begin(Session& session, const std::string& trouble) {
    FindFolders();
    KeepStore();
    if (!trouble.empty()) TheHost().ShowMessage(trouble);
    session.Begin(TimerSeed());
}

}  // namespace

int main(int count, char** arguments) {
    if (const auto exitCode = AnswerArguments(count, arguments)) return *exitCode;
    SettingsFile settings;
    const std::string trouble = LoadSettings(settings);
    Session session(AskToContinue);
    Companion companion;
    const Questions questions(settings, session, AskInBox);
    const auto dispatch = [&](const InputEvent& event) {
        companion.Pass(event, [&] { session.Dispatch(event); });
    };
    return RunInWindow(arguments,
                       {.begin = [&] { Begin(session, trouble); },
                        .dispatch = dispatch,
                        .atEnd = [&](int exitCode) { return session.AtEnd(exitCode); },
                        .atMessage = [&] { session.NoteEnd(); },
                        .companion = &companion,
                        .mayEnter = [&](const InputEvent& event) { return questions.LetsIn(event); },
                        .settings = &settings});
}
