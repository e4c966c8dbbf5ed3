#include "view/sprites.h"

#include "platform/blit.h"
#include "state/state.h"
#include "view/depot_form.h"
#include "view/field_form.h"

void PaintSprite(int sprite, int pixelX, int pixelY) {
    constexpr int SpritesInRow = 32;
    const int sourceX = sprite % SpritesInRow * CellSize;
    const int sourceY = sprite / SpritesInRow * CellSize;
    PaintMasked(frmField.area.canvas, pixelX, pixelY, frmDepot.picSprites.canvas, sourceX, sourceY);
}

// Masks fill the lower half of each sheet, a sprite's at its own place.
void PaintMasked(Picture& target, int pixelX, int pixelY, const Picture& sheet, int spriteX, int spriteY) {
    const int maskY = spriteY + sheet.Height() / 2;
    BitBlt(target, pixelX, pixelY, CellSize, CellSize, sheet, spriteX, maskY, RasterOp::SRCAND);
    BitBlt(target, pixelX, pixelY, CellSize, CellSize, sheet, spriteX, spriteY, RasterOp::SRCINVERT);
}
