#include "combat/things.h"

#include "platform/rounding.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/log.h"
#include "view/painting.h"

int CountAt(int x, int y, int base) {
    const int team = static_cast<int>(RoundHalfEven(base / static_cast<double>(TeamStride)));
    int count = 0;
    for (int i = base; i <= base + teamLast[team]; ++i)
        if (UnitTable[i].cellX == x && UnitTable[i].cellY == y) ++count;
    return count;
}

void WeaponAdd(int x, int y) {
    if (CountAt(x, y, PileBase) > 0) return;
    AddToLog("weapon dropped", 1);
    ++teamLast[PileList];
    Unit& marker = UnitTable[PileBase + teamLast[PileList]];
    marker.name = "weapon";
    marker.cellX = x;
    marker.cellY = y;
    PaintCell(x, y, frmField.area.canvas);
}
