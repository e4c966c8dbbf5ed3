// The mini map of the panel, the whole field at two pixels a cell, with the lit window over what is in view;
// and the big map, the whole field at half its size in the window's place.
#pragma once

#include "platform/picture.h"

struct FieldForm;

constexpr int MiniMapRatio = 10;  // pixels of the field to one of the mini map
constexpr int MiniMapCellSize = 2;

/// Scales the whole of `source` into `target` at its width and height divided by `ratio`.
void picStretch(const Picture& source, Picture& target, int ratio);

/// Scales the pixels of cell (x, y) of the form's `area` into its mini map, and into the lit window over it.
void picStretchSquare(FieldForm& form, int x, int y);

/// Puts the lit window where the view is.
void picMicroMapHilite();
void RefreshMiniMapWindow();

/// Passes a repainted cell on to the mini map, but for the time when the whole map is painted.
void MiniMapCell(FieldForm& form, int x, int y);

/// Shows the big map, or takes it away. It is a still, drawn when it is shown.
void ToggleBigMap();
