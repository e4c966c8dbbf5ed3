// A game that was broken off is played again from its seed and its events, at once and unseen, until it
// stands where it stood.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "shell/recorded_event.h"

struct Form;

using EventSink = std::function<void(const InputEvent&)>;

enum class Continued {
    Waits,           // for the next event, outside all pumps
    Ended,           // the mission came to its end, and its store is saved
    WentAnotherWay,  // the pumps of some events never came
};

/// Starts a game and gives it the events. An order that was under way runs to its end. A window that was open
/// is closed, through `dispatch`, and what the pointer carries there is laid down before; one that still
/// refuses stays open. The host that is installed takes the game over as it stands, and counts its pumps on.
/// Throws RunTimeError.
Continued ContinueGame(std::uint32_t seed, const std::vector<RecordedEvent>& events,
                       const EventSink& dispatch);

/// Closes a form by events, and lays down before what the pointer carries. One that still refuses stays open.
void CloseForm(Form& form, const EventSink& dispatch);
