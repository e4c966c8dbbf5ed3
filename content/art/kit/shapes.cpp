#include "kit/shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QPainterPathStroker>

#include "kit/noise.h"

namespace art {

QPainterPath Rect(double x, double y, double width, double height, double corner) {
    QPainterPath path;
    path.addRoundedRect(x, y, width, height, corner, corner);
    return path;
}

QPainterPath Ellipse(double x, double y, double radiusX, double radiusY) {
    QPainterPath path;
    path.addEllipse(QPointF(x, y), radiusX, radiusY);
    return path;
}

QPainterPath Polygon(std::initializer_list<QPointF> points) {
    QPainterPath path = Trace(points);
    path.closeSubpath();
    return path;
}

QPainterPath Trace(std::initializer_list<QPointF> points) {
    QPainterPath path(*points.begin());
    for (const QPointF& point : points)
        path.lineTo(point);
    return path;
}

QPainterPath Lump(double x, double y, double radius, double wobble, std::uint32_t seed) {
    constexpr int Corners = 14;
    Dice dice(seed);
    QPainterPath path;
    QPointF first;
    QPointF last;
    for (int i = 0; i < Corners; ++i) {
        const double angle = 2 * std::numbers::pi * i / Corners;
        const double reach = radius * (1 + wobble * static_cast<double>(dice.Roll(-1, 1)));
        const QPointF corner(x + reach * std::cos(angle), y + reach * std::sin(angle));
        if (i == 0) {
            first = corner;
        } else if (i == 1) {
            path.moveTo((first + corner) / 2);
        } else {
            path.quadTo(last, (last + corner) / 2);
        }
        last = corner;
    }
    path.quadTo(last, (last + first) / 2);
    path.quadTo(first, path.elementAt(0));
    return path;
}

QPainterPath Star(double x, double y, double outer, double inner, int points, double turn) {
    QPainterPath path;
    for (int i = 0; i < points * 2; ++i) {
        const double angle = turn + std::numbers::pi * i / points;
        const double reach = i % 2 == 0 ? outer : inner;
        const QPointF corner(x + reach * std::cos(angle), y + reach * std::sin(angle));
        if (i == 0) {
            path.moveTo(corner);
        } else {
            path.lineTo(corner);
        }
    }
    path.closeSubpath();
    return path;
}

std::vector<double> Steps(double from, double to, double step) {
    const int count = std::max(0, static_cast<int>(std::ceil((to - from) / step)));
    std::vector<double> places(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        places[static_cast<std::size_t>(i)] = from + i * step;
    return places;
}

QPainterPath Widened(const QPainterPath& line, double width, Qt::PenCapStyle cap, Qt::PenJoinStyle join) {
    QPainterPathStroker pen;
    pen.setWidth(width);
    pen.setCapStyle(cap);
    pen.setJoinStyle(join);
    QPainterPath area = pen.createStroke(line);
    area.setFillRule(Qt::WindingFill);
    return area;
}

}  // namespace art
