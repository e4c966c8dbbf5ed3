// Painting the field: one big retained picture, `area`, a square of 20 by 20 pixels for each cell. It is
// painted whole once, then cell by cell where something changes.
#pragma once

#include "platform/picture.h"

struct FieldForm;

// Sprites of picSprites.
constexpr int ChargeSprite = 12;
constexpr int PileSprite = 13;
constexpr int DeadSprite = 14;

/// Repaints a cell with all that stands and lies on it. With both tile arguments given, that tile is shown in
/// place of the cell's own. Throws RunTimeError (Subscript) for a cell outside the grid.
void PaintCell(int x, int y, Picture& target, int tileX = -1, int tileY = -1);

/// Draws a masked sprite into `area` at a pixel.
void PaintSprite(int sprite, int pixelX, int pixelY);

/// Draws a sprite of one cell's size, black where transparent, with its mask, white there, which stands half
/// the sheet's height below it.
void PaintMasked(Picture& target, int pixelX, int pixelY, const Picture& sheet, int spriteX, int spriteY);

/// Passes a repainted cell on to the mini map, but for the time when the whole map is painted.
void MiniMapCell(FieldForm& form, int x, int y);
