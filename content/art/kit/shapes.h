// Outlines from which everything is drawn. All measures are pixels of the finished picture.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

#include <QPainterPath>
#include <QPointF>

namespace art {

QPainterPath Rect(double x, double y, double width, double height, double corner = 0);
QPainterPath Ellipse(double x, double y, double radiusX, double radiusY);
QPainterPath Polygon(std::initializer_list<QPointF> points);

// The open line through the points.
QPainterPath Trace(std::initializer_list<QPointF> points);

// A lump: a circle whose radius wanders by up to `wobble` (a share of the radius).
QPainterPath Lump(double x, double y, double radius, double wobble, std::uint32_t seed);

// A star with `points` tips between two radii, turned by `turn` radians.
QPainterPath Star(double x, double y, double outer, double inner, int points, double turn);

// The places from one on in even steps, up or down, that lie before another.
std::vector<double> Steps(double from, double to, double step);

// The area that a pen of that width covers along the line.
QPainterPath Widened(const QPainterPath& line, double width, Qt::PenCapStyle cap, Qt::PenJoinStyle join);

}  // namespace art
