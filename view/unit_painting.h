// Painting units, and with it moving them: PaintUnit alone changes where a unit stands.
#pragma once

/// Redraws the current unit, moved by (dx, dy) cells, each -1 to 1; (0, 0) redraws it in place. A move that
/// the player can see is animated pixel by pixel, with footsteps; any other happens at once and leaves no
/// trace.
void PaintUnit(int dx, int dy);

/// Whether the player may see the unit on a cell: a soldier of the squad, or an enemy that one of them has
/// sighted.
bool ThisVisible(int x, int y);

// What PaintCover does.
enum CoverMode {
    StampCover,   // draws the tree tops over a soldier who has arrived
    RaiseCover,   // lays them over one who walks in
    RemoveCover,  // takes them away
};

/// The layer of tree tops that hides soldiers in a wood.
void PaintCover(CoverMode mode, int x, int y);
