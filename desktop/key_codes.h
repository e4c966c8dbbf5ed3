// Keyboards: the key codes that the game's command tables use, from the toolkit's key events.
#pragma once

#include <QKeyEvent>

#include "shell/key_input.h"

/// The code of the event's key, as platform/keys has them; 0 for a key that has none.
int KeyCode(const QKeyEvent& event);

/// The modifiers that are held, added up.
int ShiftState(Qt::KeyboardModifiers modifiers);

KeyInput KeyOf(const QKeyEvent& event);
