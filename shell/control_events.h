// What a person does on a control, as input events.
#pragma once

#include <functional>

#include "platform/controls.h"
#include "platform/input_event.h"

/// Takes the events of a window.
using EventSink = std::function<void(const InputEvent&)>;

/// An event of `control`, named as Dispatch expects it, as "frmField.imgStance".
InputEvent EventOf(const Control& control, EventKind kind, int code);
