// Which stop of a window comes next: in the order in which the controls were put, or in a direction.
#pragma once

#include <vector>

#include "platform/controls.h"
#include "shell/pixels.h"

/// Whether the keyboard can stop there now: it is seen, and does something.
bool IsStopNow(const Control& control);

/// The controls of `form` that the keyboard can stop at now. One that lies within a larger one comes right
/// after it.
std::vector<const Control*> StopsNow(const Form& form);

/// The stop after `focused`, or the one before; from nullptr the first or last one. After a control that has
/// just been hidden or switched off comes the next that the form has. nullptr where there is none.
const Control* NextStop(const Form& form, const Control* focused, bool forward);

/// The next stop of its form from `from` to the left, the right, up or down, as `step` points; first among
/// the others of its control array. nullptr when there is none.
const Control* StopTowards(const Control& from, PixelPoint step);
