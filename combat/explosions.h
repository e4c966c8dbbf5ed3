// Set charges, which count down at each new turn, and explosions of every kind. Charges live in the table of
// units from ChargeBase on; only a name, a countdown, a cell and the power of their kind are theirs.
#pragma once

/// Sets a charge on a cell of the field. Throws RunTimeError (Subscript) when the table is full.
void ChargeAdd(int x, int y);

/// Takes the first charge on a cell out of the count.
void ChargeRemove(int x, int y);

/// Counts every charge down; those that come to nothing blow. Leaves curUnit past the last charge.
void ChargeTick();

/// Explodes at (x, y) with the power of what the current unit holds: one bullet is spread over three by three
/// cells, and the ground in the middle is lowered.
void ChargeBlow(int x, int y);
