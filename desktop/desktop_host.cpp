#include "desktop/desktop_host.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <thread>
#include <utility>

#include <QApplication>
#include <QMessageBox>

#include "desktop/squad_window.h"
#include "shell/own_sounds.h"

namespace {

using std::chrono::steady_clock;

constexpr const char* GameName = "Sarnoth III";
constexpr QLatin1String ScreenInMemory("offscreen");     // the toolkit's name of it
constexpr std::chrono::milliseconds PlayBackPause(150);  // between events, so that a watcher can follow
constexpr std::chrono::seconds QuietTime(10);  // an open sound device costs processor time also in silence

void ShowBox(QMessageBox::Icon icon, const std::string& text) {
    QMessageBox box(icon, QString::fromUtf8(GameName), QString::fromStdString(text), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

// Handles events until `end`, but for the last part of a millisecond, which is below what a timer counts.
void HandleEventsUntil(steady_clock::time_point end) {
    QTimer alarm;
    alarm.setTimerType(Qt::PreciseTimer);
    alarm.setSingleShot(true);
    for (;;) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - steady_clock::now());
        if (left.count() <= 0) return;
        alarm.start(left);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

}  // namespace

DesktopHost::DesktopHost(Form& mainForm, const std::vector<Form*>& otherForms, EventSink dispatchRoutine)
    : dispatch(std::move(dispatchRoutine)),
      mainWindow(mainForm, nullptr, [this](const InputEvent& event) { Receive(event); }),
      forms(otherForms) {
    playBackPace.callOnTimeout([this] { LetInAtPace(); });
    quiet.setSingleShot(true);
    quiet.setInterval(QuietTime);
    QObject::connect(&quiet, &QTimer::timeout, &quiet, [this] { CloseQuietDevice(); });
    InstallHost(this);
}

DesktopHost::~DesktopHost() {
    InstallHost(nullptr);
}

void DesktopHost::Enter(const std::function<void()>& piece) {
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

void DesktopHost::PlayBack(Source source, EventSink toWhom) {
    playBack = std::move(source);
    meanwhile = std::move(toWhom);
    playBackPace.start(PlayBackPause);
}

void DesktopHost::Hasten() {
    hastens = true;
    playBackPace.start(0);
    if (companion != nullptr && companion->TheScreening() != nullptr) companion->TheScreening()->Skip();
}

void DesktopHost::StopPlayBack() {
    playBack = nullptr;
    meanwhile = nullptr;
    if (hastens && companion != nullptr) companion->ForgetUnseen();
    hastens = false;
    playBackPace.stop();
}

void DesktopHost::LetInAtPace() {
    if (InnermostPump() != 0) return;
    if (companion != nullptr && companion->TheScreening() != nullptr) return;
    if (companion != nullptr && !hastens && companion->ShowsAct()) return;
    do
        LetIn();
    while (hastens && InnermostPump() == 0);
}

// The source may end the playing back.
void DesktopHost::LetIn() {
    if (companion != nullptr && companion->TheScreening() != nullptr) return;
    const bool lasts = !hastens && (InnermostPump() == 0 || InnermostPump() == modalPump);
    if (playBack) Enter([this, lasts, source = playBack] { source(InnermostPump(), lasts); });
    TakeLate();
}

void DesktopHost::TakeLate() {
    for (const InputEvent& event : std::exchange(late, {}))
        Receive(event);
}

void DesktopHost::Receive(const InputEvent& event) {
    if (failed) return;
    if (playBack) {
        if (meanwhile) meanwhile(event);
        return;
    }
    if (refreshing) return late.push_back(event);
    if (SkipsFilm(event) || slips.Swallows(event, Now()) || !MayEnter(event)) return;
    slips.Enters(event);
    Enter([&] { dispatch(event); });
    if (event.kind == EventKind::CloseRequest && event.control == mainWindow.Shown().name)
        EndProcess(EXIT_SUCCESS);
}

bool DesktopHost::MayEnter(const InputEvent& event) {
    if (asking) return false;
    if (!asker) return true;
    asking = true;
    const bool may = asker(event);
    asking = false;
    return may;
}

FormWindow& DesktopHost::WindowOf(Form& form) {
    if (&form == &mainWindow.Shown()) return mainWindow;
    for (FormWindow* window : otherWindows)
        if (&window->Shown() == &form) return *window;
    otherWindows.push_back(
        new FormWindow(form, &mainWindow, [this](const InputEvent& event) { Receive(event); }));
    return *otherWindows.back();
}

void DesktopHost::Accompany(Companion& whoGoesAlong) {
    companion = &whoGoesAlong;
    companionView = std::make_unique<CompanionView>(mainWindow, whoGoesAlong);
    // Not while a game is played again unseen, on a host of its own.
    companion->SoundThrough([this](const SoundRequest& sound) {
        if (&TheHost() == this) Emit(sound);
    });
    squadWindow =
        new SquadWindow(mainWindow, whoGoesAlong, [this](const InputEvent& event) { Receive(event); });
}

// While a film is shown, keys and presses only end it; neither does the second press of the double click that
// let it begin, nor is the second one of the double click that ended it for the game.
bool DesktopHost::SkipsFilm(const InputEvent& event) {
    constexpr std::chrono::milliseconds Pause(400);
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

void DesktopHost::Screen() {
    if (companionView)
        companionView->Screen(
            HandleEventsUntil, [this](const SoundRequest& sound) { Play(sound); }, hastens);
}

void DesktopHost::Sync() {
    NoteHandOver();
    if (IsFilming() || hastens) return;
    mainWindow.Sync();
    for (Form* form : forms)
        if (form->Visible) WindowOf(*form);
    for (FormWindow* window : otherWindows)
        window->Sync();
    if (companionView) companionView->Sync();
    if (squadWindow != nullptr) squadWindow->Sync();
    if (companion != nullptr) SoundValley();
}

// The last shot of a soldier who hands over is seen before the view goes to the next one.
void DesktopHost::NoteHandOver() {
    constexpr std::chrono::milliseconds Rest(600);
    const std::optional<Slips::HandOver> before = slips.LastHandOver();
    slips.Note(Now());
    const std::optional<Slips::HandOver>& handOver = slips.LastHandOver();
    if (!handOver || (before && before->when == handOver->when)) return;
    if (!companionView || IsFilming() || hastens) return;
    if (!companion->ShowsAct() || companionView->IsInView()) return;
    companionView->SleepUntil(steady_clock::now() + Rest);
    slips.SeeHandOver(Now());
}

void DesktopHost::Refresh(Control& control) {
    NoteHandOver();
    if (hastens) return;
    if (IsFilming()) return companion->Shoot({});
    FormWindow& window = WindowOf(*control.form);
    window.Sync();
    if (companionView) companionView->Sync();
    refreshing = true;
    window.PaintNow();
    refreshing = false;
}

void DesktopHost::PumpEvents() {
    const Pumping pumping(*this);
    Sync();
    LetIn();
    if (!IsFilming() && !hastens) QCoreApplication::processEvents();
}

void DesktopHost::Wait(std::chrono::nanoseconds time, bool pump) {
    if (hastens && pump) PumpEvents();
    if (hastens) return;
    if (IsFilming()) return WaitInFilm(time, pump);
    const auto end = steady_clock::now() + time;
    if (pump) {
        const Pumping pumping(*this);
        Sync();
        LetIn();
        QCoreApplication::processEvents();
        HandleEventsUntil(end);
    }
    if (companionView)
        companionView->SleepUntil(end);
    else
        std::this_thread::sleep_until(end);
}

// The rules don't wait; what is seen meanwhile is shown later.
void DesktopHost::WaitInFilm(std::chrono::nanoseconds time, bool pump) {
    companion->Shoot(time);
    if (pump) PumpEvents();
}

void DesktopHost::ShowModal(Form& form) {
    FormWindow& window = WindowOf(form);
    const bool outermost = !window.isModal();
    if (outermost) {
        window.hide();  // a window takes its modality when it is shown
        window.setWindowModality(Qt::WindowModal);
    }
    Sync();
    const Pumping pumping(*this);
    const int outer = std::exchange(modalPump, InnermostPump());
    while (form.Visible) {
        LetIn();
        // The timer of the pace may be what led here; it doesn't tick within its own tick.
        if (playBack && !hastens)
            HandleEventsUntil(steady_clock::now() + PlayBackPause);
        else if (!hastens)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    modalPump = outer;
    Sync();
    if (outermost) window.setWindowModality(Qt::NonModal);
}

void DesktopHost::ShowMessage(const std::string& text) {
    if (atMessage) atMessage();
    if (companion != nullptr && !missionVerdict.empty()) companion->Settle();
    Screen();
    Sync();
    if (companion != nullptr && !missionVerdict.empty()) companion->SoundVerdict();
    if (!missionVerdict.empty()) RestOnLastSight();
    if (atVerdict && !playBack && !missionVerdict.empty()) atVerdict();
    ShowBox(QMessageBox::Information, text);
}

// The shot that decided the mission is seen before a window lies over it.
void DesktopHost::RestOnLastSight() {
    constexpr std::chrono::milliseconds Rest(1200);
    if (companionView && !hastens && companion->ShowsEffects())
        companionView->SleepUntil(steady_clock::now() + Rest);
}

void DesktopHost::Emit(const SoundRequest& sound) {
    if (hastens) return;
    const SoundRequest take = takes.Of(sound);
    IsFilming() ? companion->Keep(take) : Play(take);
}

void DesktopHost::Play(const SoundRequest& sound) {
    sound.slot < FirstOwnSlot ? soundDevice.Play(sound) : soundDevice.PlayIfSound(sound);
    quiet.start();
}

void DesktopHost::SoundValley() {
    soundDevice.SetAmbience(companion->AmbienceNow());
    if (soundDevice.IsOpen() && !quiet.isActive()) quiet.start();
}

// With the device gone, the valley looks for another one when it is next shown.
void DesktopHost::CloseQuietDevice() {
    if (soundDevice.Idle())
        soundDevice.Close();
    else if (soundDevice.IsOpen())
        quiet.start();
}

void DesktopHost::EndProcess(int exitCode) {
    soundDevice.Close();
    if (atEnd) exitCode = atEnd(exitCode);
    std::fflush(nullptr);
    std::_Exit(exitCode);
}

void DesktopHost::Fail(const std::string& text) {
    failed = true;
    std::fprintf(stderr, "%s: %s\n", GameName, text.c_str());
    // Nobody sits before a screen in memory to answer a box.
    if (QGuiApplication::platformName() != ScreenInMemory) ShowBox(QMessageBox::Critical, text);
    EndProcess(EXIT_FAILURE);
}
