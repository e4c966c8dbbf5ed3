// The board of a soldier's file: the slots with what lies in them, the pack, and the ground or the vehicle
// store at his feet.
#pragma once

#include "personal/info_form.h"

/// Shows slots 0 to 9.
void ShowSlots();

/// Shows the pack that is worn, and as many pockets as it has. What lies in a hidden pocket stays there.
void ShowPack();

/// Shows the flag of the country that made the thing in the hand; none for an empty hand.
void ShowOrigin();

/// With `load` slots 30 to 59 take what lies at the soldier's feet, or in the vehicle store when he stands at
/// it; without, it goes back there, and the cell's mark and charges follow.
void SyncGroundSlots(bool load);

/// Shows the ten slots of groundPage.
void ShowGroundPage();

/// Turns to page 0 to 2.
void cmdGndPage_Click(int page);

/// Empties a slot of the current unit and shows it. The condition stays.
void ClearSlot(int slot);
