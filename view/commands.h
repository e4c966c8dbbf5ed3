// The player's commands on the main window: keys, clicks on the field, the panel's controls, and the tool tip
// under the pointer. Each acts on the current unit.
#pragma once

#include <optional>

struct Form;

/// A key was pressed on the main window; `code` is its virtual key code.
void Form_KeyDown(int code);

/// The way that a key turns or leads a soldier; nothing for any other key.
std::optional<int> FacingOfKey(int code);

/// A mouse button was pressed on the field at a pixel of it.
void area_MouseDown(int button, float x, float y);

/// The pointer moved over the field.
void area_MouseMove(float x, float y);

/// A fire mode was chosen from its list; one that the list no longer has is none.
void comboMode_Click(int index);

/// A click on the counter: brings the next enemy that the current unit has sighted into view.
void imgEnemyCount_Click();

/// Tells what lies or stands under a pixel of the field in its tool tip, and the cell in the form's caption.
/// Throws RunTimeError (Subscript) outside the grid.
void AreaTooltip(int x, int y, Form& form);
