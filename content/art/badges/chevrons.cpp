#include "badges/chevrons.h"

#include <array>
#include <cmath>

#include "kit/canvas.h"
#include "kit/palette.h"
#include "kit/relief.h"
#include "kit/shapes.h"

namespace art {
namespace {

constexpr int Size = 32;
constexpr int LettersTop = 12;
constexpr int LettersBottom = 22;
constexpr double Middle = 10.5;  // of the three letters, in columns 0 to 24 and rows 13 to 21
constexpr double Half = 9.2;
constexpr double Up = -1.5708;

enum class Device { None, Star, Bar, TwoBars, Leaf, Eagle };
enum class Foot { None, Line, TwoLines, Laurel, Sabres };

struct Badge {
    const char* rank;
    int chevrons, rockers;
    int squares;  // on a warrant officer's bar, 0 for no bar
    Device device;
    int stars;
    Ink metal;
    Foot foot;
};

constexpr std::array<Badge, 24> Badges{{
    // rank, chevrons, rockers, squares, device, stars, metal, foot
    {"pvt", 1, 0, 0, Device::None, 0, Ink::Gold, Foot::None},
    {"pfc", 1, 1, 0, Device::None, 0, Ink::Gold, Foot::None},
    {"lcp", 2, 0, 0, Device::None, 0, Ink::Gold, Foot::None},
    {"cpl", 2, 1, 0, Device::None, 0, Ink::Gold, Foot::None},
    {"sgt", 3, 0, 0, Device::None, 0, Ink::Gold, Foot::None},
    {"ssg", 3, 1, 0, Device::None, 0, Ink::Gold, Foot::None},
    {"sfc", 3, 2, 0, Device::None, 0, Ink::Gold, Foot::None},
    {"msg", 3, 3, 0, Device::None, 0, Ink::Gold, Foot::None},
    {"sgm", 3, 3, 0, Device::Star, 0, Ink::Gold, Foot::None},
    {"wo1", 0, 0, 1, Device::None, 0, Ink::Chalk, Foot::Line},
    {"cw2", 0, 0, 2, Device::None, 0, Ink::Chalk, Foot::Line},
    {"cw3", 0, 0, 3, Device::None, 0, Ink::Chalk, Foot::Line},
    {"cw4", 0, 0, 4, Device::None, 0, Ink::Chalk, Foot::Line},
    {"cw5", 0, 0, 5, Device::None, 0, Ink::Chalk, Foot::TwoLines},
    {"2lt", 0, 0, 0, Device::Bar, 0, Ink::Gold, Foot::Line},
    {"1lt", 0, 0, 0, Device::Bar, 0, Ink::Snow, Foot::Line},
    {"cpt", 0, 0, 0, Device::TwoBars, 0, Ink::Snow, Foot::TwoLines},
    {"maj", 0, 0, 0, Device::Leaf, 0, Ink::Gold, Foot::Laurel},
    {"ltc", 0, 0, 0, Device::Leaf, 0, Ink::Snow, Foot::Laurel},
    {"col", 0, 0, 0, Device::Eagle, 0, Ink::Snow, Foot::Laurel},
    {"brg", 0, 0, 0, Device::None, 1, Ink::Snow, Foot::Sabres},
    {"mag", 0, 0, 0, Device::None, 2, Ink::Snow, Foot::Sabres},
    {"ltg", 0, 0, 0, Device::None, 3, Ink::Snow, Foot::Sabres},
    {"gen", 0, 0, 0, Device::None, 4, Ink::Snow, Foot::Sabres},
}};

void Metal(Relief& relief, const QPainterPath& shape, Ink ink, double rim = 1.5) {
    relief.Lay(Widened(shape, rim, Qt::SquareCap, Qt::MiterJoin).united(shape),
               {.colour = Colour(Ink::Midnight), .grain = 0});
    relief.Lay(shape, {.colour = Colour(ink), .height = 0.8f, .round = 0.9f, .grain = 0, .glow = 0.35f});
}

void Stripes(Relief& relief, const Badge& badge) {
    constexpr double Pitch = 3.1;
    for (int i = 0; i < badge.chevrons; ++i) {
        const double y = 7.5 - (badge.chevrons - 1 - i) * Pitch;
        Metal(relief,
              Widened(Trace({{Middle - Half, y + 3.1}, {Middle, y}, {Middle + Half, y + 3.1}}), 1.7,
                      Qt::FlatCap, Qt::MiterJoin),
              badge.metal, 1);
    }
    for (int i = 0; i < badge.rockers; ++i) {
        const double y = 24.6 + i * 2.6;
        QPainterPath arc(QPointF(Middle - Half, y));
        arc.quadTo(Middle, y + 3.2, Middle + Half, y);
        Metal(relief, Widened(arc, 1.6, Qt::FlatCap, Qt::RoundJoin), badge.metal, 1);
    }
}

void Bar(Relief& relief, int squares) {
    Metal(relief, Rect(0.8, 4, 19.4, 6.6, 0.8), Ink::Chalk);
    for (int i = 0; i < squares; ++i) {
        const double x = Middle + (i - (squares - 1) / 2.0) * 3.7;
        relief.Lay(Rect(x - 1.25, 6, 2.5, 2.6),
                   {.colour = Colour(Ink::Soot), .base = 0.8f, .grain = 0, .glow = 1});
    }
}

QPainterPath Leaf() {
    QPainterPath leaf = Rect(Middle - 0.7, 8, 1.4, 3.6);
    constexpr QPointF Lobes[] = {{0, 2.2},   {-2.6, 3.6}, {2.6, 3.6}, {-4.4, 6.4},
                                 {4.4, 6.4}, {-2.4, 8.4}, {2.4, 8.4}};
    for (const QPointF& lobe : Lobes)
        leaf = leaf.united(Ellipse(Middle + lobe.x(), lobe.y(), 1.8, 1.5));
    leaf = leaf.united(Ellipse(Middle, 5.8, 3.2, 3.4));
    return leaf;
}

QPainterPath Eagle() {
    QPainterPath eagle = Ellipse(Middle, 6.4, 2, 3.4)
                             .united(Ellipse(Middle, 2.6, 1.4, 1.4))
                             .united(Polygon({{Middle, 7}, {Middle + 2.6, 11.2}, {Middle - 2.6, 11.2}}));
    for (const double side : {-1.0, 1.0}) {
        eagle = eagle.united(Polygon({{Middle + side * 1, 4},
                                      {Middle + side * 5, 1},
                                      {Middle + side * 9.6, 1.4},
                                      {Middle + side * 8.6, 4.4},
                                      {Middle + side * 7, 4.6},
                                      {Middle + side * 6.4, 6.6},
                                      {Middle + side * 4.6, 6.4},
                                      {Middle + side * 3.8, 8.2},
                                      {Middle + side * 1, 8}}));
    }
    return eagle;
}

void LayDevice(Relief& relief, const Badge& badge) {
    switch (badge.device) {
        case Device::None:
            break;
        case Device::Star:
            Metal(relief, Star(Middle, 27.4, 4.3, 1.8, 5, Up), Ink::Snow, 2);
            break;
        case Device::Bar:
            Metal(relief, Rect(Middle - 2.2, 0.9, 4.4, 10, 0.6), badge.metal);
            break;
        case Device::TwoBars:
            for (const double x : {-5.2, 1.2})
                Metal(relief, Rect(Middle + x, 0.9, 4, 10, 0.6), badge.metal);
            Metal(relief, Rect(Middle - 1.6, 3, 3.2, 1.4), badge.metal, 0);
            Metal(relief, Rect(Middle - 1.6, 7.4, 3.2, 1.4), badge.metal, 0);
            break;
        case Device::Leaf:
            Metal(relief, Leaf(), badge.metal, 1.2);
            break;
        case Device::Eagle:
            Metal(relief, Eagle(), badge.metal, 1.2);
            break;
    }
    for (int i = 0; i < badge.stars; ++i) {
        const double pitch = badge.stars < 4 ? 6.3 : 5.2;
        const double radius = badge.stars < 4 ? 3.9 : 3.2;
        Metal(relief, Star(Middle + (i - (badge.stars - 1) / 2.0) * pitch, 7, radius, radius * 0.42, 5, Up),
              badge.metal, 1.1);
    }
}

void LayFoot(Relief& relief, const Badge& badge) {
    if (badge.foot == Foot::Line || badge.foot == Foot::TwoLines) {
        Metal(relief, Rect(1.4, 24.6, 18.2, 1.7), badge.metal);
        if (badge.foot == Foot::TwoLines) Metal(relief, Rect(1.4, 28.2, 18.2, 1.7), badge.metal);
    }
    if (badge.foot == Foot::Sabres) {
        for (const double side : {-1.0, 1.0}) {
            QPainterPath blade(QPointF(Middle - side * 9, 24.2));
            blade.quadTo(Middle - side * 1, 24.8, Middle + side * 8.4, 29.8);
            Metal(relief, Widened(blade, 1.2, Qt::FlatCap, Qt::RoundJoin), Ink::Snow, 1);
            Metal(relief,
                  Widened(Trace({{Middle + side * 7.6, 27.4}, {Middle + side * 6.2, 30.6}}), 1.3, Qt::FlatCap,
                          Qt::RoundJoin),
                  Ink::Gold, 0.8);
        }
    }
    if (badge.foot == Foot::Laurel) {
        for (const double side : {-1.0, 1.0}) {
            for (int i = 0; i < 5; ++i) {
                const double turn = 0.18 + i * 0.27;
                const double x = Middle + side * std::sin(turn) * 9.6;
                const double y = 21.2 + std::cos(turn) * 8.8;
                Metal(relief, Ellipse(x, y, 1.5, 1.25), Ink::Gold, 0.7);
            }
        }
    }
}

QImage Chevron(const Badge& badge) {
    Relief relief(Size, Size, 1, 8);
    Stripes(relief, badge);
    if (badge.squares > 0) Bar(relief, badge.squares);
    LayDevice(relief, badge);
    LayFoot(relief, badge);
    QImage picture = Settle(relief.Render(true), 0, Palette::Whole);
    for (int y = LettersTop; y <= LettersBottom; ++y) {
        for (int x = 0; x < Size; ++x)
            picture.setPixel(x, y, 0u);
    }
    return picture;
}

}  // namespace

Drawings ChevronDrawings() {
    Drawings drawings;
    for (const Badge& badge : Badges)
        drawings.push_back({.name = badge.rank,
                            .draw = Alone([&badge] { return Chevron(badge); }),
                            .note = std::string("row ") + badge.rank + " of Badges"});
    return drawings;
}

}  // namespace art
