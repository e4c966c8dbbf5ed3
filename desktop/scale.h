// How large the windows are shown: once, one and a half times, or twice as large as their records say. The
// toolkit works in screen pixels throughout; this is the one place that turns the records' pixels into them.
// Edges are rounded, not sizes, so that what joins in the records joins on the screen. Of the three sizes the
// largest is taken that the desktop asks for and whose every window fits on the screen; the single size is
// always taken.
#pragma once

#include <span>

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QSize>

#include "platform/controls.h"

/// Dots per inch at which desktops show everything at single size.
constexpr int PlainResolution = 96;

/// Screen pixels for two pixels of a record: 2, 3 or 4.
using Halves = int;

/// Shows every window that is made or synced from now on at this size.
void SetScale(Halves halves);

/// 1, 1.5 or 2.
double ScaleFactor();

/// The largest size that is no larger than `wanted` (as a factor) and at which the windows of all `forms` fit
/// on a screen of `screen` pixels.
Halves FittingScale(double wanted, QSize screen, std::span<const Form* const> forms);

/// The screen pixel at which `edge` lies, rounded half up.
int ToScreen(int edge);

/// Between the rounded edges.
QRect ToScreen(const QRect& rectangle);

/// All screen pixels that show a part of `rectangle`.
QRect Touched(const Rectangle& rectangle);

QPointF FromScreen(QPointF point);

/// Whether a picture's transparent pixels let see what lies beneath, or show as they are.
enum class Ground { Opaque, SeenThrough };

/// The part of `picture` that the screen pixels `part` show, counted from the picture's left top corner;
/// `part` may end beyond the picture by half a pixel's rounding. Each pixel is the mean of the picture's
/// pixels that it covers, whatever the part: pieces join. Valid for as long as the picture stays as it is.
QImage Enlarged(const Picture& picture, const QRect& part, Ground ground);
