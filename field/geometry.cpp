#include "field/geometry.h"

namespace {

enum Block { BlocksNothing, BlocksStep, BlocksView };

}  // namespace

FacingWay WayOf(int facing) {
    return facing >= 0 && facing < FacingCount ? FacingWays[static_cast<std::size_t>(facing)] : FacingWay{0, 0, 0};
}

bool InField(int x, int y) { return x >= 0 && x < FieldWidth && y >= 0 && y < FieldHeight; }

bool CellOpen(std::string_view kind, int x, int y) {
    if (!InField(x, y)) return false;
    const int block = cellGrid[y][x].block;
    if (kind == "step") return block == BlocksNothing || block == BlocksView;
    if (kind == "view") return block == BlocksNothing || block == BlocksStep;
    return false;
}

bool CellFreeToStep(int x, int y) {
    return InField(x, y) && cellGrid[y][x].occupant < 0 && CellOpen("step", x, y);
}

bool IsStoreTile(int x, int y) {
    const Cell& cell = cellGrid[y][x];
    return cell.tileY == Various && cell.tileX >= FirstStoreTile && cell.tileX <= LastStoreTile;
}

bool FacingStoreTile(int unit) {
    const FacingWay way = WayOf(UnitTable[unit].facing);
    const int x = UnitTable[unit].cellX + way.dx;
    const int y = UnitTable[unit].cellY + way.dy;
    return InField(x, y) && IsStoreTile(x, y);
}
