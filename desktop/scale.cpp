#include "desktop/scale.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr QSize DesktopFrame = {16, 40};  // screen pixels that a desktop puts around a window

PixelSize Plain(QSize size) {
    return {size.width(), size.height()};
}

// The first and the last pixel of a picture that a screen pixel covers; they differ by one at most.
struct Covered {
    int first;
    int last;

    bool operator==(const Covered&) const = default;
};

// Edges of the picture's pixels lie on those of the screen's, or in their middle: of two pixels each has one
// half.
Covered CoveredBy(int pixel, int length) {
    return {std::min(2 * pixel / Scale(), length - 1), std::min((2 * pixel + 1) / Scale(), length - 1)};
}

std::vector<Covered> Columns(const QRect& part, int width) {
    std::vector<Covered> columns;
    columns.reserve(static_cast<std::size_t>(part.width()));
    for (int x = part.left(); x <= part.right(); ++x)
        columns.push_back(CoveredBy(x, width));
    return columns;
}

// Of four colours, channel by channel; a transparent one adds nothing to any.
Colour Mean(const Colour (&colours)[4]) {
    Colour even = 0x00020002;  // red and blue, each with two bits to spare, rounded half up
    Colour odd = 0x00020002;   // alpha and green
    for (const Colour colour : colours) {
        if (colour >> 24 == 0) continue;
        even += colour & 0x00FF00FF;
        odd += colour >> 8 & 0x00FF00FF;
    }
    return (even >> 2 & 0x00FF00FF) | (odd >> 2 & 0x00FF00FF) << 8;
}

// One line of screen pixels, of two lines of a picture that may be the same.
void PaintLine(Colour* pixel, const std::vector<Covered>& columns, const Colour* upper, const Colour* lower,
               Colour solid) {
    for (const Covered& across : columns) {
        const Colour leftTop = upper[across.first] | solid;
        const bool alone = upper == lower && across.first == across.last && leftTop >> 24 != 0;
        *pixel++ = alone ? leftTop
                         : Mean({leftTop, upper[across.last] | solid, lower[across.first] | solid,
                                 lower[across.last] | solid});
    }
}

// The picture's own pixels, not a copy.
QImage Wrapped(const Picture& picture, const QRect& part, Ground ground) {
    const auto* bytes = reinterpret_cast<const uchar*>(picture.Row(part.top()) + part.left());
    const qsizetype pitch = static_cast<qsizetype>(sizeof(Colour)) * picture.Width();
    const auto format = ground == Ground::Opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32;
    return {bytes, part.width(), part.height(), pitch, format};
}

}  // namespace

QSize SizeWithMenu(const Form& form) {
    const PixelSize size = WholeSize(form);
    return {size.width, size.height};
}

Halves LargestScale(QSize size, QSize room) {
    return ScaleWithin(Plain(size), Plain(room));
}

Halves FittingScale(QSize screen, std::span<const Form* const> forms) {
    return ScaleForAll(forms, Plain(screen - DesktopFrame));
}

QRect ToScreen(const QRect& rectangle) {
    const Rectangle plain =
        ToScreen(Rectangle{rectangle.x(), rectangle.y(), rectangle.width(), rectangle.height()});
    return {plain.left, plain.top, plain.width, plain.height};
}

QRect Touched(const Rectangle& rectangle) {
    const QPoint leftTop(rectangle.left * Scale() >> 1, rectangle.top * Scale() >> 1);
    const int right = ToScreen(rectangle.left + rectangle.width);
    const int bottom = ToScreen(rectangle.top + rectangle.height);
    return {leftTop, QSize(right - leftTop.x(), bottom - leftTop.y())};
}

QPointF FromScreen(QPointF point) {
    return point / ScaleFactor();
}

QImage Enlarged(const Picture& picture, const QRect& part, Ground ground) {
    if (Scale() == SingleSize) return Wrapped(picture, part, ground);
    const Colour solid = ground == Ground::Opaque ? Rgb(0, 0, 0) : 0;
    const std::vector<Covered> columns = Columns(part, picture.Width());
    QImage image(part.size(), QImage::Format_ARGB32_Premultiplied);
    Covered painted = {-1, -1};
    for (int y = 0; y < part.height(); ++y) {
        const Covered rows = CoveredBy(part.top() + y, picture.Height());
        if (rows == painted) {
            std::copy_n(image.constScanLine(y - 1), image.bytesPerLine(), image.scanLine(y));
            continue;
        }
        painted = rows;
        PaintLine(reinterpret_cast<Colour*>(image.scanLine(y)), columns, picture.Row(rows.first),
                  picture.Row(rows.last), solid);
    }
    return image;
}
