// Things on the ground and in the hand: thirty to a cell, a marker for each cell that holds some, by which
// alone a pile is seen, and the unit's working copy of what it holds.
#pragma once

/// Empties a slot, 0 to 100, of the current unit.
void ClearItem(int slot);

/// How many records of the list that begins at unit `base` lie at (x, y).
int CountAt(int x, int y, int base);

/// Marks the cell as holding things, once, and reports it. Where the table of piles is full a line of the
/// log says so, and the things lie there unmarked.
void WeaponAdd(int x, int y);

/// Takes the marker of a cell away and reports the cell.
void WeaponRemove(int x, int y);

/// The things in a unit's slots 0 to 9 go to the ground of its cell, as many as find a place there. `unit` is
/// the current unit.
void DropAll(int unit);

/// Brings the current unit's hand into step with its slot 0, and reports it. What isn't fit to fight
/// with leaves the hand bare.
void RefreshHand();
