#include "tools/field_tile.h"

#include "data/map.h"
#include "data/terrain.h"
#include "state/state.h"

void PutTile(int x, int y, int tileX, int tileY) {
    Cell& cell = cellGrid[y][x];
    cell.tileX = tileX;
    cell.tileY = tileY;
    cell.durab = CellDurab(tileX, tileY);
    cell.block = CellBlock(x, y);
    cell.occupant = -1;
}
