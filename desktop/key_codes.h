// Keyboards: the key codes that the game's command tables use, from the toolkit's key events.
#pragma once

#include <QKeyEvent>

/// The virtual key code of the event's key: letters and digits as their capitals' ASCII codes, 96 to 105 for
/// the digits of the keypad. 0 for a key that has none.
int KeyCode(const QKeyEvent& event);

/// 1 Shift, 2 Ctrl, 4 Alt, added up.
int ShiftState(Qt::KeyboardModifiers modifiers);
