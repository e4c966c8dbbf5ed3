// The geometry of the field: what lies inside it, what can be entered or seen through, how a facing maps to
// an offset. Pure rules over the map and the units.
#pragma once

#include <string_view>

#include "platform/rounding.h"
#include "state/state.h"

/// The cell of a pixel coordinate of the field.
constexpr int CellOfPixel(int pixel) {
    return FloorDivide(pixel, CellSize);
}

/// Whether (x, y) is a cell of the field proper. Any coordinates may be asked for, here and below.
bool InField(int x, int y);

/// Whether the cell lets through a "step" or the "view"; false outside the field and for any other word.
bool CellOpen(std::string_view kind, int x, int y);

/// Whether a unit can step on the cell: in the field, nobody there, open to a step.
bool CellFreeToStep(int x, int y);
