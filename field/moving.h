// The one routine that changes where a unit stands. What the player can see of it is walked pixel by pixel.
#pragma once

/// Moves the current unit by (dx, dy) cells, each -1 to 1, and has it shown; (0, 0) has it redrawn in place.
/// A move that the player can see takes its time, with footsteps; any other happens at once and leaves no
/// trace.
void PaintUnit(int dx, int dy);

/// Whether the player may see the unit on a cell: a soldier of the squad, or an enemy that one of them has
/// sighted.
bool ThisVisible(int x, int y);
