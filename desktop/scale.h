// How large the windows are shown: as large as their records say, or one and a half times to four times as
// large, by halves. The toolkit works in screen pixels throughout; this is the one place that turns the
// records' pixels into them. Edges are rounded, not sizes, so that what joins in the records joins on the
// screen.
#pragma once

#include <span>

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QSize>

#include "platform/controls.h"

/// Dots per inch at which desktops show everything at single size.
constexpr int PlainResolution = 96;

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

/// A form's inside and its menu, where it has one, in the records' pixels.
QSize SizeWithMenu(const Form& form);

/// The largest size at which `size`, in the records' pixels, fits in `room` screen pixels; the single one is
/// always taken.
Halves LargestScale(QSize size, QSize room);

/// The same for windows of all `forms`, each in a desktop's frame, on a screen.
Halves FittingScale(QSize screen, std::span<const Form* const> forms);

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
