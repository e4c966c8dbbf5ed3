#include "portraits/portrait_eyes.h"

#include <cmath>

#include "kit/noise.h"
#include "kit/shapes.h"
#include "portraits/portrait_face.h"

namespace art {
namespace {

constexpr double Across = 12.8;  // of an eye's middle from the face's
constexpr double Depth = 3.6;
constexpr double HalfWidth = 6.3;
constexpr double IrisRadius = 3.0;

// One eye: `side` is -1 for the one on the picture's left.
struct Eye {
    double x, y, side;
    double half;
    double upper, lower;  // heights of the lids above and below the corners' line

    QPointF At(double across, double down) const { return {x + side * across * half, y + down}; }
    QPointF Inner() const { return At(-1, 0.9); }
    QPointF Outer() const { return At(1, -0.3); }
};

Eye EyeOf(const Person& person, double side) {
    const double half = HalfWidth * (side * person.yaw > 0 ? 1 - 0.14 * std::abs(person.yaw) : 1.0);
    return {Turned(person, side * Across, Depth), head::Eyes, side, half, 2.75 * person.eyes, 2.0};
}

QPainterPath UpperLid(const Eye& eye, double lift = 0) {
    QPainterPath lid(eye.Inner() + QPointF(0, -lift * 0.3));
    lid.cubicTo(eye.At(-0.55, -eye.upper * 1.25 - lift), eye.At(0.35, -eye.upper * 1.5 - lift),
                eye.Outer() + QPointF(0, -lift * 0.5));
    return lid;
}

QPainterPath Opening(const Eye& eye) {
    QPainterPath opening = UpperLid(eye);
    opening.cubicTo(eye.At(0.55, eye.lower * 1.15), eye.At(-0.4, eye.lower * 1.35), eye.Inner());
    return opening;
}

void Ball(QPainter& brush, const Eye& eye, const Person& person) {
    QLinearGradient white(eye.At(0, -eye.upper), eye.At(0, eye.lower));
    white.setColorAt(0, Between(Ink::Cellar, Ink::Limestone, 0.45));
    white.setColorAt(0.5, Between(Ink::Concrete, Ink::Shell, 0.55));
    white.setColorAt(1, Between(Ink::Limestone, Ink::Shell, 0.6));
    brush.fillPath(Opening(eye), white);
    brush.setClipPath(Opening(eye));
    const QPointF gaze(eye.x + person.yaw * 1.1, eye.y - 0.35);
    QRadialGradient iris(gaze + QPointF(0.4, 0.9), IrisRadius);
    iris.setColorAt(0, person.iris.lighter(135));
    iris.setColorAt(0.65, person.iris);
    iris.setColorAt(1, person.iris.darker(190));
    brush.setPen(QPen(person.iris.darker(240), 0.5));
    brush.setBrush(iris);
    brush.drawEllipse(gaze, IrisRadius, IrisRadius);
    brush.setPen(Qt::NoPen);
    brush.setBrush(Colour(Ink::Soot));
    brush.drawEllipse(gaze, 1.35, 1.35);
    brush.setBrush(Colour(Ink::Snow));
    brush.drawEllipse(gaze + QPointF(-1.0, -1.1), 0.68, 0.62);
    // The lid's own shadow on the ball.
    brush.setBrush(Qt::NoBrush);
    QColor shade = Colour(Ink::Peat);
    shade.setAlphaF(0.42f);
    brush.setPen(QPen(shade, 2.2));
    brush.drawPath(UpperLid(eye));
    brush.setClipping(false);
    brush.setPen(Qt::NoPen);
    QColor corner = person.blood;
    corner.setAlphaF(0.7f);
    brush.setBrush(corner);
    brush.drawEllipse(eye.Inner() + QPointF(eye.side * 0.7, -0.1), 0.9, 0.7);
}

void Lids(QPainter& brush, const Eye& eye, const Person& person) {
    brush.setBrush(Qt::NoBrush);
    QColor lash = Between(Ink::Peat, Ink::Loam, 0.3);
    lash.setAlphaF(0.95f);
    brush.setPen(QPen(lash, person.woman ? 1.35 : 1.0, Qt::SolidLine, Qt::RoundCap));
    QPainterPath line = UpperLid(eye);
    if (person.woman) line.lineTo(eye.Outer() + QPointF(eye.side * 1.1, -0.9));
    brush.drawPath(line);
    QPainterPath below(eye.Outer());
    below.cubicTo(eye.At(0.55, eye.lower * 1.15), eye.At(-0.4, eye.lower * 1.35), eye.Inner());
    QColor soft = person.blood.darker(190);
    soft.setAlphaF(0.55f);
    brush.setPen(QPen(soft, 0.6));
    brush.drawPath(below);
    QColor crease = person.blood.darker(200);
    crease.setAlphaF(0.5f);
    brush.setPen(QPen(crease, 0.8, Qt::SolidLine, Qt::RoundCap));
    brush.drawPath(UpperLid(eye, 1.9 * person.eyes));
}

// Hairs laid side by side along an arc, longest in the middle.
void Brow(QPainter& brush, const Eye& eye, const Person& person) {
    Dice dice(eye.side < 0 ? 911 : 917);
    const double base = eye.y - 7.6 - 0.8 * person.eyes;
    const QColor dark = person.hair.darker(person.hair.lightness() > 100 ? 185 : 120);
    const int hairs = 90;
    const double thick = (person.woman ? 1.25 : 2.1) * (0.65 + 0.35 * person.brow);
    for (int i = 0; i < hairs; ++i) {
        const double share = static_cast<double>(i) / (hairs - 1);
        const double across = -1.15 + 2.5 * share;
        const double arch = std::sin(share * 2.6) * 1.9;
        const double taper = share < 0.15 ? 0.7 + 2 * share : 1 - 0.75 * (share - 0.15);
        const double down = base + person.browTilt * (1 - 1.4 * share) - arch + 0.6;
        const double scatter = static_cast<double>(dice.Roll(-1, 1)) * thick * taper * 0.6;
        const QPointF root = eye.At(across, 0) + QPointF(0, down - eye.y + scatter + thick * 0.3);
        const double lean = 0.6 + 1.2 * share;
        QColor hair = dark;
        hair.setAlphaF(0.5f + 0.4f * dice.Roll(0, 1));
        brush.setPen(QPen(hair, 0.5));
        brush.drawLine(root, root + QPointF(eye.side * lean, -thick * taper * (0.75 - 0.6 * share)));
    }
}

}  // namespace

void LayEyes(Clay& clay, const Person& person) {
    for (const double side : {-1.0, 1.0}) {
        const Eye eye = EyeOf(person, side);
        clay.Mound(eye.x, eye.y, eye.half * 1.25, 5, 2.4);
        clay.Crease(UpperLid(eye, 0.9), 1.3, 0.5);
        clay.Crease(UpperLid(eye, 2.4 * person.eyes), 1.1, -0.7);
        ClayBrush brush(clay);
        Ball(brush, eye, person);
        Lids(brush, eye, person);
        Brow(brush, eye, person);
    }
}

}  // namespace art
