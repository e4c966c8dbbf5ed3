#include "panel/pictograms.h"

#include "kit/shapes.h"

namespace art {
namespace {

QPainterPath HelmetSign() {
    QPainterPath path(QPointF(7, 28));
    path.cubicTo(7, 8, 35, 8, 35, 28);
    path.lineTo(38, 31);
    path.lineTo(30, 31);
    path.quadTo(21, 26, 12, 31);
    path.lineTo(4, 31);
    path.closeSubpath();
    return path;
}

QPainterPath VestSign() {
    return Polygon({{9, 6},
                    {15, 6},
                    {17, 11},
                    {25, 11},
                    {27, 6},
                    {33, 6},
                    {33, 15},
                    {36, 19},
                    {36, 37},
                    {6, 37},
                    {6, 19},
                    {9, 15}})
        .subtracted(Rect(20.2, 14, 1.6, 23))
        .subtracted(Rect(9.5, 24, 8, 8, 1))
        .subtracted(Rect(24.5, 24, 8, 8, 1));
}

QPainterPath PackSign() {
    return Rect(9, 9, 24, 28, 5)
        .united(Rect(16, 5, 10, 6, 2))
        .united(Rect(5, 20, 5, 13, 2))
        .united(Rect(32, 20, 5, 13, 2))
        .subtracted(Rect(9, 17, 24, 1.6))
        .subtracted(Rect(13, 23, 16, 9, 2));
}

QPainterPath PistolSign() {
    return Polygon(
        {{5, 13}, {36, 13}, {36, 20}, {22, 20}, {21, 24}, {17, 24}, {15, 35}, {7, 35}, {10, 21}, {5, 19}});
}

QPainterPath GrenadeSign() {
    return Ellipse(20, 26, 10, 11)
        .united(Rect(16, 10, 8, 7, 1))
        .united(Polygon({{22, 9}, {30, 9}, {34, 24}, {31, 26}, {27, 13}, {22, 13}}))
        .subtracted(Rect(9, 25, 22, 1.4))
        .subtracted(Rect(19.3, 16, 1.4, 20));
}

QPainterPath KnifeSign() {
    return Polygon({{34, 6}, {36, 13}, {20, 30}, {14, 25}})
        .united(Polygon({{11, 23}, {13, 21}, {23, 31}, {21, 33}}))
        .united(Polygon({{13, 27}, {17, 31}, {9, 38}, {5, 35}}));
}

QPainterPath RifleSign() {
    return Polygon({{14, 17},
                    {36, 18},
                    {70, 17},
                    {72, 15},
                    {76, 17},
                    {104, 18},
                    {104, 20.5},
                    {80, 21},
                    {64, 24},
                    {61, 35},
                    {54, 35},
                    {56, 24},
                    {50, 24},
                    {46, 33},
                    {40, 33},
                    {42, 24},
                    {32, 24},
                    {14, 30}});
}

QPainterPath HandSign() {
    QPainterPath path = Rect(12, 20, 17, 16, 5);
    for (int finger = 0; finger < 4; ++finger)
        path = path.united(Rect(12.3 + finger * 4.3, finger == 0 || finger == 3 ? 10 : 7, 3.5, 18, 1.7));
    return path.united(Polygon({{28, 25}, {34, 17}, {37, 19}, {30, 33}}));
}

}  // namespace

QPainterPath SignOf(Pictogram sign) {
    switch (sign) {
        case Pictogram::Helmet:
            return HelmetSign();
        case Pictogram::Vest:
            return VestSign();
        case Pictogram::Pack:
            return PackSign();
        case Pictogram::Pistol:
            return PistolSign();
        case Pictogram::Grenade:
            return GrenadeSign();
        case Pictogram::Knife:
            return KnifeSign();
        case Pictogram::Rifle:
            return RifleSign();
        case Pictogram::Hand:
            return HandSign();
    }
    return {};
}

}  // namespace art
