// The one door for input: every key, click, scroll, choice and close request enters the game here, from the
// real windows, from a test or from a recording.
#pragma once

#include "platform/input_event.h"

/// Runs the handler of `event` to its end; an event that no handler wants does nothing.
void Dispatch(const InputEvent& event);
