#include "things/ammunition.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "kit/shapes.h"

namespace art {
namespace {

constexpr int DrumFrom = 60;

Solid Piece(Ink ink, float height = 1.8f, float base = 0, float round = 1.8f) {
    return {.colour = Colour(ink),
            .height = height,
            .base = base,
            .round = round,
            .grain = 0.06f,
            .grainSize = 1.4f};
}

// A round that points up: brass case and a tip.
void LayRound(Relief& relief, double x, double y, double width, double length, Ink tip, float base = 1) {
    const double neck = y + length * 0.42;
    relief.Lay(Polygon({{x - width / 2, neck},
                        {x - width * 0.3, y + length * 0.14},
                        {x, y},
                        {x + width * 0.3, y + length * 0.14},
                        {x + width / 2, neck}}),
               Piece(tip, 1.4f, base, 1.2f));
    relief.Lay(Rect(x - width / 2, neck, width, length - (neck - y), 0.6),
               Piece(Ink::Gold, 1.6f, base, 1.4f));
}

double Length(int size) {
    return std::min(10 + 2.5 * std::sqrt(size), 31.0);
}

void LayStraight(Relief& relief, const AmmoKind& kind, int size) {
    const double length = Length(size);
    const double top = 22 - length / 2;
    LayRound(relief, 21, top - 5, 5, 9, kind.tip, 0.4f);
    relief.Lay(Polygon({{15, top}, {27, top}, {28.4, top + length}, {16.4, top + length}}),
               Piece(kind.body, 2.4f, 0, 2.4f));
    relief.Lay(Rect(15.2, top + length - 1, 14.4, 3, 0.8), Piece(Ink::Iron, 2.8f));
    relief.StainLine(Trace({{19.4, top + 3}, {20.4, top + length - 3}}), 1, Colour(Ink::Soot), 0.7);
    relief.StainLine(Trace({{23.6, top + 3}, {24.6, top + length - 3}}), 1, Colour(Ink::Soot), 0.7);
}

void LayCurved(Relief& relief, const AmmoKind& kind, int size) {
    const double length = Length(size);
    const double top = 22 - length / 2;
    LayRound(relief, 16.4, top - 5, 4.6, 9, kind.tip, 0.4f);
    QPainterPath curve(QPointF(17, top));
    curve.quadTo(17.4, top + length * 0.56, 17 + length * 0.4, top + length);
    relief.LayLine(curve, 11.6, Piece(kind.body, 2.4f, 0, 3), Qt::FlatCap);
    for (const double at : {-2.4, 1.6}) {
        QPainterPath rib(QPointF(17 + at, top + 3));
        rib.quadTo(17.4 + at, top + length * 0.56, 17 + length * 0.36 + at, top + length - 3);
        relief.StainLine(rib, 1, Colour(Ink::Soot), 0.7);
    }
}

void LayDrum(Relief& relief, const AmmoKind& kind) {
    LayRound(relief, 21, 1, 4.6, 8, kind.tip, 0.4f);
    relief.Lay(Rect(15.6, 7, 10.8, 12, 1), Piece(kind.body, 2));
    relief.Lay(Ellipse(21, 26, 13.4, 13.4), Piece(kind.body, 3, 0, 3));
    relief.Lay(Ellipse(21, 26, 9.6, 9.6), Piece(kind.body, 1, 3, 1.6f));
    relief.Lay(Ellipse(21, 26, 3.4, 3.4), Piece(Ink::Ash, 1.4f, 4));
    for (int i = 0; i < 6; ++i) {
        const double angle = i * 1.0472;
        relief.StainLine(Trace({{21 + 4.6 * std::cos(angle), 26 + 4.6 * std::sin(angle)},
                                {21 + 8.6 * std::cos(angle), 26 + 8.6 * std::sin(angle)}}),
                         1, Colour(Ink::Soot), 0.7);
    }
}

void LayBelt(Relief& relief, const AmmoKind& kind) {
    relief.Lay(Rect(8, 15, 27, 23, 2), Piece(kind.body, 3, 0, 2.4f));
    relief.StainLine(Trace({{9, 20.4}, {34, 20.4}}), 1.2, Colour(Ink::Jacket));
    relief.Lay(Rect(17, 19, 8, 4.6, 0.8), Piece(Ink::Ash, 1, 3));
    for (int i = 0; i < 6; ++i)
        LayRound(relief, 6.6 + i * 4.2, 5 + std::abs(i - 3) * 0.9, 3.2, 11, kind.tip, 3);
    relief.StainLine(Trace({{5, 13.4}, {29, 13}}), 1.2, Colour(Ink::Iron), 0.9);
}

void LayBox(Relief& relief, const AmmoKind& kind) {
    relief.Lay(Rect(6, 17, 30, 20, 1), Piece(kind.body, 3, 0, 2));
    relief.Stain(Rect(6.6, 23, 28.8, 7), Colour(Ink::Shell), 0.9);
    relief.StainLine(Trace({{9, 25.4}, {24, 25.4}}), 1, Colour(Ink::Iron));
    relief.StainLine(Trace({{9, 27.8}, {19, 27.8}}), 1, Colour(Ink::Iron));
    for (int i = 0; i < 5; ++i)
        LayRound(relief, 10 + i * 5.4, 7.6 + (i % 2) * 1.6, 3.6, 10, kind.tip, 1);
}

void LayClip(Relief& relief, const AmmoKind& kind, int size) {
    const int shown = std::min(size, 5);
    for (int i = 0; i < shown; ++i)
        LayRound(relief, 9.6 + i * 5.8, 6 + i * 0.8, 4.6, 26, kind.tip);
    relief.Lay(Polygon({{5, 30}, {37, 33}, {37, 37}, {5, 34}}), Piece(Ink::Ash, 2, 2));
}

void LayShells(Relief& relief, int size) {
    for (int i = 0; i < size; ++i) {
        const int row = i / 6;
        const double x = 8 + i % 6 * 5.2;
        const double y = size > 6 ? 5.0 + row * 17 : 12;
        relief.Lay(Rect(x - 2.3, y, 4.6, 11, 0.8), Piece(Ink::Crimson, 1.8f, 0, 2));
        relief.Lay(Rect(x - 2.5, y + 10, 5, 5, 0.6), Piece(Ink::Gold, 2, 0, 1.8f));
    }
}

void LayGrenadeRound(Relief& relief) {
    QPainterPath nose(QPointF(12, 19));
    nose.cubicTo(12, 2, 30, 2, 30, 19);
    nose.closeSubpath();
    relief.Lay(nose, Piece(Ink::Gold, 4, 0, 7));
    relief.Lay(Rect(11, 18.4, 20, 5, 1), Piece(Ink::Ash, 3.4f, 0, 4));
    relief.Lay(Rect(12, 23, 18, 14, 1), Piece(Ink::Olive, 4, 0, 6));
    relief.Lay(Rect(11, 35.6, 20, 3, 0.8), Piece(Ink::Cement, 3.4f, 0, 3));
    relief.Stain(Rect(13, 27, 16, 1.6), Colour(Ink::Straw));
}

void LayArrows(Relief& relief, int count, double length, Ink fletch, Ink head) {
    const double step = 26.0 / count;
    for (int i = 0; i < count; ++i) {
        const double x = 8.4 + i * step;
        const double top = 21 - length / 2;
        relief.LayLine(Trace({{x, top + 3}, {x, top + length}}), 1.4, Piece(Ink::Sand, 1));
        relief.Lay(Polygon({{x, top - 2}, {x + 1.8, top + 4}, {x - 1.8, top + 4}}), Piece(head, 1.2f));
        relief.Lay(Polygon({{x - 2, top + length + 1},
                            {x - 2, top + length - 5},
                            {x, top + length - 8},
                            {x + 2, top + length - 5},
                            {x + 2, top + length + 1},
                            {x, top + length - 1}}),
                   Piece(fletch, 1.2f));
    }
}

// The see-through magazine that lies along the top of a gun.
void LayLong(Relief& relief, const AmmoKind& kind) {
    relief.Lay(Rect(3, 15, 36, 12, 3), Piece(kind.body, 2.4f, 0, 3));
    for (int i = 0; i < 9; ++i)
        relief.Lay(Rect(6 + i * 3.2, 17.4, 2, 7.2, 0.8), Piece(Ink::Gold, 0.8f, 2.4f, 0.8f));
    relief.Lay(Ellipse(35.4, 21, 5, 6.6), Piece(Ink::Slate, 3));
}

}  // namespace

const std::vector<AmmoKind>& AmmoKinds() {
    using enum Ink;
    static const std::vector<AmmoKind> table = {
        {"9para", {10, 17, 31, 49}, Holder::Straight, Slate, Amber},
        {"5nato", {10, 20, 30, 120}, Holder::Curved, Ash, Signal},
        {"8lapua", {10, 18, 0, 0}, Holder::Straight, Asphalt, Amber},
        {"40gren", {3, 12, 0, 0}, Holder::Round, Olive, Gold},
        {"7ak", {31, 62, 0, 0}, Holder::Curved, Slate, Amber},
        {"5saw", {200, 0, 0, 0}, Holder::Belt, Olive, Signal},
        {"12gauge", {12, 6, 0, 0}, Holder::Shells, Crimson, Gold},
        {"9sp", {10, 20, 0, 0}, Holder::Straight, Brick, Slate},
        {"arrows", {8, 0, 0, 0}, Holder::Arrows, Sand, Cement},
        {"7nato", {5, 10, 20, 30}, Holder::Straight, Slate, Amber},
        {"5ak", {31, 62, 0, 0}, Holder::Curved, Brick, Amber},
        {"darts", {24, 0, 0, 0}, Holder::Darts, Sand, Iron},
        {"7saw", {100, 0, 0, 0}, Holder::Belt, Khaki, Amber},
        {"57fn", {20, 0, 0, 0}, Holder::Straight, Asphalt, Cobalt},
        {"57p90", {50, 0, 0, 0}, Holder::Long, Brook, Gold},
        {"22lr", {50, 0, 0, 0}, Holder::Box, Emerald, Ash},
        {"4air", {250, 0, 0, 0}, Holder::Box, Navy, Ash},
        {"7brit", {10, 0, 0, 0}, Holder::Clip, Slate, Amber},
    };
    return table;
}

std::vector<int> SizesOf(const char* kind) {
    std::vector<int> sizes;
    for (const AmmoKind& row : AmmoKinds()) {
        if (std::string_view(row.name) != kind) continue;
        std::copy_if(row.sizes.begin(), row.sizes.end(), std::back_inserter(sizes),
                     [](int size) { return size > 0; });
    }
    return sizes;
}

void LayAmmo(Relief& relief, const AmmoKind& kind, int size) {
    const bool magazine = kind.holder == Holder::Straight || kind.holder == Holder::Curved;
    if (magazine && size >= DrumFrom) return LayDrum(relief, kind);
    switch (kind.holder) {
        case Holder::Straight:
            return LayStraight(relief, kind, size);
        case Holder::Curved:
            return LayCurved(relief, kind, size);
        case Holder::Belt:
            return LayBelt(relief, kind);
        case Holder::Box:
            return LayBox(relief, kind);
        case Holder::Clip:
            return LayClip(relief, kind, size);
        case Holder::Shells:
            return LayShells(relief, size);
        case Holder::Round:
            return LayGrenadeRound(relief);
        case Holder::Arrows:
            return LayArrows(relief, 5, 30, Ink::Crimson, Ink::Cement);
        case Holder::Darts:
            return LayArrows(relief, 8, 18, Ink::Gold, Ink::Iron);
        case Holder::Long:
            return LayLong(relief, kind);
    }
}

}  // namespace art
