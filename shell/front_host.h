// What the hosts of all front ends have in common: what enters the game when, what is seen of it and what
// takes time. The front end's own part is how windows, boxes and sounds are made, and how its events are
// waited for.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/controls.h"
#include "platform/host.h"
#include "shell/companion.h"
#include "shell/control_events.h"
#include "shell/slips.h"
#include "shell/takes.h"

constexpr const char* GameName = "Sarnoth III";

class FrontHost : public Host {
  public:
    /// `mainForm` is the window whose close button ends the program. Events go to `dispatchRoutine`. Installs
    /// itself for as long as it lives.
    FrontHost(Form& mainForm, EventSink dispatchRoutine);
    ~FrontHost() override;

    /// Runs a piece of the game and shows what it has changed. This is the one place where the game is
    /// entered: an error is shown in a box and on standard error, and the process ends with exit code 1.
    void Enter(const std::function<void()>& piece);

    /// An event of the windows: it enters the game, or is dropped.
    void Receive(const InputEvent& event);

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

    /// Shows on the main window what the companion draws; it must outlive the host.
    virtual void Accompany(Companion& whoGoesAlong);

    /// `last` runs when the process is about to end, whatever ends it, and gives its exit code.
    void AtEnd(std::function<int(int exitCode)> last) { atEnd = std::move(last); }

    /// `first` runs before each message of the game is shown.
    void AtMessage(std::function<void()> first) { atMessage = std::move(first); }

    /// `first` runs before the message of the mission's verdict, when everything before has been seen; not
    /// while events come from a source.
    void AtVerdict(std::function<void()> first) { atVerdict = std::move(first); }

    /// `mayEnter` is asked before each event of the windows enters the game; it may show a box, and meanwhile
    /// what else comes from the windows is dropped.
    void AskBefore(std::function<bool(const InputEvent&)> mayEnter) { asker = std::move(mayEnter); }

    /// Shows everything as its records are.
    void Sync();

    void Refresh(Control& control) override;
    void PumpEvents() override;
    void Wait(std::chrono::nanoseconds time, bool pump) override;
    void ShowModal(Form& form) override;
    void ShowMessage(const std::string& text) override;

  protected:
    void Emit(const SoundRequest& sound) override;

    /// The clock that slips are told by.
    virtual Moment Now() const { return std::chrono::steady_clock::now(); }

    /// Brings all windows in line with their records, and what the companion draws and lets be heard.
    virtual void ShowWindows() = 0;

    /// Paints what has changed on one window, and what the companion draws; no event enters meanwhile.
    virtual void ShowNow(Form& form) = 0;

    /// Handles the events that have come.
    virtual void HandleEvents() = 0;

    /// Waits for an event, and handles it.
    virtual void AwaitEvent() = 0;

    /// Handles events until `end`.
    virtual void HandleEventsUntil(Moment end) = 0;

    /// Waits until `end` without an event, and keeps moving meanwhile what moves.
    virtual void SleepUntil(Moment end) = 0;

    /// When a wait of the rules that begins now and takes `time` ends.
    virtual Moment EndOfWait(std::chrono::nanoseconds time) {
        return std::chrono::steady_clock::now() + time;
    }

    /// The form keeps the others from being used. False when it did so before.
    virtual bool BeginModal(Form& form) = 0;
    virtual void EndModal(Form& form) = 0;

    /// Whether the part of the field that the records want in view is the one on the screen.
    virtual bool ShowsWantedView() const = 0;

    /// Shows what `screening` shows at `now`, or the game again.
    virtual void ShowScreening(Screening& screening, Moment now) = 0;
    virtual void EndScreening() = 0;

    /// From now on LetInAtPace is called again and again, each time after `pause`.
    virtual void BeginPace(std::chrono::milliseconds pause) = 0;
    virtual void EndPace() = 0;
    void LetInAtPace();

    virtual void Play(const SoundRequest& sound) = 0;

    /// A box with a message, which is closed when it has been read.
    virtual void ShowText(const std::string& text) = 0;
    virtual void ShowError(const std::string& text) = 0;

    /// What runs last; the result is the exit code.
    int AtLast(int exitCode) { return atEnd ? atEnd(exitCode) : exitCode; }

    Form& MainForm() const { return main; }
    Companion* TheCompanion() const { return companion; }

    /// Whether the process goes on only to show its error.
    bool HasFailed() const { return failed; }

  private:
    void LetIn();
    void TakeLate();
    bool IsFilming() const { return companion != nullptr && companion->IsFilming(); }
    bool SkipsFilm(const InputEvent& event);
    void Screen();
    void RestOnLastSight();
    void NoteHandOver();
    void WaitInFilm(std::chrono::nanoseconds time, bool pump);
    bool MayEnter(const InputEvent& event);
    void Fail(const std::string& text);

    Form& main;
    const EventSink dispatch;
    Companion* companion = nullptr;  // nobody goes along
    Takes takes;
    Slips slips;
    std::function<bool(const InputEvent&)> asker;  // empty: nothing is asked
    bool asking = false;
    bool refreshing = false;
    Moment skipped;                // a film
    int entered = 0;               // pieces of the game that run within each other
    std::vector<InputEvent> late;  // came while a window was refreshed; they wait for the next pump
    Source playBack;               // empty: a person plays
    EventSink meanwhile;           // takes what he does while it isn't
    bool hastens = false;          // nothing is shown or takes time
    int modalPump = 0;             // of the innermost modal window
    std::function<int(int exitCode)> atEnd;
    std::function<void()> atMessage;
    std::function<void()> atVerdict;
    bool failed = false;  // the error is being shown: ticks and the close button reach the game no more
};
