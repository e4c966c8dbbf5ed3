// The one door for input: every key, click, scroll, choice and close request enters the game here, from the
// real windows, from a test or from a recording.
#pragma once

#include "platform/input_event.h"

struct Control;

/// Runs the handler of `event` to its end; an event that no handler wants does nothing, nor does one
/// that can't happen: on a control that isn't there or isn't shown, a press or a move beyond the control.
void Dispatch(const InputEvent& event);

/// Whether a person does something by pressing the control or by moving over it. Of the windows' pictures;
/// also of the slots of a soldier's file, which leave the mouse to the window.
bool TakesInput(const Control& control);
