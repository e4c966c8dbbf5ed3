// Things on the ground: thirty to a cell, and a marker for each cell that holds some, by which alone a pile
// is seen.
#pragma once

/// How many records of the list that begins at unit `base` lie at (x, y).
int CountAt(int x, int y, int base);

/// Marks the cell as holding things, once, and repaints it. Throws RunTimeError (Subscript) when the table is
/// full.
void WeaponAdd(int x, int y);
