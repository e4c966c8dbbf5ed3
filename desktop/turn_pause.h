// A double click on "End Turn": its second press may come when the squad already has its turn back, and would
// end that one too. The host asks here before it takes an event from a window.
#pragma once

#include <chrono>

#include "platform/input_event.h"

class TurnPause {
  public:
    using Moment = std::chrono::steady_clock::time_point;

    /// `team` has its turn now. To be called whenever something is about to be shown.
    void Note(int team, Moment now);

    /// Whether the event ends a turn that has come back so lately, less than 0.3 s ago, that its player can't
    /// have meant it.
    bool Swallows(const InputEvent& event, Moment now);

  private:
    bool away = false;  // the turn is the computer's, or about to be
    Moment cameBack;
};
