// Painting units on the field: in place, and pixel by pixel while they walk.
#pragma once

/// Redraws the current unit in place, as the player may see it.
void PaintStanding(bool seen);

/// Redraws the unit that stands on a cell, whichever it is.
void PaintUnitAtCell(int x, int y);

/// Keeps the pixels of the field that the current unit is about to cover.
void SaveBackground(int unit);

// The current unit's step, as the rules report it: it walks in over (toX, toY), comes (dx, dy) pixels
// further, and has arrived from (fromX, fromY). The last is a whole step, of (dx, dy) cells, that nobody
// sees.
void BeginStep(int toX, int toY);
void PaintPixelOfStep(int dx, int dy);
void EndStep(int fromX, int fromY);
void MoveUnseen(int dx, int dy);

// What PaintCover does.
enum CoverMode {
    StampCover,   // draws the tree tops over a soldier who has arrived
    RaiseCover,   // lays them over one who walks in
    RemoveCover,  // takes them away
};

/// The layer of tree tops that hides soldiers in a wood.
void PaintCover(CoverMode mode, int x, int y);
