// The mini map of the panel: the whole field at two pixels a cell.
#pragma once

#include "platform/picture.h"

struct FieldForm;

constexpr int MiniMapRatio = 10;  // pixels of the field to one of the mini map
constexpr int MiniMapCellSize = 2;

/// Scales the whole of `source` into `target` at its width and height divided by `ratio`.
void picStretch(const Picture& source, Picture& target, int ratio);

/// Scales the pixels of cell (x, y) of the form's `area` into its mini map.
void picStretchSquare(FieldForm& form, int x, int y);
