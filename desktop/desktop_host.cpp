#include "desktop/desktop_host.h"

#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

#include <QApplication>
#include <QMessageBox>

#include "desktop/squad_window.h"
#include "shell/own_sounds.h"

namespace {

using std::chrono::steady_clock;

constexpr QLatin1String ScreenInMemory("offscreen");  // the toolkit's name of it
constexpr std::chrono::seconds QuietTime(10);  // an open sound device costs processor time also in silence

void ShowBox(QMessageBox::Icon icon, const std::string& text) {
    QMessageBox box(icon, QString::fromUtf8(GameName), QString::fromStdString(text), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

}  // namespace

DesktopHost::DesktopHost(Form& mainForm, const std::vector<Form*>& otherForms, EventSink dispatchRoutine)
    : FrontHost(mainForm, std::move(dispatchRoutine)),
      mainWindow(mainForm, nullptr, [this](const InputEvent& event) { Receive(event); }),
      forms(otherForms) {
    pace.callOnTimeout([this] { LetInAtPace(); });
    quiet.setSingleShot(true);
    quiet.setInterval(QuietTime);
    QObject::connect(&quiet, &QTimer::timeout, &quiet, [this] { CloseQuietDevice(); });
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
    FrontHost::Accompany(whoGoesAlong);
    companionView = std::make_unique<CompanionView>(mainWindow, whoGoesAlong);
    squadWindow =
        new SquadWindow(mainWindow, whoGoesAlong, [this](const InputEvent& event) { Receive(event); });
}

void DesktopHost::ShowWindows() {
    mainWindow.Sync();
    for (Form* form : forms)
        if (form->Visible) WindowOf(*form);
    for (FormWindow* window : otherWindows)
        window->Sync();
    if (companionView) companionView->Sync();
    if (squadWindow != nullptr) squadWindow->Sync();
    if (TheCompanion() != nullptr) SoundValley();
}

void DesktopHost::ShowNow(Form& form) {
    FormWindow& window = WindowOf(form);
    window.Sync();
    if (companionView) companionView->Sync();
    window.PaintNow();
}

void DesktopHost::HandleEvents() {
    QCoreApplication::processEvents();
}

void DesktopHost::AwaitEvent() {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// But for the last part of a millisecond, which is below what a timer counts.
void DesktopHost::HandleEventsUntil(Moment end) {
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

void DesktopHost::SleepUntil(Moment end) {
    if (companionView)
        companionView->SleepUntil(end);
    else
        std::this_thread::sleep_until(end);
}

bool DesktopHost::BeginModal(Form& form) {
    FormWindow& window = WindowOf(form);
    if (window.isModal()) return false;
    window.hide();  // a window takes its modality when it is shown
    window.setWindowModality(Qt::WindowModal);
    return true;
}

void DesktopHost::EndModal(Form& form) {
    WindowOf(form).setWindowModality(Qt::NonModal);
}

bool DesktopHost::ShowsWantedView() const {
    return !companionView || companionView->IsInView();
}

void DesktopHost::ShowScreening(Screening& screening, Moment now) {
    companionView->Show(screening, now);
}

void DesktopHost::EndScreening() {
    companionView->EndScreening();
}

void DesktopHost::BeginPace(std::chrono::milliseconds pause) {
    pace.start(pause);
}

void DesktopHost::EndPace() {
    pace.stop();
}

void DesktopHost::Play(const SoundRequest& sound) {
    sound.slot < FirstOwnSlot ? soundDevice.Play(sound) : soundDevice.PlayIfSound(sound);
    quiet.start();
}

void DesktopHost::SoundValley() {
    soundDevice.SetAmbience(TheCompanion()->AmbienceNow());
    if (soundDevice.IsOpen() && !quiet.isActive()) quiet.start();
}

// With the device gone, the valley looks for another one when it is next shown.
void DesktopHost::CloseQuietDevice() {
    if (soundDevice.Idle())
        soundDevice.Close();
    else if (soundDevice.IsOpen())
        quiet.start();
}

void DesktopHost::ShowText(const std::string& text) {
    ShowBox(QMessageBox::Information, text);
}

// Nobody sits before a screen in memory to answer a box.
void DesktopHost::ShowError(const std::string& text) {
    if (QGuiApplication::platformName() != ScreenInMemory) ShowBox(QMessageBox::Critical, text);
}

void DesktopHost::EndProcess(int exitCode) {
    soundDevice.Close();
    exitCode = AtLast(exitCode);
    std::fflush(nullptr);
    std::_Exit(exitCode);
}
