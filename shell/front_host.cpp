#include "shell/front_host.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds PlayBackPause(150);  // between events, so that a watcher can follow
constexpr milliseconds FilmFrameTime(33);   // the longest between two looks at a film

}  // namespace

FrontHost::FrontHost(Form& mainForm, EventSink dispatchRoutine)
    : main(mainForm), dispatch(std::move(dispatchRoutine)) {
    InstallHost(this);
}

FrontHost::~FrontHost() {
    InstallHost(nullptr);
}

void FrontHost::Enter(const std::function<void()>& piece) {
    if (failed) return;
    ++entered;
    try {
        piece();
    } catch (const std::exception& error) {
        Fail(error.what());
    }
    if (--entered == 0) Screen();
    Sync();
    if (InnermostPump() == 0) TakeLate();
}

void FrontHost::PlayBack(Source source, EventSink toWhom) {
    playBack = std::move(source);
    meanwhile = std::move(toWhom);
    BeginPace(PlayBackPause);
}

void FrontHost::Hasten() {
    hastens = true;
    BeginPace(milliseconds(0));
    if (companion != nullptr && companion->TheScreening() != nullptr) companion->TheScreening()->Skip();
}

void FrontHost::StopPlayBack() {
    playBack = nullptr;
    meanwhile = nullptr;
    if (hastens && companion != nullptr) companion->ForgetUnseen();
    hastens = false;
    EndPace();
}

void FrontHost::LetInAtPace() {
    if (InnermostPump() != 0) return;
    if (companion != nullptr && companion->TheScreening() != nullptr) return;
    if (companion != nullptr && !hastens && companion->ShowsAct()) return;
    do
        LetIn();
    while (hastens && InnermostPump() == 0);
}

// The source may end the playing back.
void FrontHost::LetIn() {
    if (companion != nullptr && companion->TheScreening() != nullptr) return;
    const bool lasts = !hastens && (InnermostPump() == 0 || InnermostPump() == modalPump);
    if (playBack) Enter([this, lasts, source = playBack] { source(InnermostPump(), lasts); });
    TakeLate();
}

void FrontHost::TakeLate() {
    for (const InputEvent& event : std::exchange(late, {}))
        Receive(event);
}

void FrontHost::Receive(const InputEvent& event) {
    if (failed) return;
    if (playBack) {
        if (meanwhile) meanwhile(event);
        return;
    }
    if (refreshing) return late.push_back(event);
    if (SkipsFilm(event) || slips.Swallows(event, Now()) || !MayEnter(event)) return;
    slips.Enters(event);
    Enter([&] { dispatch(event); });
    if (event.kind == EventKind::CloseRequest && event.control == main.name) EndProcess(EXIT_SUCCESS);
}

bool FrontHost::MayEnter(const InputEvent& event) {
    if (asking) return false;
    if (!asker) return true;
    asking = true;
    const bool may = asker(event);
    asking = false;
    return may;
}

void FrontHost::Accompany(Companion& whoGoesAlong) {
    companion = &whoGoesAlong;
    companion->FilmTurns();
    // Not while a game is played again unseen, on a host of its own.
    companion->SoundThrough([this](const SoundRequest& sound) {
        if (&TheHost() == this) Emit(sound);
    });
}

// While a film is shown, keys and presses only end it; neither does the second press of the double click that
// let it begin, nor is the second one of the double click that ended it for the game.
bool FrontHost::SkipsFilm(const InputEvent& event) {
    constexpr milliseconds Pause(400);
    if (companion == nullptr || event.kind == EventKind::CloseRequest) return false;
    const bool presses = IsDeed(event);
    Screening* const screening = companion->TheScreening();
    if (screening == nullptr) return presses && steady_clock::now() - skipped < Pause;
    if (presses && steady_clock::now() - screening->Begun() > Pause) {
        screening->Skip();
        skipped = steady_clock::now();
    }
    return true;
}

void FrontHost::Screen() {
    const auto play = [this](const SoundRequest& sound) { Play(sound); };
    if (!IsFilming() || !companion->BeginScreening(play)) return;
    Screening& screening = *companion->TheScreening();
    if (hastens) screening.Skip();
    for (Moment now = steady_clock::now(); screening.Advance(now); now = steady_clock::now()) {
        ShowScreening(screening, now);
        HandleEventsUntil(std::min(screening.Next(now), now + FilmFrameTime));
    }
    EndScreening();
    companion->EndScreening();
}

void FrontHost::Sync() {
    NoteHandOver();
    if (!IsFilming() && !hastens) ShowWindows();
}

// The last shot of a soldier who hands over is seen before the view goes to the next one.
void FrontHost::NoteHandOver() {
    constexpr milliseconds Rest(600);
    const std::optional<Slips::HandOver> before = slips.LastHandOver();
    slips.Note(Now());
    const std::optional<Slips::HandOver>& handOver = slips.LastHandOver();
    if (!handOver || (before && before->when == handOver->when)) return;
    if (companion == nullptr || IsFilming() || hastens) return;
    if (!companion->ShowsAct() || ShowsWantedView()) return;
    SleepUntil(steady_clock::now() + Rest);
    slips.SeeHandOver(Now());
}

void FrontHost::Refresh(Control& control) {
    NoteHandOver();
    if (hastens) return;
    if (IsFilming()) return companion->Shoot({});
    refreshing = true;
    ShowNow(*control.form);
    refreshing = false;
}

void FrontHost::PumpEvents() {
    const Pumping pumping(*this);
    Sync();
    LetIn();
    if (!IsFilming() && !hastens) HandleEvents();
}

void FrontHost::Wait(std::chrono::nanoseconds time, bool pump) {
    if (hastens && pump) PumpEvents();
    if (hastens) return;
    if (IsFilming()) return WaitInFilm(time, pump);
    const Moment end = EndOfWait(time);
    if (pump) {
        const Pumping pumping(*this);
        Sync();
        LetIn();
        HandleEvents();
        HandleEventsUntil(end);
    }
    SleepUntil(end);
}

// The rules don't wait; what is seen meanwhile is shown later.
void FrontHost::WaitInFilm(std::chrono::nanoseconds time, bool pump) {
    companion->Shoot(time);
    if (pump) PumpEvents();
}

void FrontHost::ShowModal(Form& form) {
    const bool outermost = BeginModal(form);
    Sync();
    const Pumping pumping(*this);
    const int outer = std::exchange(modalPump, InnermostPump());
    while (form.Visible) {
        LetIn();
        // The pace may be what led here; it doesn't go on within itself.
        if (playBack && !hastens)
            HandleEventsUntil(steady_clock::now() + PlayBackPause);
        else if (!hastens)
            AwaitEvent();
    }
    modalPump = outer;
    Sync();
    if (outermost) EndModal(form);
}

void FrontHost::ShowMessage(const std::string& text) {
    if (atMessage) atMessage();
    const bool isOver = !missionVerdict.empty();
    if (companion != nullptr && isOver) companion->Settle();
    Screen();
    Sync();
    if (companion != nullptr && isOver) companion->SoundVerdict();
    if (isOver) RestOnLastSight();
    if (atVerdict && !playBack && isOver) atVerdict();
    ShowText(text);
}

// The shot that decided the mission is seen before a window lies over it.
void FrontHost::RestOnLastSight() {
    constexpr milliseconds Rest(1200);
    if (companion != nullptr && !hastens && companion->ShowsEffects()) SleepUntil(steady_clock::now() + Rest);
}

void FrontHost::Emit(const SoundRequest& sound) {
    if (hastens) return;
    const SoundRequest take = takes.Of(sound);
    IsFilming() ? companion->Keep(take) : Play(take);
}

void FrontHost::Fail(const std::string& text) {
    failed = true;
    std::fprintf(stderr, "%s: %s\n", GameName, text.c_str());
    ShowError(text);
    EndProcess(EXIT_FAILURE);
}
