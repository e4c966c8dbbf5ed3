// Painting the field: one big retained picture, `area`, a square of 20 by 20 pixels for each cell. It is
// painted whole once, then cell by cell where something changes.
#pragma once

#include "platform/picture.h"

/// Repaints a cell with all that stands and lies on it. With both tile arguments given, that tile is shown in
/// place of the cell's own. Throws RunTimeError (Subscript) for a cell outside the grid.
void PaintCell(int x, int y, Picture& target, int tileX = -1, int tileY = -1);
