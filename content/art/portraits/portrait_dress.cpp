#include "portraits/portrait_dress.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "kit/noise.h"
#include "kit/relief.h"
#include "kit/shapes.h"
#include "portraits/portrait_face.h"

namespace art {
namespace {

constexpr double Middle = head::Middle;

QRgb Toned(QRgb colour, float light) {
    const auto channel = [light](int value) {
        return std::clamp(static_cast<int>(static_cast<float>(value) * light), 0, 255);
    };
    return qRgb(channel(qRed(colour)), channel(qGreen(colour)), channel(qBlue(colour)));
}

// Woven cloth with the blotches of a camouflage print.
void Weave(Clay& clay, const QPainterPath& outline, const QColor& ground, bool printed) {
    const QColor dark = ground.darker(150);
    const QColor warm = Between(Ink::Bark, Ink::Khaki, 0.35);
    clay.Work(outline, [&](float x, float y, float, float& height, QRgb& paint) {
        const float a = Noise(x, y * 1.35f, 8, 560, 1201) + 0.5f * Noise(x, y, 3.5f, 560, 1207);
        const float b = Noise(x, y * 1.35f, 9, 560, 1213) + 0.5f * Noise(x, y, 3.5f, 560, 1217);
        if (printed && a > 0.34f)
            paint = dark.rgb();
        else if (printed && b > 0.42f)
            paint = warm.rgb();
        const float thread =
            0.05f * Noise(x, y, 0.8f, 560, 1223) + 0.03f * std::sin(x * 5.5f) * std::sin(y * 5.5f);
        paint = Toned(paint, 1 + thread);
        height += 0.08f * Noise(x, y, 1, 560, 1229) + 0.7f * Noise(x * 1.6f, y * 0.7f, 8, 560, 1231);
    });
}

QPainterPath Torso(const Person& person) {
    const double shoulder = person.woman ? 54 : 60 + person.neck * 0.8;
    const double slope = person.woman ? 119 : 117;
    QPainterPath torso(QPointF(Middle - 19 - person.neck, 110));
    torso.cubicTo(Middle - 30, slope - 1, Middle - 42, slope + 1, Middle - shoulder, slope + 11);
    torso.lineTo(Middle - shoulder - 14, 150);
    torso.lineTo(Middle + shoulder + 14, 150);
    torso.lineTo(Middle + shoulder, slope + 11);
    torso.cubicTo(Middle + 42, slope + 1, Middle + 30, slope - 1, Middle + 19 + person.neck, 110);
    torso.quadTo(Middle, 128, Middle - 19 - person.neck, 110);
    torso.closeSubpath();
    return torso;
}

void Collar(Clay& clay, const Person& person) {
    const double n = person.neck;
    for (const double side : {-1.0, 1.0}) {
        QPainterPath flap(QPointF(Middle + side * (18 + n), 107));
        flap.quadTo(Middle + side * (23 + n), 110, Middle + side * (24 + n), 116);
        flap.lineTo(Middle + side * 21.5, 134);
        flap.lineTo(Middle + side * 5.5, 128.5);
        flap.quadTo(Middle + side * 13, 120, Middle + side * (18 + n), 107);
        flap.closeSubpath();
        clay.Form(flap, Stuff::Cloth, person.cloth,
                  [&](float, float, float edge) { return 16 + 2.2f * Rise(edge, 2.2f); });
        Weave(clay, flap, person.cloth, true);
        ClayBrush brush(clay);
        QColor seam = person.cloth.darker(190);
        seam.setAlphaF(0.6f);
        brush.setPen(QPen(seam, 0.6, Qt::DashLine));
        brush.drawLine(QPointF(Middle + side * 8, 128), QPointF(Middle + side * 20.4, 132));
    }
}

void Straps(Clay& clay, const Person& person) {
    for (const double side : {-1.0, 1.0}) {
        const QPainterPath strap = Polygon({{Middle + side * 35, 117.5},
                                            {Middle + side * 45, 120},
                                            {Middle + side * 44, 146},
                                            {Middle + side * 33, 146}});
        clay.Form(strap, Stuff::Cloth, person.cloth.darker(128),
                  [](float, float, float edge) { return 17 + 2.6f * Rise(edge, 2); });
        Weave(clay, strap, person.cloth, false);
        const QPainterPath buckle = Rect(Middle + side * 39 - 5, 129, 10, 4, 0.8);
        clay.Form(buckle, Stuff::Shell, Colour(Ink::Iron),
                  [](float, float, float edge) { return 20.5f + Rise(edge, 1); });
    }
}

// A dome over the skull from a brow line on, with the volume of a head and more.
QPainterPath Dome(double half, double top, double brow, double sag) {
    QPainterPath dome(QPointF(Middle - half, brow));
    dome.cubicTo(Middle - half - 0.5, brow - (brow - top) * 0.75, Middle - half * 0.62, top, Middle, top);
    dome.cubicTo(Middle + half * 0.62, top, Middle + half + 0.5, brow - (brow - top) * 0.75, Middle + half,
                 brow);
    dome.quadTo(Middle, brow + sag, Middle - half, brow);
    dome.closeSubpath();
    return dome;
}

float DomeHeight(double half, double top, double brow, float depth, float x, float y) {
    const double u = std::min(1.0, std::abs(static_cast<double>(x) - Middle) / (half + 0.5));
    const double v = std::clamp((brow - static_cast<double>(y)) / (brow - top), 0.0, 1.0);
    return depth * static_cast<float>(std::sqrt(std::max(0.0, 1 - std::pow(u, 2.3))) *
                                      std::sqrt(std::max(0.0, 1 - std::pow(v, 2.8))));
}

void Strap(Clay& clay, const Person& person, bool loose) {
    const double chin = ChinOf(person);
    for (const double side : {-1.0, 1.0}) {
        QPainterPath strap(QPointF(Middle + side * 28.5, 56));
        if (loose) {
            strap.cubicTo(Middle + side * 31, 76, Middle + side * 30, 96, Middle + side * 25, 112);
        } else {
            strap.cubicTo(Middle + side * 28, 76, Middle + side * 24, 92, Middle + side * 10, chin + 0.5);
        }
        clay.Form(Widened(strap, 2.8, Qt::FlatCap, Qt::RoundJoin), Stuff::Cloth, Colour(Ink::Loam),
                  [&](float x, float y, float edge) {
                      return std::max(6.0f, clay.HeightAt(static_cast<double>(x), static_cast<double>(y))) +
                             0.7f + 0.6f * Rise(edge, 1);
                  });
    }
    if (loose) return;
    clay.Form(Ellipse(Middle + person.yaw * 3, chin - 1.5, 9.5, 3.2), Stuff::Cloth, Colour(Ink::Loam),
              [&](float x, float y, float edge) {
                  return clay.HeightAt(static_cast<double>(x), static_cast<double>(y)) +
                         1.2f * Rise(edge, 1.6f);
              });
}

void Helmet(Clay& clay, const Person& person) {
    constexpr double Half = 38.5;
    constexpr double Top = 7;
    constexpr double Brow = 50;
    Strap(clay, person, person.age < 0.2);
    for (const double side : {-1.0, 1.0}) {
        QPainterPath flank(QPointF(Middle + side * 27, 44));
        flank.lineTo(Middle + side * 39, 46);
        flank.quadTo(Middle + side * 39, 66, Middle + side * 35, 73);
        flank.quadTo(Middle + side * 31, 74, Middle + side * 30, 62);
        flank.closeSubpath();
        clay.Form(flank, Stuff::Shell, person.headgear.darker(118),
                  [](float, float, float edge) { return 10 + 8 * Rise(edge, 5); });
        Weave(clay, flank, person.headgear.darker(118), true);
    }
    const QPainterPath dome = Dome(Half, Top, Brow, -6);
    clay.Form(dome, Stuff::Shell, person.headgear,
              [&](float x, float y, float) { return 4 + DomeHeight(Half, Top, Brow + 6, 42, x, y); });
    Weave(clay, dome, person.headgear, true);
    QPainterPath band(QPointF(Middle - 38, 42.5));
    band.quadTo(Middle, 35.5, Middle + 38, 42.5);
    clay.Form(Widened(band, 3, Qt::FlatCap, Qt::RoundJoin).intersected(dome), Stuff::Cloth,
              person.headgear.darker(150), [&](float x, float y, float edge) {
                  return clay.HeightAt(static_cast<double>(x), static_cast<double>(y)) +
                         0.9f * Rise(edge, 1.2f);
              });
    QPainterPath brim(QPointF(Middle - 38.8, 50.5));
    brim.quadTo(Middle, 43.5, Middle + 38.8, 50.5);
    clay.Form(Widened(brim, 2.6, Qt::RoundCap, Qt::RoundJoin), Stuff::Shell, person.headgear.darker(135),
              [&](float x, float, float edge) {
                  const double u = std::min(1.0, std::abs(static_cast<double>(x) - Middle) / 40);
                  return 10 + 35 * static_cast<float>(std::sqrt(1 - u * u)) + 1.2f * Rise(edge, 1.2f);
              });
}

void Cap(Clay& clay, const Person& person) {
    constexpr double Half = 32.5;
    constexpr double Top = 12;
    constexpr double Brow = 45;
    const QPainterPath dome = Dome(Half, Top, Brow, -5);
    clay.Form(dome, Stuff::Cloth, person.headgear,
              [&](float x, float y, float) { return 3 + DomeHeight(Half, Top, Brow + 8, 37, x, y); });
    Weave(clay, dome, person.headgear, true);
    QPainterPath rim(QPointF(Middle - 31.5, 23));
    rim.quadTo(Middle, 17, Middle + 31.5, 23);
    clay.Crease(rim, 2.2, 1.6);
    const double x = Middle + person.yaw * 5;
    QPainterPath visor(QPointF(Middle - 29.5, 43.5));
    visor.quadTo(Middle, 35, Middle + 29.5, 43.5);
    visor.cubicTo(x + 29, 51.5, x + 15, 53.5, x, 53.5);
    visor.cubicTo(x - 15, 53.5, x - 29, 51.5, Middle - 29.5, 43.5);
    visor.closeSubpath();
    clay.Form(visor, Stuff::Cloth, person.headgear, [&](float px, float py, float edge) {
        const double u = std::min(1.0, std::abs(static_cast<double>(px) - Middle) / 33);
        return 33 + 6 * static_cast<float>(std::sqrt(1 - u * u)) + 0.15f * (py - 40) +
               0.8f * Rise(edge, 1.5f);
    });
    Weave(clay, visor, person.headgear, true);
}

// A wool beret pulled down to the picture's right, with the badge over the left eye.
void Beret(Clay& clay, const Person& person) {
    QPainterPath beret(QPointF(Middle - 31.5, 43));
    beret.cubicTo(Middle - 34, 26, Middle - 22, 9, Middle + 4, 9);
    beret.cubicTo(Middle + 28, 8, Middle + 44, 22, Middle + 45, 40);
    beret.cubicTo(Middle + 45, 52, Middle + 38, 58, Middle + 32.5, 54);
    beret.quadTo(Middle + 30, 46, Middle + 20, 42);
    beret.quadTo(Middle, 35, Middle - 31.5, 43);
    beret.closeSubpath();
    clay.Form(beret, Stuff::Cloth, person.headgear, [](float x, float y, float edge) {
        return 6 + 34 * Rise(edge, 21) + 1.2f * Noise(x, y, 12, 560, 1301);
    });
    Weave(clay, beret, person.headgear, false);
    clay.Crease(Trace({{Middle + 8, 30}, {Middle + 24, 27}, {Middle + 38, 40}}), 5, -2.2);
    clay.Crease(Trace({{Middle - 8, 30}, {Middle + 8, 19}, {Middle + 30, 20}}), 6, 1.4);
    QPainterPath band(QPointF(Middle - 31.5, 43.5));
    band.quadTo(Middle, 35.5, Middle + 20, 42.5);
    band.quadTo(Middle + 29, 46, Middle + 32, 54);
    clay.Form(Widened(band, 3, Qt::RoundCap, Qt::RoundJoin), Stuff::Cloth, Colour(Ink::Soot),
              [&](float x, float, float edge) {
                  const double u = std::min(1.0, std::abs(static_cast<double>(x) - Middle) / 34);
                  return 5 + 33 * static_cast<float>(std::sqrt(1 - u * u)) + 0.8f * Rise(edge, 1.4f);
              });
    clay.Form(Star(Middle - 14, 32, 5.2, 2.4, 8, 0.2), Stuff::Shell, Colour(Ink::Chalk),
              [](float, float, float edge) { return 40 + 1.5f * Rise(edge, 1.6f); });
    clay.Form(Ellipse(Middle - 14, 32, 1.7, 1.7), Stuff::Shell, Colour(Ink::Gold),
              [](float, float, float edge) { return 42 + Rise(edge, 1.2f); });
}

void Knit(Clay& clay, const Person& person) {
    const QPainterPath dome = Dome(32, 11, 44, -3);
    const auto ribs = [](float x, float y) {
        return std::sin((x - static_cast<float>(Middle)) * 1.9f / (0.55f + 0.012f * y));
    };
    clay.Form(dome, Stuff::Cloth, person.headgear, [&](float x, float y, float) {
        return 3 + DomeHeight(32, 11, 50, 36, x, y) + 0.6f * ribs(x, y) + 0.3f * Noise(x, y, 1, 560, 1401);
    });
    Weave(clay, dome, person.headgear, false);
    QPainterPath cuff(QPointF(Middle - 32.5, 45));
    cuff.quadTo(Middle, 39, Middle + 32.5, 45);
    const QPainterPath fold = Widened(cuff, 12, Qt::FlatCap, Qt::RoundJoin);
    clay.Form(fold, Stuff::Cloth, person.headgear.lighter(112), [&](float x, float, float edge) {
        const double u = std::min(1.0, std::abs(static_cast<double>(x) - Middle) / 34);
        return 5 + 34 * static_cast<float>(std::sqrt(1 - std::pow(u, 2.4))) + 1.6f * Rise(edge, 2.4f) +
               0.8f * ribs(x, 44);
    });
    Weave(clay, fold, person.headgear, false);
}

void Bandana(Clay& clay, const Person& person) {
    const QPainterPath knot = Polygon({{Middle + 30, 46},
                                       {Middle + 41, 44},
                                       {Middle + 45, 58},
                                       {Middle + 38, 54},
                                       {Middle + 37, 64},
                                       {Middle + 31, 54}});
    clay.Form(knot, Stuff::Cloth, person.headgear.darker(120),
              [](float, float, float edge) { return 2 + 4 * Rise(edge, 4); });
    const QPainterPath dome = Dome(31.5, 15, 46, -7);
    clay.Form(dome, Stuff::Cloth, person.headgear,
              [&](float x, float y, float) { return 2.5f + DomeHeight(31.5, 15, 54, 36, x, y); });
    Weave(clay, dome, person.headgear, true);
    for (int i = 0; i < 4; ++i) {
        QPainterPath fold(QPointF(Middle - 29, 40 - i * 5));
        fold.quadTo(Middle, 33 - i * 5.5, Middle + 29, 43 - i * 2.5);
        clay.Crease(fold, 2.2, i % 2 == 0 ? 1.0 : -0.9);
    }
}

void Headband(Clay& clay, const Person& person) {
    QPainterPath band(QPointF(Middle - 30, 45));
    band.quadTo(Middle, 36, Middle + 30, 45);
    const QPainterPath cloth = Widened(band, 7, Qt::FlatCap, Qt::RoundJoin);
    clay.Form(cloth, Stuff::Cloth, person.headgear, [](float x, float, float edge) {
        const double u = std::min(1.0, std::abs(static_cast<double>(x) - Middle) / 31);
        return 5 + 30 * static_cast<float>(std::sqrt(1 - std::pow(u, 2.4))) + 1.2f * Rise(edge, 2);
    });
    Weave(clay, cloth, person.headgear, false);
    clay.Crease(band, 1.2, -0.8);
}

void Headset(Clay& clay, const Person& person) {
    QPainterPath bow(QPointF(Middle - 33, 62));
    bow.cubicTo(Middle - 37, 4, Middle + 37, 4, Middle + 33, 62);
    clay.Form(Widened(bow, 3.4, Qt::FlatCap, Qt::RoundJoin), Stuff::Shell, Colour(Ink::Soot),
              [](float, float y, float edge) {
                  return 8 + 0.35f * std::max(0.0f, 60 - y) + 1.5f * Rise(edge, 1.6f);
              });
    for (const double side : {-1.0, 1.0}) {
        const double x = Middle + side * (33.5 + person.cheeks * 0.7) - person.yaw * 1.5;
        clay.Form(Ellipse(x, 66, 6.6, 11), Stuff::Shell, Colour(Ink::Iron),
                  [](float, float, float edge) { return 8 + 6 * Rise(edge, 4); });
        clay.Form(Ellipse(x + side * 1.4, 66, 4.2, 7.6), Stuff::Shell, Colour(Ink::Asphalt),
                  [](float, float, float edge) { return 14 + 2 * Rise(edge, 2); });
    }
    QPainterPath boom(QPointF(Middle - 33, 72));
    boom.cubicTo(Middle - 32, 86, Middle - 27, 94, Middle - 15, 93.5);
    clay.Form(Widened(boom, 1.5, Qt::FlatCap, Qt::RoundJoin), Stuff::Shell, Colour(Ink::Soot),
              [](float x, float, float edge) { return 16 + 0.9f * (x - 38) * 0.7f + Rise(edge, 0.8f); });
    clay.Form(Ellipse(Middle - 13.5, 93.2, 3.6, 2.5), Stuff::Shell, Colour(Ink::Soot),
              [](float, float, float edge) { return 35 + 1.6f * Rise(edge, 2); });
}

void Glasses(Clay& clay, const Person& person) {
    ClayBrush brush(clay);
    const QColor rim = Between(Ink::Soot, Ink::Loam, 0.4);
    QPointF inner[2];
    int place = 0;
    for (const double side : {-1.0, 1.0}) {
        const double x = Turned(person, side * 13, 5);
        const QRectF lens(x - 9.2, head::Eyes - 5.4, 18.4, 13.2);
        QLinearGradient glare(lens.topLeft(), lens.bottomRight());
        QColor sky = Colour(Ink::Foam);
        sky.setAlphaF(0.34f);
        QColor clear = sky;
        clear.setAlphaF(0.02f);
        glare.setColorAt(0, sky);
        glare.setColorAt(0.42, clear);
        glare.setColorAt(1, clear);
        QColor shade = Colour(Ink::Peat);
        shade.setAlphaF(0.28f);
        brush.setBrush(Qt::NoBrush);
        brush.setPen(QPen(shade, 1.6));
        brush.drawRoundedRect(lens.translated(0.9, 1.3), 5, 5.4);
        brush.setBrush(glare);
        brush.setPen(QPen(rim, 1.15));
        brush.drawRoundedRect(lens, 5, 5.4);
        QColor lit = Colour(Ink::Fieldstone);
        brush.setPen(QPen(lit, 0.45));
        brush.drawLine(lens.topLeft() + QPointF(4.5, 0.1), lens.topRight() + QPointF(-5, 0.1));
        brush.setPen(QPen(rim, 1.2));
        brush.drawLine(QPointF(x + side * 9.2, head::Eyes - 1),
                       QPointF(Middle + side * 30, head::Eyes - 0.5));
        inner[place++] = QPointF(x - side * 9.2, head::Eyes - 0.6);
    }
    QPainterPath bridge(inner[0]);
    bridge.quadTo((inner[0] + inner[1]) / 2 - QPointF(0, 2.4), inner[1]);
    brush.setBrush(Qt::NoBrush);
    brush.setPen(QPen(rim, 1.2));
    brush.drawPath(bridge);
}

}  // namespace

void LayUniform(Clay& clay, const Person& person) {
    QPainterPath shirt(QPointF(Middle - 17 - person.neck, 112));
    shirt.quadTo(Middle, 131, Middle + 17 + person.neck, 112);
    shirt.lineTo(Middle + 24, 146);
    shirt.lineTo(Middle - 24, 146);
    shirt.closeSubpath();
    clay.Form(shirt, Stuff::Cloth, person.shirt, [](float x, float, float edge) {
        const float u = (x - static_cast<float>(Middle)) / 40;
        return 11 - 6 * u * u + 1.4f * Rise(edge, 2);
    });
    Weave(clay, shirt, person.shirt, false);
    const QPainterPath torso = Torso(person).subtracted(Polygon({{Middle - 17 - person.neck, 104},
                                                                 {Middle + 17 + person.neck, 104},
                                                                 {Middle + 3, 141},
                                                                 {Middle - 3, 141}}));
    clay.Form(torso, Stuff::Cloth, person.cloth, [](float x, float y, float) {
        const double u = std::min(1.0, std::abs(static_cast<double>(x) - Middle) / 84);
        const double drop = std::clamp((static_cast<double>(y) - 108) / 26, 0.0, 1.0);
        return static_cast<float>(-8 + 25 * std::sqrt(1 - u * u) * std::sqrt(drop * (2 - drop)));
    });
    Weave(clay, torso, person.cloth, true);
    Straps(clay, person);
    Collar(clay, person);
}

void LayGear(Clay& clay, const Person& person) {
    if (person.glasses) Glasses(clay, person);
    switch (person.gear) {
        case Gear::Bare:
            return;
        case Gear::Headset:
            Headset(clay, person);
            return;
        case Gear::Helmet:
            Helmet(clay, person);
            return;
        case Gear::Cap:
            Cap(clay, person);
            return;
        case Gear::Beret:
            Beret(clay, person);
            return;
        case Gear::Knit:
            Knit(clay, person);
            return;
        case Gear::Bandana:
            Bandana(clay, person);
            return;
        case Gear::Headband:
            Headband(clay, person);
            return;
    }
}

}  // namespace art
