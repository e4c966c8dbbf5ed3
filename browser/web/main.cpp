// The game on a page.
#include <algorithm>

#include "browser/browser_host.h"
#include "browser/json.h"
#include "browser/page_front.h"
#include "browser/web/wasm_page.h"
#include "data/campaign_files.h"
#include "platform/files.h"
#include "shell/companion.h"
#include "shell/debriefing.h"
#include "shell/playing_back.h"
#include "shell/questions.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "view/field_form.h"
#include "view/forms.h"
#include "view/start.h"

namespace {

constexpr const char* GameFolder = "/game";       // which the page unpacks
constexpr const char* PlayersFolder = "/player";  // which it keeps
constexpr const char* RecordingFile = "/recording.txt";

Resumption AskToContinue(BrowserHost& host, Companion& companion, const std::string& text) {
    companion.ForgetUnseen();
    const PageAnswer answer = host.Ask({.title = "Sarnoth III",
                                        .text = text,
                                        .page = "",
                                        .buttons = {"&Continue", "&Watch it", "&New game"},
                                        .atEscape = 0,
                                        .tick = ""});
    static constexpr Resumption ByButton[] = {Resumption::Continued, Resumption::Watched,
                                              Resumption::NewGame};
    return ByButton[std::min<std::size_t>(answer.button, 2)];
}

Answer AskOnPage(BrowserHost& host, const Question& question) {
    const PageAnswer answer = host.Ask({.title = question.title,
                                        .text = question.text,
                                        .page = "",
                                        .buttons = {question.no, question.yes},
                                        .atEscape = 0,
                                        .tick = question.tick});
    return {answer.button == 1, answer.ticked};
}

// As often as the player saves the recording, the debriefing comes back.
void Debrief(BrowserHost& host, Page& page, const Companion& companion, const Session& session) {
    PageBox box{.title = "Debriefing",
                .text = "",
                .page = PageOf(DebriefingOf(companion.TheChronicle())),
                .buttons = {"Close"},
                .atEscape = 0,
                .tick = ""};
    if (session.HasRecording()) box.buttons.emplace_back("&Save recording...");
    while (host.Ask(box).button == 1) {
        const std::string problem = session.SaveRecording(RecordingFile);
        page.Post(
            JsonObject().Add("is", "download").Add("file", RecordingFile).Add("problem", problem).Text());
    }
}

}  // namespace

int main() {
    WasmPage page;
    SetProgramFolder(GameFolder, PlayersFolder);
    SettingsFile settings;
    const std::string trouble = settings.Load();
    Companion companion;
    BrowserHost* onPage = nullptr;
    Session session(
        [&](const std::string& text) { return AskToContinue(*onPage, companion, text); },
        [&](Watching& watching) { ShowPlayedBack(watching, companion, AfterWatching::PlayGoesOn); });
    const auto dispatch = [&](const InputEvent& event) {
        companion.Pass(event, [&] { session.Dispatch(event); });
    };
    BrowserHost host(frmField, OtherForms(), page, dispatch);
    onPage = &host;
    host.Accompany(companion);
    PageFront front(host, page, companion, settings);
    const Questions questions(settings, session,
                              [&host](const Question& question) { return AskOnPage(host, question); });
    host.AtEnd([&session](int exitCode) { return session.AtEnd(exitCode); });
    host.AtMessage([&session] { session.NoteEnd(); });
    host.AtVerdict([&] { Debrief(host, page, companion, session); });
    host.AskBefore([&questions](const InputEvent& event) { return questions.LetsIn(event); });
    host.Run([&] {
        KeepStore();
        if (!trouble.empty()) host.ShowMessage(trouble);
        session.Begin(TimerSeed());
        front.ShowFirstCard();
    });
}
