// What comes of an order, asked before it is given: why it would do nothing, or less than it is given for.
#pragma once

#include "platform/input_event.h"
#include "shell/refusal.h"

/// Whether the event is an order to a soldier, or asks for one.
bool IsOrder(const InputEvent& event);

/// None for an order that does what it is given for, and for what is no order.
Refusal RefusalOf(const InputEvent& event);

/// Whether the event asks the current soldier for a turn by a key, a step or a walk.
bool IsMove(const InputEvent& event);
