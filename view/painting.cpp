#include "view/painting.h"

#include "combat/things.h"
#include "data/terrain.h"
#include "platform/blit.h"
#include "state/operation.h"
#include "state/state.h"
#include "view/depot_form.h"
#include "view/field_form.h"
#include "view/mini_map.h"
#include "view/sprites.h"
#include "view/unit_painting.h"

namespace {

// The column of the sheet that shows a tile.
int ShownTile(int tileX) {
    return tileX == BrokenTile ? RemainsTile : tileX;
}

}  // namespace

void PaintCell(int x, int y, Picture& target, int tileX, int tileY) {
    const Cell& cell = cellGrid[y][x];
    const bool ownTile = tileX == -1 || tileY == -1;
    const int column = ownTile ? ShownTile(cell.tileX) : tileX;
    const int row = ownTile ? static_cast<int>(cell.tileY) : tileY;
    const int left = x * CellSize;
    const int top = y * CellSize;
    BitBlt(target, left, top, CellSize, CellSize, frmDepot.picMap.canvas, column * CellSize, row * CellSize,
           RasterOp::SRCCOPY);
    MiniMapCell(frmField, x, y);
    if (CountAt(x, y, ChargeBase) > 0) PaintSprite(ChargeSprite, left, top);
    if (CountAt(x, y, PileBase) > 0) PaintSprite(PileSprite, left, top);
    if (frmField.mapIsPainted || cell.occupant < 0) return;
    // The unit gets the new picture for its background, so that it stays when the unit goes.
    SaveBackground(cell.occupant);
    PaintUnitAtCell(x, y);
}
