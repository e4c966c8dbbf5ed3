// The pointer over the board: what it points at, and the thing that it carries from one slot to another.
#pragma once

#include "personal/info_form.h"

/// The visible slot, 0 to 59, at a point of the window, edges included; NoSlot for none.
int SlotAt(float x, float y);

/// Whether the pointer carries something that is seen.
bool Dragging();

/// The pointer carries nothing any more; what it carried is gone.
void EndDrag();

/// Shows what the pointer carries.
void ShowCarried(PictureRef picture);

/// Lays what is in slot `source` on what is in slot `target`: refused, traded, loaded or stacked as the two
/// things are. True when the two slots have traded what they hold, so that their pictures must follow. Throws
/// RunTimeError (Overflow) for two stacks that together don't fill the target.
bool DropItem(int target, int source);

/// Empties slot 0: what the soldier holds is gone for good.
void imgDel_Click();

namespace personal {

/// Names what lies under the pointer, lights up when the carried thing fits it, and draws that along.
void Form_MouseMove(float x, float y);

/// The right button takes a magazine out of a weapon, any other takes up, lays down and trades.
void Form_MouseDown(int button, float x, float y);

}  // namespace personal
