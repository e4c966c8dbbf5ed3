// The host of the desktop program: shows the forms as windows, lets their events into the game, and answers
// what the game asks of the machine.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <QTimer>

#include "desktop/companion_view.h"
#include "desktop/form_window.h"
#include "desktop/sound_device.h"
#include "platform/host.h"
#include "shell/slips.h"
#include "shell/takes.h"

class SquadWindow;

class DesktopHost : public Host {
  public:
    /// `mainForm` is the window whose close button ends the program; `otherForms` are shown when they turn
    /// visible. Events go to `dispatchRoutine`. Installs itself for as long as it lives.
    DesktopHost(Form& mainForm, const std::vector<Form*>& otherForms, EventSink dispatchRoutine);
    ~DesktopHost() override;

    /// Runs a piece of the game and shows what it has changed. This is the one place where the game is
    /// entered: an error is shown in a box and on standard error, and the process ends with exit code 1.
    void Enter(const std::function<void()>& piece);

    /// The window of a form; made at its first use.
    FormWindow& WindowOf(Form& form);

    /// Enters the next events of a run by itself. It is asked at each pump and wait with their number (see
    /// InnermostPump). When none of them runs, and while a modal window is open, it is asked from time to
    /// time; `lasts` says so, as there is no hurry then.
    using Source = std::function<void(int pump, bool lasts)>;

    /// Events come from `source` instead of the windows from now on. Keys and clicks of a person, and the
    /// main window's close button, go to `meanwhile`, if there is one.
    void PlayBack(Source source, EventSink meanwhile = nullptr);

    /// What is left is played back without a wait, and unseen.
    void Hasten();

    /// Events come from the windows again.
    void StopPlayBack();

    /// Shows on the main window what the companion draws, and beside it the squad; it must outlive the host.
    void Accompany(Companion& whoGoesAlong);

    /// nullptr where nobody goes along.
    SquadWindow* Squad() { return squadWindow; }

    /// `last` runs when the process is about to end, whatever ends it, and gives its exit code.
    void AtEnd(std::function<int(int exitCode)> last) { atEnd = std::move(last); }

    /// `first` runs before each message of the game is shown.
    void AtMessage(std::function<void()> first) { atMessage = std::move(first); }

    /// `mayEnter` is asked before each event of the windows enters the game; it may show a box, and meanwhile
    /// what else comes from the windows is dropped.
    void AskBefore(std::function<bool(const InputEvent&)> mayEnter) { asker = std::move(mayEnter); }

    /// Shows everything as its records are, and at the windows' scale.
    void Sync();

    SoundDevice& Sounds() { return soundDevice; }
    /// `first` runs before the message of the mission's verdict, when everything before has been seen; not
    /// while events come from a source.
    void AtVerdict(std::function<void()> first) { atVerdict = std::move(first); }

    void Refresh(Control& control) override;
    void PumpEvents() override;
    void Wait(std::chrono::nanoseconds time, bool pump) override;
    void ShowModal(Form& form) override;
    void ShowMessage(const std::string& text) override;
    [[noreturn]] void EndProcess(int exitCode) override;

  protected:
    void Emit(const SoundRequest& sound) override;

    /// The clock that slips are told by.
    virtual Moment Now() const { return std::chrono::steady_clock::now(); }

  private:
    void LetIn();
    void LetInAtPace();
    void TakeLate();
    void Receive(const InputEvent& event);
    bool IsFilming() const { return companion != nullptr && companion->IsFilming(); }
    bool SkipsFilm(const InputEvent& event);
    void Screen();
    void RestOnLastSight();
    void NoteHandOver();
    void WaitInFilm(std::chrono::nanoseconds time, bool pump);
    bool MayEnter(const InputEvent& event);
    void Fail(const std::string& text);
    void Play(const SoundRequest& sound);
    void SoundValley();
    void CloseQuietDevice();

    const EventSink dispatch;
    FormWindow mainWindow;
    std::vector<FormWindow*> otherWindows;  // the main window owns them
    std::vector<Form*> forms;               // all but the main one
    Companion* companion = nullptr;         // nobody goes along
    std::unique_ptr<CompanionView> companionView;
    SquadWindow* squadWindow = nullptr;  // the main window owns it
    SoundDevice soundDevice;
    Takes takes;
    Slips slips;
    std::function<bool(const InputEvent&)> asker;  // empty: nothing is asked
    bool asking = false;
    bool refreshing = false;
    Moment skipped;   // a film
    int entered = 0;  // pieces of the game that run within each other
    std::vector<InputEvent>
        late;              // came from the windows while one was refreshed; they wait for the next pump
    Source playBack;       // empty: a person plays
    EventSink meanwhile;   // takes what he does while it isn't
    bool hastens = false;  // nothing is shown or takes time
    int modalPump = 0;     // of the innermost modal window
    QTimer playBackPace;
    std::function<int(int exitCode)> atEnd;
    std::function<void()> atMessage;
    std::function<void()> atVerdict;
    bool failed = false;  // the error is being shown: ticks and the close button reach the game no more
    QTimer quiet;         // runs while the device is open, and is wound up by each sound
};
