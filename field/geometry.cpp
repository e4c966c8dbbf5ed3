#include "field/geometry.h"
#include "data/terrain.h"

FacingWay WayOf(int facing) {
    return facing >= 0 && facing < FacingCount ? FacingWays[static_cast<std::size_t>(facing)]
                                               : FacingWay{0, 0, 0};
}

bool CellOpen(std::string_view kind, int x, int y) {
    if (!InField(x, y)) return false;
    if (kind == "step") return LetsStepThrough(cellGrid[y][x]);
    if (kind == "view") return LetsViewThrough(cellGrid[y][x]);
    return false;
}

bool CellFreeToStep(int x, int y) {
    return InField(x, y) && cellGrid[y][x].occupant < 0 && LetsStepThrough(cellGrid[y][x]);
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
