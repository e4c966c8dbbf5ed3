#include "desktop/scale.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr Halves Sizes[] = {4, 3, 2};
constexpr Halves SingleSize = 2;
constexpr double Slack = 0.05;        // desktops tell their factor by a rounded number of dots per inch
constexpr QSize Surround = {16, 64};  // screen pixels left for a window's menu and the desktop's frame

Halves scale = SingleSize;

// The first and the last pixel of a picture that a screen pixel covers; they differ by one at most.
struct Covered {
    int first;
    int last;
};

Covered CoveredBy(int pixel, int length) {
    return {std::min(2 * pixel / scale, length - 1), std::min((2 * pixel + 1) / scale, length - 1)};
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

// The picture's own pixels, not a copy.
QImage Wrapped(const Picture& picture, const QRect& part, Ground ground) {
    const auto* bytes = reinterpret_cast<const uchar*>(picture.Row(part.top()) + part.left());
    const qsizetype pitch = static_cast<qsizetype>(sizeof(Colour)) * picture.Width();
    const auto format = ground == Ground::Opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32;
    return {bytes, part.width(), part.height(), pitch, format};
}

}  // namespace

void SetScale(Halves halves) {
    scale = halves;
}

double ScaleFactor() {
    return scale / 2.0;
}

Halves FittingScale(double wanted, QSize screen, std::span<const Form* const> forms) {
    QSize inside;
    for (const Form* form : forms)
        inside = inside.expandedTo({form->Width, form->Height});
    for (const Halves halves : Sizes) {
        const QSize shown = inside * halves / 2 + Surround;
        const bool fits = shown.width() <= screen.width() && shown.height() <= screen.height();
        if (fits && halves / 2.0 <= wanted + Slack) return halves;
    }
    return SingleSize;
}

int ToScreen(int edge) {
    return (edge * scale + 1) >> 1;  // downwards also below 0
}

QRect ToScreen(const QRect& rectangle) {
    const QPoint leftTop(ToScreen(rectangle.x()), ToScreen(rectangle.y()));
    const int right = ToScreen(rectangle.x() + rectangle.width());
    const int bottom = ToScreen(rectangle.y() + rectangle.height());
    return {leftTop, QSize(right - leftTop.x(), bottom - leftTop.y())};
}

QRect Touched(const Rectangle& rectangle) {
    const QPoint leftTop(rectangle.left * scale >> 1, rectangle.top * scale >> 1);
    const int right = ToScreen(rectangle.left + rectangle.width);
    const int bottom = ToScreen(rectangle.top + rectangle.height);
    return {leftTop, QSize(right - leftTop.x(), bottom - leftTop.y())};
}

QPointF FromScreen(QPointF point) {
    return point / ScaleFactor();
}

QImage Enlarged(const Picture& picture, const QRect& part, Ground ground) {
    if (scale == SingleSize) return Wrapped(picture, part, ground);
    const Colour solid = ground == Ground::Opaque ? Rgb(0, 0, 0) : 0;
    const std::vector<Covered> columns = Columns(part, picture.Width());
    QImage image(part.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < part.height(); ++y) {
        const Covered rows = CoveredBy(part.top() + y, picture.Height());
        const Colour* const upper = picture.Row(rows.first);
        const Colour* const lower = picture.Row(rows.last);
        auto* pixel = reinterpret_cast<Colour*>(image.scanLine(y));
        for (const Covered& across : columns) {
            const Colour leftTop = upper[across.first] | solid;
            const bool alone = upper == lower && across.first == across.last && leftTop >> 24 != 0;
            *pixel++ = alone ? leftTop
                             : Mean({leftTop, upper[across.last] | solid, lower[across.first] | solid,
                                     lower[across.last] | solid});
        }
    }
    return image;
}
