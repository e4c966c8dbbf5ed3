// The windows' scale in the toolkit's own terms. The toolkit works in screen pixels throughout; this is the
// one place that turns the records' pixels into them.
#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QSize>

#include "shell/scale.h"

/// Dots per inch at which desktops show everything at single size.
constexpr int PlainResolution = 96;

/// A form's inside and its menu, where it has one, in the records' pixels.
QSize SizeWithMenu(const Form& form);

/// The largest size at which `size`, in the records' pixels, fits in `room` screen pixels.
Halves LargestScale(QSize size, QSize room);

/// The same for windows of all `forms`, each in a desktop's frame, on a screen.
Halves FittingScale(QSize screen, std::span<const Form* const> forms);

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
