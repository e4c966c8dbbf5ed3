#include "field/geometry.h"

namespace {

enum Block { BlocksNothing, BlocksStep, BlocksView };

}  // namespace

bool InField(int x, int y) {
    return x >= 0 && x < FieldWidth && y >= 0 && y < FieldHeight;
}

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
