// A host without a screen, for tests and tools: it plays queued events at the pumps, keeps what it was asked
// to show and play, and takes no time for waits.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/input_event.h"
#include "platform/quiet_host.h"

class HeadlessHost : public QuietHost {
  public:
    using DispatchRoutine = void (*)(const InputEvent&);

    /// Queued events go to `routine`.
    explicit HeadlessHost(DispatchRoutine routine);

    /// `event` waits until the next pump, or until pump number `atPump` (1 is the first).
    void Queue(const InputEvent& event, int atPump = 0);

    void Refresh(Control& control) override;
    void PumpEvents() override;
    void Wait(std::chrono::nanoseconds time, bool pump) override;
    /// Plays the queue for as long as the form is shown; when nothing is left, its close button is pressed.
    /// Throws std::logic_error for a form that refuses.
    void ShowModal(Form& form) override;
    void ShowMessage(const std::string& text) override;

    std::vector<std::string> messages;
    std::vector<SoundRequest> sounds;
    std::chrono::nanoseconds waited{0};  // what all waits together would have taken
    int refreshes = 0;
    int pumps = 0;

  protected:
    void Emit(const SoundRequest& sound) override;

  private:
    struct Waiting {
        InputEvent event;
        int atPump;
    };

    DispatchRoutine dispatch;
    std::deque<Waiting> queue;
};
