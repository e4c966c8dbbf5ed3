#include "portraits/portrait_hair.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "kit/noise.h"
#include "kit/relief.h"
#include "kit/shapes.h"
#include "portraits/portrait_face.h"

namespace art {
namespace {

constexpr float Untouched = std::numeric_limits<float>::quiet_NaN();
constexpr float NoisePeriod = 2000;

// A head of hair: strands run away from a pivot.
struct Growth {
    double pivotX, pivotY;
    float thickness;  // above the skull
    float strand;     // width of a strand
    float lock;       // width of a lock
    float ragged;     // pixels over which the edge frays
    float wave = 0;   // how far strands swing aside
    float body = 0;   // depth of hair that stands beyond the skull, 0 for none
};

struct Strand {
    float fine, coarse;
};

Strand StrandAt(const Growth& growth, float x, float y) {
    const float dx = x - static_cast<float>(growth.pivotX);
    const float dy = y - static_cast<float>(growth.pivotY);
    const float reach = std::sqrt(dx * dx + dy * dy);
    const float swing = growth.wave * std::sin(reach * 0.35f + 2 * Noise(x, y, 14, NoisePeriod, 517));
    const float around = (std::atan2(dx, -dy) + 4) * 34 + swing;
    return {Noise(around, reach * 0.10f + 300, growth.strand, NoisePeriod, 501),
            Noise(around, reach * 0.16f + 300, growth.lock, NoisePeriod, 507)};
}

QRgb Toned(const QColor& colour, float light) {
    const auto channel = [light](int value) {
        return std::clamp(static_cast<int>(static_cast<float>(value) * light), 0, 255);
    };
    return qRgb(channel(colour.red()), channel(colour.green()), channel(colour.blue()));
}

void Grow(Clay& clay, const QPainterPath& outline, const QColor& colour, const Growth& growth) {
    clay.Form(outline, Stuff::Hair, colour, [&](float x, float y, float edge) {
        const Strand strand = StrandAt(growth, x, y);
        if (edge < growth.ragged * (0.5f + 0.6f * strand.fine)) return Untouched;
        const float skull = clay.HeightAt(static_cast<double>(x), static_cast<double>(y));
        const float mass = growth.body > 0 ? growth.body * Rise(edge, 20) : -99;
        const float grown = skull + growth.thickness * Rise(edge, 3.5f);
        return std::max(mass, grown) + 0.7f * strand.fine + 1.5f * strand.coarse;
    });
    clay.Work(outline, [&](float x, float y, float edge, float&, QRgb& paint) {
        const Strand strand = StrandAt(growth, x, y);
        if (edge < growth.ragged * (0.5f + 0.6f * strand.fine)) return;
        paint = Toned(colour, 1 + 0.30f * strand.fine + 0.22f * strand.coarse);
    });
}

// The skull above a hairline that runs from temple to temple at `brow`, dips to `peak` in the middle and goes
// down to `side` in front of the ears.
QPainterPath Scalp(const Person& person, double brow, double side, double thick, double part = 0) {
    const double x = head::Middle + person.yaw * 2.5;
    const double left = head::Middle - HeadWidth(person, side) - thick * 0.45;
    const double right = head::Middle + HeadWidth(person, side) + thick * 0.45;
    const double wide = HeadWidth(person, 46) + thick * 0.8;
    const double top = head::Crown - thick;
    QPainterPath path(QPointF(left, side));
    path.cubicTo(head::Middle - wide - 1.5, 56, head::Middle - wide - 1, 24 - thick * 0.6,
                 head::Middle + part * 0.3, top);
    path.cubicTo(head::Middle + wide + 1, 24 - thick * 0.6, head::Middle + wide + 1.5, 56, right, side);
    path.lineTo(right - 2.6 - thick * 0.3, side);
    path.cubicTo(right - 3.5 - thick * 0.3, 58, x + 23.5, 52, x + 21, brow + 5);
    path.cubicTo(x + 15, brow - 1, x + 8, brow - 1.6, x + part, brow);
    path.cubicTo(x - 8, brow - 1.6, x - 15, brow - 1, x - 21, brow + 5);
    path.cubicTo(x - 23.5, 52, left + 3.5 + thick * 0.3, 58, left + 2.6 + thick * 0.3, side);
    path.closeSubpath();
    return path;
}

// A close crop: skin shows through.
void Crop(Clay& clay, const Person& person, double brow, float cover) {
    const QPainterPath scalp = Scalp(person, brow, 64, 0.6).intersected(HeadOutline(person, 1));
    clay.Work(scalp, [&](float x, float y, float edge, float& height, QRgb& paint) {
        const float grain = Noise(x, y, 0.7f, 560, 611) * 0.5f + Noise(x, y, 1.6f, 560, 613) * 0.35f;
        const float share = std::clamp(cover * std::min(1.0f, edge / 4.5f) + 0.32f * grain, 0.0f, 0.96f);
        const auto mix = [&](int skin, int hair) {
            return static_cast<int>(static_cast<float>(skin) + static_cast<float>(hair - skin) * share);
        };
        const QColor& hair = person.hair;
        paint = qRgb(mix(qRed(paint), hair.red()), mix(qGreen(paint), hair.green()),
                     mix(qBlue(paint), hair.blue()));
        height += (0.8f + 0.6f * grain) * share;
    });
}

void Parted(Clay& clay, const Person& person) {
    const QPainterPath scalp = Scalp(person, 37, 66, 3, -13);
    Grow(clay, scalp, person.hair, {head::Middle - 15, 27, 3.4f, 1.1f, 5, 1.6f, 0.8f});
}

void Spiky(Clay& clay, const Person& person) {
    Dice dice(37);
    QPainterPath hair = Scalp(person, 37, 66, 4);
    hair.setFillRule(Qt::WindingFill);
    for (int i = 0; i < 17; ++i) {
        const double turn = -1.35 + 2.7 * i / 16;
        const double reach = 33 + static_cast<double>(dice.Roll(0, 5));
        const QPointF tip(head::Middle + std::sin(turn + 0.12) * reach,
                          48 - std::cos(turn + 0.12) * (reach + 2));
        const QPointF a(head::Middle + std::sin(turn - 0.16) * 27, 48 - std::cos(turn - 0.16) * 29);
        const QPointF b(head::Middle + std::sin(turn + 0.16) * 27, 48 - std::cos(turn + 0.16) * 29);
        QPainterPath spike(a);
        spike.quadTo((a + tip) / 2 + QPointF(-0.6, -0.6), tip);
        spike.quadTo((b + tip) / 2, b);
        spike.closeSubpath();
        hair = hair.united(spike);
    }
    // A fringe of points falls over the forehead.
    for (int i = 0; i < 7; ++i) {
        const double x = head::Middle - 19 + i * 6.0;
        const double drop = 44.5 + static_cast<double>(dice.Roll(-2, 2.5f));
        hair = hair.united(Polygon({{x - 3.5, 35}, {x + 4.5, 35}, {x + 3.5, drop}, {x + 1, drop - 3}}));
    }
    Grow(clay, hair, person.hair, {head::Middle - 4, 26, 4, 1.2f, 4.5f, 0.7f, 0.6f, 20});
}

// Combed straight back and tied.
void Tied(Clay& clay, const Person& person) {
    Grow(clay, Scalp(person, 37, 65, 2.2), person.hair,
         {head::Middle + person.yaw * 2, 66, 2.4f, 1.0f, 4, 1.0f, 0.4f});
}

// A side fringe; the rest falls to the jaw and is laid behind the head as well.
void Bob(Clay& clay, const Person& person) {
    QPainterPath hair = Scalp(person, 38, 70, 4.5, -11);
    for (const double side : {-1.0, 1.0}) {
        const double x = head::Middle + side * 29;
        QPainterPath fall(QPointF(x - side * 7.5, 48));
        fall.cubicTo(x - side * 4.5, 64, x - side * 3.5, 78, x - side * 5.5, 97);
        fall.quadTo(x + side * 2, 101, x + side * 6.5, 96);
        fall.cubicTo(x + side * 8, 76, x + side * 7, 56, x + side * 2, 38);
        fall.closeSubpath();
        hair = hair.united(fall);
    }
    Grow(clay, hair, person.hair, {head::Middle - 13, 10, 4.0f, 1.1f, 5, 1.2f, 1.2f, 17});
}

QPainterPath CurlMass(const Person& person, double reach) {
    Dice dice(83);
    QPainterPath mass;
    mass.setFillRule(Qt::WindingFill);
    for (int i = 0; i < 46; ++i) {
        const double turn = -2.25 + 4.5 * i / 45;
        const double out = reach + static_cast<double>(dice.Roll(-2.5f, 3.5f));
        const double x = head::Middle + std::sin(turn) * out;
        const double y = 56 - std::cos(turn) * (out + 3) + std::max(0.0, std::abs(turn) - 1.6) * 8;
        mass.addPath(Lump(x, y, 6.8, 0.2, static_cast<std::uint32_t>(700 + i)));
    }
    mass.addPath(Scalp(person, 38, 72, 5));
    return mass.simplified();
}

void Curls(Clay& clay, const Person& person) {
    QPainterPath mass =
        CurlMass(person, 31).subtracted(Ellipse(head::Middle + person.yaw * 2.5, 70, 24.5, 33));
    const auto coil = [](float x, float y) {
        const float wander = Noise(x, y, 11, 560, 801);
        return std::sin((x * 0.55f + y * 0.8f) + 5 * wander) *
               std::cos((x * 0.8f - y * 0.45f) - 5 * Noise(x, y, 9, 560, 807));
    };
    clay.Form(mass, Stuff::Hair, person.hair, [&](float x, float y, float edge) {
        if (edge < 0.7f * (0.5f + Noise(x, y, 1, 560, 811))) return Untouched;
        return 26 * Rise(edge, 15) + 2.0f * coil(x, y) + 0.6f * Noise(x, y, 0.9f, 560, 813);
    });
    clay.Work(mass, [&](float x, float y, float edge, float&, QRgb& paint) {
        if (edge < 0.7f * (0.5f + Noise(x, y, 1, 560, 811))) return;
        paint = Toned(person.hair, 1 + 0.28f * coil(x, y) + 0.2f * Noise(x, y, 0.9f, 560, 813));
    });
}

// Coverage of a beard at a place: full along the jaw and under the nose, less on the cheek.
float BeardShare(const Person& person, float x, float y) {
    const auto chin = static_cast<float>(ChinOf(person));
    const auto middle = static_cast<float>(head::Middle + person.yaw * 4.2);
    const float mouth = 87 + static_cast<float>(person.length * 0.55 + (person.noseLength - 1) * 8);
    const float across = std::abs(x - middle);
    const float cheekLine = 80 - 0.35f * (across - 14) * (across > 22 ? 2.4f : 1);
    const float moustacheTop = mouth - 6.6f + 0.12f * across;
    const float lipX = across / 10.5f;
    const float lipY = (y - mouth - 0.6f) / 3.4f;
    const bool lips = lipX * lipX + lipY * lipY < 1;
    const float overLip =
        std::clamp((y - moustacheTop) / 1.6f, 0.0f, 1.0f) * std::clamp((14 - across) / 3, 0.0f, 1.0f);
    const float belowLip = std::clamp((y - mouth - 5.5f) / 2, 0.0f, 1.0f);
    switch (person.beard) {
        case Beard::Moustache: {
            // Bushy: it hides the upper lip and droops beside the corners.
            const float foot = mouth - 0.4f + 0.33f * across;
            return y < foot ? std::clamp((y - moustacheTop + 0.8f) / 1.4f, 0.0f, 1.0f) *
                                  std::clamp((15.5f - across) / 3, 0.0f, 1.0f)
                            : 0;
        }
        case Beard::Goatee: {
            const float ring = std::clamp((15.5f - across) / 3, 0.0f, 1.0f);
            const float upper = y < mouth ? overLip * 0.75f : 0;
            const float corner = across > 10 && y >= mouth - 3 ? ring * 0.8f : 0;
            const float patch = y > chin - 13 ? ring * std::clamp((13 - across) / 4, 0.0f, 1.0f) : 0;
            return lips ? 0
                        : std::max(
                              {upper, corner, patch, belowLip * std::clamp((3 - across) / 1.5f, 0.0f, 1.0f)});
        }
        default:
            break;
    }
    const float cheek =
        std::clamp((y - cheekLine) / 7, 0.0f, 1.0f) * std::clamp((across - 11) / 4, 0.0f, 1.0f);
    return lips ? 0
                : std::max({cheek, y < mouth + 2 ? overLip : 0, belowLip,
                            across > 9.5f ? std::clamp((y - mouth + 2) / 3, 0.0f, 1.0f) : 0});
}

void Stubble(Clay& clay, const Person& person) {
    clay.Work(HeadOutline(person), [&](float x, float y, float, float&, QRgb& paint) {
        const float share = BeardShare(person, x, y) * (0.30f + 0.22f * Noise(x, y, 0.7f, 560, 911));
        const auto mix = [&](int skin, int hair) {
            return static_cast<int>(static_cast<float>(skin) +
                                    static_cast<float>(hair - skin) * std::clamp(share, 0.0f, 1.0f));
        };
        paint = qRgb(mix(qRed(paint), person.hair.red()), mix(qGreen(paint), person.hair.green()),
                     mix(qBlue(paint), person.hair.blue()));
    });
}

void ThickBeard(Clay& clay, const Person& person) {
    const bool full = person.beard == Beard::Full;
    QPainterPath outline = HeadOutline(person, full ? 1.2 : 0);
    if (full) {
        const double chin = ChinOf(person);
        QPainterPath bush(QPointF(head::Middle - 27.5, 74));
        bush.cubicTo(head::Middle - 28, 98, head::Middle - 20, chin + 10, head::Middle, chin + 12);
        bush.cubicTo(head::Middle + 20, chin + 10, head::Middle + 28, 98, head::Middle + 27.5, 74);
        bush.closeSubpath();
        outline = outline.united(bush);
    }
    const Growth growth{head::Middle, 74, 0, 1.0f, 4, 0, 1.4f};
    clay.Form(outline, Stuff::Hair, person.hair, [&](float x, float y, float edge) {
        const Strand strand = StrandAt(growth, x, y);
        const float share = BeardShare(person, x, y);
        if (share < 0.42f + 0.34f * strand.fine || (full && edge < 1.4f * (0.5f + strand.fine)))
            return Untouched;
        const float face = clay.HeightAt(static_cast<double>(x), static_cast<double>(y));
        const float bush = full ? 27 * Rise(edge, 17) : -99;
        return std::max(face + (full ? 2.6f : 1.3f) * share, bush) + 0.7f * strand.fine +
               (full ? 1.1f : 0.4f) * strand.coarse;
    });
    clay.Work(outline, [&](float x, float y, float edge, float&, QRgb& paint) {
        const Strand strand = StrandAt(growth, x, y);
        const float share = BeardShare(person, x, y);
        if (share < 0.42f + 0.34f * strand.fine || (full && edge < 1.4f * (0.5f + strand.fine))) return;
        const float grey =
            full ? std::clamp(0.5f - std::abs(x - static_cast<float>(head::Middle)) / 18, 0.0f, 0.4f) : 0;
        paint = Toned(person.hair, 1 + 0.3f * strand.fine + 0.2f * strand.coarse + grey);
    });
}

}  // namespace

void LayBackHair(Clay& clay, const Person& person) {
    if (person.style == Hair::Bob) {
        Grow(clay, Rect(38, 40, 64, 58, 16), person.hair.darker(140),
             {head::Middle, 10, 0, 1.2f, 5, 1, 1, 6});
    } else if (person.style == Hair::Curls) {
        Grow(clay, CurlMass(person, 30).united(Rect(36, 60, 68, 46, 18)), person.hair.darker(140),
             {head::Middle, 30, 0, 1.4f, 5, 2, 5, 6});
    } else if (person.style == Hair::Ponytail) {
        QPainterPath tail(QPointF(92, 84));
        tail.cubicTo(104, 92, 107, 108, 101, 124);
        tail.cubicTo(97, 128, 92, 124, 91, 118);
        tail.cubicTo(94, 106, 90, 98, 84, 92);
        tail.closeSubpath();
        Grow(clay, tail, person.hair, {80, 70, 0, 1.0f, 4, 1, 1.5f, 10});
    }
}

void LayBeard(Clay& clay, const Person& person) {
    if (person.beard == Beard::None) return;
    if (person.beard == Beard::Stubble || person.beard == Beard::Full) Stubble(clay, person);
    if (person.beard != Beard::Stubble) ThickBeard(clay, person);
}

void LayHair(Clay& clay, const Person& person) {
    switch (person.style) {
        case Hair::Shaved:
            Crop(clay, person, 39, 0.22f);
            return;
        case Hair::Cropped:
            Crop(clay, person, 38, 0.82f);
            return;
        case Hair::Parted:
            Parted(clay, person);
            return;
        case Hair::Spiky:
            Spiky(clay, person);
            return;
        case Hair::Tied:
        case Hair::Ponytail:
            Tied(clay, person);
            return;
        case Hair::Bob:
            Bob(clay, person);
            return;
        case Hair::Curls:
            Curls(clay, person);
            return;
    }
}

}  // namespace art
