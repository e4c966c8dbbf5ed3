// The small pictures that are drawn into the field through their masks.
#pragma once

#include "platform/picture.h"

// Sprites of picSprites.
constexpr int ChargeSprite = 12;
constexpr int PileSprite = 13;
constexpr int DeadSprite = 14;

/// Draws a masked sprite into `area` at a pixel.
void PaintSprite(int sprite, int pixelX, int pixelY);

/// Draws a sprite of one cell's size, black where transparent, with its mask, white there, which stands half
/// the sheet's height below it.
void PaintMasked(Picture& target, int pixelX, int pixelY, const Picture& sheet, int spriteX, int spriteY);
