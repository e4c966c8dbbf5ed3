#include "portraits/portrait_face.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "kit/noise.h"
#include "kit/shapes.h"
#include "portraits/portrait_eyes.h"

namespace art {
namespace {

constexpr double Temple = 47;  // above it the skull is half an ellipse
constexpr double MouthLine = 87;
constexpr double FaceDepth = 33;
constexpr double EyesDepth = 3.2;
constexpr double NoseDepth = 6.4;
constexpr double MouthDepth = 4.4;
constexpr double EarsDepth = -2.5;

double MouthOf(const Person& person) {
    return MouthLine + person.length * 0.55 + (person.noseLength - 1) * 8;
}

QColor Darker(const QColor& colour, double share) {
    const auto less = [share](int channel) { return static_cast<int>(channel * (1 - share)); };
    return {less(colour.red()), less(colour.green()), less(colour.blue())};
}

void LayEars(Clay& clay, const Person& person) {
    for (const double side : {-1.0, 1.0}) {
        const double turn = -side * person.yaw;  // the ear on the side that turns away hides
        const double x =
            head::Middle + side * (HeadWidth(person, 66) + 0.7 + turn * 1.6) + person.yaw * EarsDepth * 0.5;
        const QPainterPath ear = Ellipse(x, 66, 4.1, 8.6);
        clay.Form(ear, Stuff::Skin, person.skin,
                  [](float, float, float edge) { return 1 + 3.2f * std::min(1.0f, edge / 2.4f); });
        clay.Mound(x - side * 0.6, 65.5, 2.3, 5.8, -3);
        clay.Mound(x - side * 0.2, 72.4, 2.2, 2.6, 1.4);
        clay.Blush(x - side * 0.5, 66, 3, 6.5, person.blood, 0.5);
    }
}

void Nose(Clay& clay, const Person& person) {
    const double n = person.nose;
    const double tip = head::NoseTip + (person.noseLength - 1) * 14;
    const double root = head::Eyes - 3;
    constexpr int Steps = 9;
    for (int k = 0; k <= Steps; ++k) {
        const double share = static_cast<double>(k) / Steps;
        const double y = root + (tip - 1 - root) * share;
        const double x = Turned(person, 0, NoseDepth * (0.5 + 0.5 * share));
        clay.Mound(x, y, (4.2 + 2.2 * share) * (0.75 + 0.25 * n), 4.2, 1.0 + 2.5 * share * n);
    }
    const double x = Turned(person, 0, NoseDepth);
    clay.Mound(x, tip, 5.4 * n, 4.6, 3.4 * n);
    for (const double side : {-1.0, 1.0}) {
        const double wing = Turned(person, side * 5.0 * n, NoseDepth * 0.72);
        clay.Mound(wing, tip + 1.8, 3.4 * n, 3.2, 3.6);
        clay.Crease(
            Trace({{wing + side * 2.6, tip - 1}, {wing + side * 3.2, tip + 2}, {wing + side * 1.6, tip + 4}}),
            1.4, -0.8);
        clay.Blush(Turned(person, side * 2.7 * n, NoseDepth * 0.85), tip + 3.7, 2.1 * n, 1.05,
                   Darker(person.blood, 0.72), 0.95);
    }
    clay.Mound(x, tip + 4.6, 5 * n, 2.2, -1.6);
}

void Mouth(Clay& clay, const Person& person) {
    const double y = MouthOf(person);
    const double half = 9.6 * person.mouth;
    const double full = person.lips;
    const auto at = [&](double across) {
        return Turned(person, across, MouthDepth * (1 - 0.3 * std::abs(across) / half));
    };
    clay.Mound(at(0), y, 15, 10, 2.2);
    const double rise = person.smile;
    QPainterPath line(QPointF(at(-half), y - rise + 0.3));
    line.cubicTo(at(-half * 0.45), y + 0.5 + rise * 0.3, at(-half * 0.25), y - 0.8, at(0), y + 0.2);
    line.cubicTo(at(half * 0.25), y - 0.8, at(half * 0.45), y + 0.5 + rise * 0.3, at(half), y - rise + 0.3);
    QPainterPath upper = line;
    upper.cubicTo(at(half * 0.5), y - 1.9 * full - rise * 0.3, at(half * 0.25), y - 3.6 * full, at(0),
                  y - 2.5 * full);
    upper.cubicTo(at(-half * 0.25), y - 3.6 * full, at(-half * 0.5), y - 1.9 * full - rise * 0.3, at(-half),
                  y - rise + 0.3);
    QPainterPath lower = line;
    lower.cubicTo(at(half * 0.6), y + 3.2 * full, at(half * 0.3), y + 4.3 * full, at(0), y + 4.3 * full);
    lower.cubicTo(at(-half * 0.3), y + 4.3 * full, at(-half * 0.6), y + 3.2 * full, at(-half),
                  y - rise + 0.3);
    {
        ClayBrush brush(clay);
        brush.setPen(Qt::NoPen);
        QColor lip = person.blood;
        lip.setAlphaF(person.woman ? 0.8f : 0.5f);
        brush.setBrush(Darker(lip, 0.16));
        brush.setOpacity(person.woman ? 0.85 : 0.6);
        brush.drawPath(upper);
        brush.setBrush(lip);
        brush.drawPath(lower);
        brush.setOpacity(0.9);
        brush.setBrush(Qt::NoBrush);
        brush.setPen(QPen(Darker(person.blood, 0.66), 0.95, Qt::SolidLine, Qt::RoundCap));
        brush.drawPath(line);
    }
    clay.Mound(at(-3), y - 1.5 * full, 5, 2.2 * full, 0.7);
    clay.Mound(at(3), y - 1.5 * full, 5, 2.2 * full, 0.7);
    clay.Mound(at(0), y + 2.2 * full, 7.5, 2.8 * full, 1.3);
    clay.Crease(line, 1.3, -1.0);
    clay.Mound(at(0), y + 6.0 * full, 7.5, 2.6, -1.7);
    for (const double side : {-1.0, 1.0})
        clay.Mound(at(side * (half + 1.4)), y - rise + 0.5, 2.4, 3, -1.0);
    clay.Crease(Trace({{at(0), y - 9}, {at(0), y - 4}}), 1.5, -0.6);
}

void Bones(Clay& clay, const Person& person) {
    const double chin = ChinOf(person);
    clay.Mound(Turned(person, 0, 3), chin - 6, 9.5, 6.5, 3.4);
    clay.Mound(Turned(person, 0, 4), 42, 20, 15, 1.6);
    for (const double side : {-1.0, 1.0}) {
        const auto at = [&](double across, double depth) { return Turned(person, side * across, depth); };
        clay.Mound(at(12.5, 4), 54.5, 11.5, 4.4, 2.3 * person.brow, side * 8);
        clay.Mound(at(13.2, EyesDepth), head::Eyes + 0.5, 10.5, 7.2, -4.6);
        clay.Mound(at(5.6, 4.5), head::Eyes - 1, 4.4, 6, -2.2);
        clay.Mound(at(19.5, 2), 72, 10, 7.5, 2.4, side * -18);
        clay.Mound(at(18, 3), 86, 9, 9, -1.5 - 0.8 * person.age);
        clay.Mound(at(27, 0), 50, 7, 11, -1.8);
        clay.Mound(at(21, 0), 92 + person.length * 0.4, 7, 6, person.woman ? 0.2 : 1.4);
    }
}

void Age(Clay& clay, const Person& person) {
    const double age = person.age;
    const double mouth = MouthOf(person);
    const double tip = head::NoseTip + (person.noseLength - 1) * 14;
    for (const double side : {-1.0, 1.0}) {
        const auto at = [&](double across, double depth) { return Turned(person, side * across, depth); };
        QPainterPath fold(QPointF(at(6.6, 5), tip + 1.5));
        fold.quadTo(at(11, 4), tip + 5, at(12.6, 3), mouth + 2 - person.smile);
        clay.Crease(fold, 2.2, -0.5 - 1.0 * age - 0.25 * person.smile);
        QPainterPath bag(QPointF(at(7, 4), head::Eyes + 4.6));
        bag.quadTo(at(12, 4), head::Eyes + 8.4, at(18, 3), head::Eyes + 5.6);
        clay.Crease(bag, 1.7, -0.35 - 0.7 * age);
        if (age < 0.35) continue;
        for (const double k : {-1.0, 0.0, 1.0})
            clay.Crease(Trace({{at(20.6, 2), head::Eyes + k * 1.4}, {at(24, 1), head::Eyes + k * 3.0 + 0.4}}),
                        0.9, -0.8 * age);
        clay.Crease(Trace({{at(2.4, 5), 50}, {at(2.0, 5), 56}}), 1.1, -0.8 * age);
    }
    if (age < 0.45) return;
    for (const double y : {37.0, 41.5, 46.0}) {
        QPainterPath furrow(QPointF(Turned(person, -15, 3), y + 1));
        furrow.quadTo(Turned(person, 0, 4), y - 1.6, Turned(person, 15, 3), y + 1);
        clay.Crease(furrow, 1.3, -0.6 * age);
    }
}

void Complexion(Clay& clay, const Person& person) {
    const double tip = head::NoseTip + (person.noseLength - 1) * 14;
    for (const double side : {-1.0, 1.0}) {
        clay.Blush(Turned(person, side * 17, 2), 75, 11, 8, person.blood, person.woman ? 0.34 : 0.26);
        clay.Blush(Turned(person, side * 13, 3), head::Eyes + 1, 9, 6, Darker(person.blood, 0.4), 0.32);
    }
    clay.Blush(Turned(person, 0, NoseDepth), tip + 0.5, 6, 4.5, person.blood, 0.34);
    clay.Blush(Turned(person, 0, 3), ChinOf(person) - 6, 8, 5, person.blood, 0.16);
    const auto mottle = [](float x, float y, float, float& height, QRgb& colour) {
        const float spot = Noise(x, y, 1.6f, 560, 4211) * 0.018f + Noise(x, y, 7, 560, 4217) * 0.03f;
        const auto less = [spot](int channel) {
            return std::clamp(static_cast<int>(static_cast<float>(channel) * (1 + spot)), 0, 255);
        };
        colour = qRgb(less(qRed(colour)), less(qGreen(colour)), less(qBlue(colour)));
        height += 0.04f * spot;
    };
    clay.Work(HeadOutline(person), mottle);
}

void Freckles(Clay& clay, const Person& person) {
    Dice dice(733);
    ClayBrush brush(clay);
    brush.setPen(Qt::NoPen);
    for (int i = 0; i < 90; ++i) {
        const double across = static_cast<double>(dice.Roll(-1, 1));
        const double x = Turned(person, across * 22, 5 - 4 * std::abs(across));
        const double y = 72 + static_cast<double>(dice.Roll(-6, 6)) - 2 * (1 - std::abs(across));
        QColor spot = Darker(person.blood, 0.25);
        spot.setAlphaF(0.25f + 0.3f * dice.Roll(0, 1));
        brush.setBrush(spot);
        const double size = 0.4 + static_cast<double>(dice.Roll(0, 0.4f));
        brush.drawEllipse(QPointF(x, y), size, size);
    }
}

// An old cut over the cheekbone.
void Scar(Clay& clay, const Person& person) {
    QPainterPath cut(QPointF(Turned(person, 15, 2), 70));
    cut.quadTo(Turned(person, 19, 2), 76, Turned(person, 17.5, 2), 85);
    clay.Crease(cut, 1.3, -0.9);
    ClayBrush brush(clay);
    QColor pale = Between(Ink::Fair, Ink::Rose, 0.3);
    pale.setAlphaF(0.75f);
    brush.setPen(QPen(pale, 0.9, Qt::SolidLine, Qt::RoundCap));
    brush.drawPath(cut);
}

}  // namespace

double ChinOf(const Person& person) {
    return 106 + person.length;
}

double HeadWidth(const Person& person, double y) {
    const double skull = 29 + person.cheeks * 0.5;
    const double chinTop = ChinOf(person) - 9.5;
    if (y <= head::Crown || y >= ChinOf(person)) return 0;
    if (y < Temple) {
        const double up = (Temple - y) / (Temple - head::Crown);
        return skull * std::pow(1 - std::pow(up, 2.2), 1 / 2.0);
    }
    const double chin = 15.5 + person.chin;
    if (y > chinTop) {
        const double down = (y - chinTop) / 9.5;
        return chin * std::pow(std::max(0.0, 1 - std::pow(down, 2.3)), 0.5);
    }
    struct Mark {
        double y, half;
    };
    const std::array<Mark, 7> profile{{{Temple - 8, skull - 0.6},
                                       {Temple, skull},
                                       {57, 28.2 + person.cheeks * 0.8},
                                       {67, 27.4 + person.cheeks},
                                       {84 + person.length * 0.4, 23.2 + person.jaw},
                                       {chinTop, chin},
                                       {chinTop + 6, chin - 8}}};
    for (std::size_t k = 1; k + 2 < profile.size(); ++k) {
        const Mark& a = profile[k];
        const Mark& b = profile[k + 1];
        if (y > b.y) continue;
        const auto slope = [&](const Mark& from, const Mark& to) {
            return (to.half - from.half) / (to.y - from.y) * (b.y - a.y);
        };
        const double t = (y - a.y) / (b.y - a.y);
        return a.half * (1 + 2 * t) * (1 - t) * (1 - t) + slope(profile[k - 1], b) * t * (1 - t) * (1 - t) +
               b.half * t * t * (3 - 2 * t) + slope(a, profile[k + 2]) * t * t * (t - 1);
    }
    return chin;
}

double Turned(const Person& person, double across, double depth) {
    const bool far = across * person.yaw > 0;
    return head::Middle + across * (1 - (far ? 0.16 : -0.02) * std::abs(person.yaw)) + person.yaw * depth;
}

QPainterPath HeadOutline(const Person& person, double wider) {
    QPainterPath path;
    const double bottom = ChinOf(person);
    constexpr int Steps = 90;
    for (const double side : {-1.0, 1.0}) {
        for (int k = 0; k <= Steps; ++k) {
            const double share = side < 0 ? k : Steps - k;
            const double y = head::Crown + (bottom - head::Crown) * share / Steps;
            const QPointF place(head::Middle + side * (HeadWidth(person, y) + wider), y);
            if (path.elementCount() == 0) {
                path.moveTo(place);
            } else {
                path.lineTo(place);
            }
        }
    }
    path.closeSubpath();
    return path;
}

void LayNeck(Clay& clay, const Person& person) {
    const double half = 15.5 + person.neck;
    const double bend = person.yaw * 1.5;
    QPainterPath neck(QPointF(head::Middle - half, 84));
    neck.cubicTo(head::Middle - half + 0.5, 108, head::Middle - half - 2, 116, head::Middle - half - 12, 124);
    neck.lineTo(head::Middle + half + 12, 124);
    neck.cubicTo(head::Middle + half + 2, 116, head::Middle + half - 0.5, 108, head::Middle + half, 84);
    neck.lineTo(head::Middle, 140);
    neck.closeSubpath();
    QPainterPath body = Rect(head::Middle - half, 84, half * 2, 40);
    body = body.united(neck);
    body.setFillRule(Qt::WindingFill);
    clay.Form(body, Stuff::Skin, Darker(person.skin, 0.06), [&](float x, float y, float) {
        const double wide = half + std::max(0.0, static_cast<double>(y) - 112) * 1.1;
        const double u = (static_cast<double>(x) - head::Middle) / (wide + 0.5);
        return static_cast<float>(-6 + 17 * std::sqrt(std::max(0.0, 1 - u * u)));
    });
    for (const double side : {-1.0, 1.0}) {
        QPainterPath cord(QPointF(head::Middle + side * (half - 1.5), 98));
        cord.quadTo(head::Middle + side * (half - 4), 112, head::Middle + side * 3.5 + bend, 124);
        clay.Crease(cord, 3, person.woman ? 0.9 : 1.7);
    }
    if (!person.woman) clay.Mound(head::Middle + bend, 114, 3.4, 4.5, 1.8);
}

void LayHead(Clay& clay, const Person& person) {
    LayEars(clay, person);
    const double chin = ChinOf(person);
    const double middleY = (head::Crown + chin) / 2;
    const double halfHeight = (chin - head::Crown) / 2;
    clay.Form(HeadOutline(person), Stuff::Skin, person.skin, [&](float x, float y, float) {
        const double wide = HeadWidth(person, static_cast<double>(y)) + 0.3;
        const double turn = person.yaw * 3.5;
        const double across = std::abs(static_cast<double>(x) - head::Middle);
        const double u = std::min(1.0, across / wide);
        const double lean = (static_cast<double>(x) - head::Middle) / wide * turn * 0.5;
        const double v = std::min(1.0, std::abs(static_cast<double>(y) - middleY) / halfHeight);
        const double dome = std::sqrt(std::max(0.0, 1 - std::pow(u, 2.5)));
        return static_cast<float>(FaceDepth * dome * std::sqrt(std::max(0.0, 1 - std::pow(v, 4.4))) + lean);
    });
    Complexion(clay, person);
    Bones(clay, person);
    Nose(clay, person);
    Mouth(clay, person);
    Age(clay, person);
    if (person.freckles) Freckles(clay, person);
    if (person.scar) Scar(clay, person);
    LayEyes(clay, person);
}

}  // namespace art
