// The controls that the keyboard stops at, as data: how each is called, the letter that uses it at once, and
// how finely a pointer moves on it. Controls without a row here are called by what they show.
#pragma once

#include <optional>
#include <string>

#include "platform/controls.h"
#include "shell/pixels.h"

/// Whether the game itself draws what the control shows; the others are the front end's own.
bool IsDrawn(const Control& control);

/// Whether the keyboard can stop there while the control is seen: it does something, and so does each
/// scroll bar, list and button.
bool IsStop(const Control& control);

/// The stop of its window that the keys of the pointer go to when no other has the focus.
bool IsMainStop(const Control& control);

/// What the control is, as "Pocket 3"; empty where its caption or its name tells.
std::string StopWords(const Control& control);

/// The letter or digit that uses the control together with Alt; '\0' for none.
char ShortcutLetter(const Control& control);

/// The side of the squares between which the pointer moves within the control, in its pixels; 0: it only
/// stands on the control as a whole.
int GridOf(const Control& control);

/// Where in the control the pointer begins: at the current soldier. Only for a control with a grid.
PixelPoint StartOn(const Control& control);

/// The place on its window's main stop that a press on the control has brought into view.
std::optional<PixelPoint> ShownBy(const Control& control);
