// How a cell of the field may look by the state: painted from it by a plain routine of its own, which leans
// on nothing that the game has painted before.
#pragma once

#include <vector>

#include "platform/picture.h"

/// The looks of the bare cell (x, y) that its state allows: its tile with what lies there, and, where
/// somebody died, with and without him, since a repainted cell forgets its corpse.
std::vector<Picture> BareLooks(int x, int y);

/// The looks of the cell with who stands on it. An enemy whom nobody has in his sight any more may still be
/// shown as he was last seen, or not at all.
std::vector<Picture> CellLooks(int x, int y);

/// One cell's square of a picture of the field.
Picture SquareOf(const Picture& field, int x, int y);
