// How large the windows are shown: as large as their records say, or one and a half times to four times as
// large, by halves. Screen pixels are those of the device, so that pictures are sharp. Edges are rounded, not
// sizes: what joins in the records joins on the screen.
#pragma once

#include <span>

#include "platform/controls.h"
#include "shell/pixels.h"

/// Screen pixels for two pixels of a record.
using Halves = int;

constexpr Halves SingleSize = 2;
constexpr Halves LargestSize = 8;

constexpr int MenuHeight = 22;  // pixels of the records, of the bar above a window's inside

/// Shows every window that is made or synced from now on at this size.
void SetScale(Halves halves);

Halves Scale();

/// 1, 1.5, 2 ... 4.
double ScaleFactor();

/// Of a form's inside and its menu, where it has one, in the records' pixels.
PixelSize WholeSize(const Form& form);

/// The largest size at which `size`, in the records' pixels, fits in `room` screen pixels; the single one is
/// always taken.
Halves ScaleWithin(PixelSize size, PixelSize room);

/// The same for windows of all `forms`, each of which has the whole `room`.
Halves ScaleForAll(std::span<const Form* const> forms, PixelSize room);

/// The screen pixel at which `edge` lies, rounded half up.
int ToScreen(int edge);

/// Between the rounded edges.
Rectangle ToScreen(const Rectangle& rectangle);

FinePoint FromScreen(FinePoint point);
