// Row 9: boats. The deck runs under gunwales and cabins to the hull's edge, so that a wall reads from either
// side.
#include <array>

#include "kit/noise.h"
#include "kit/shapes.h"
#include "tiles/grounds.h"
#include "tiles/tile_drawing.h"
#include "tiles/tile_rows.h"
#include "tiles/walls.h"

namespace art {
namespace {

constexpr std::uint32_t DeckSeed = 801;

void Planked(Relief& relief, bool westEast) {
    BoardGround(relief, westEast, Ink::Timber, Ink::Sand, DeckSeed);
}

// A painted rail over a dark strake.
void DressGunwale(Relief& relief, QPointF outward, const WallMake& make) {
    const double half = make.width / 2;
    relief.Lay(AlongArm(outward, -half + 1.7, 18, -half + 1.7, half - 1.7),
               {.colour = Colour(Ink::Chalk), .height = 1, .base = 4, .round = 1.2f, .grain = 0.05f});
    relief.Stain(AlongArm(outward, 9.6, 10.4, -half + 1.7, half - 1.7), Colour(Ink::Cement), 0.8);
}

const WallMake Gunwale{
    .top = {.colour = Colour(Ink::Navy), .height = 4, .round = 0.8f, .grain = 0.06f},
    .width = 8,
    .footing = EarthGround,
    .apron = 0,
    .dress = DressGunwale,
};

// The water that a rounded corner of the hull leaves free, by the joint's column; straight pieces leave none.
QPainterPath OutsideCorner(const Joint& joint) {
    const double x = joint.east ? 20 : 0;
    const double y = joint.south ? 20 : 0;
    return WholeTile()
        .subtracted(Ellipse(x, y, 18, 18))
        .subtracted(Along(true, x == 20 ? 20 : -8, x == 20 ? 28 : 0, -18, 18))
        .subtracted(Along(false, y == 20 ? 20 : -8, y == 20 ? 28 : 0, -18, 18));
}

void Flood(Relief& relief, const QPainterPath& area) {
    Relief water;
    OpenWater(water);
    relief.Each([&](float x, float y, Texel& texel) {
        if (area.contains(QPointF(static_cast<double>(x), static_cast<double>(y)))) texel = water.At(x, y);
    });
}

void Hull(Relief& relief, std::size_t column) {
    const Joint& joint = Joints[column];
    Planked(relief, joint.west || joint.east);
    BuildWall(relief, joint, Gunwale);
    if (column >= 2 && column <= 5) Flood(relief, OutsideCorner(joint));
}

void Porthole(Relief& relief, bool westEast) {
    Planked(relief, westEast);
    BuildWall(relief, {westEast, westEast, !westEast, !westEast}, Gunwale);
    relief.Lay(Ellipse(10, 10, 4.2, 4.2),
               {.colour = Colour(Ink::Gold), .height = 5, .round = 1, .grain = 0.05f});
    relief.Lay(Ellipse(10, 10, 2.8, 2.8),
               {.colour = Colour(Ink::Shallow), .height = -1, .base = 5, .round = 0.5f, .grain = 0});
    relief.StainLine(Trace({{8.6, 10.6}, {10.6, 8.6}}), 0.9, Colour(Ink::Snow), 0.9);
}

void Gangway(Relief& relief) {
    Planked(relief, true);
    relief.Lay(Rect(3, 0, 14, 20),
               {.colour = Colour(Ink::Clay), .height = 0.9f, .round = 0.4f, .grain = 0.12f});
    for (const double y : Steps(1.4, 19, 3.2)) {
        relief.Lay(Rect(3.6, y, 12.8, 1.1),
                   {.colour = Colour(Ink::Bark), .height = 0.6f, .base = 0.9f, .round = 0.4f});
    }
}

void Hatch(Relief& relief) {
    Planked(relief, true);
    relief.Lay(Rect(3, 3, 14, 14, 1),
               {.colour = Colour(Ink::Bark), .height = 1.1f, .round = 0.6f, .grain = 0.12f});
    relief.Lay(Rect(4.6, 4.6, 10.8, 10.8, 0.5),
               {.colour = Colour(Ink::Iron), .height = -2.4f, .base = 0.5f, .grain = 0.1f});
    for (const double y : Steps(6.2, 15, 2.4)) {
        relief.Lay(Rect(7, y, 6, 0.9),
                   {.colour = Colour(Ink::Timber), .height = 0.5f, .base = -1.6f, .round = 0.3f});
    }
}

void BrokenPlanks(Relief& relief) {
    Planked(relief, true);
    relief.Lay(Star(10, 10, 7, 3.4, 7, 0.4), {.colour = Colour(Ink::Peat), .height = -2.2f, .grain = 0.2f});
    for (const auto& [x, y, turn] :
         {std::array{6.0, 6.6, 24.0}, {13.4, 8.4, -40}, {8.4, 14, 8}, {14.4, 14.6, 62}}) {
        QTransform place;
        place.translate(x, y).rotate(turn);
        relief.Lay(place.map(Rect(-3.6, -0.9, 7.2, 1.8, 0.2)),
                   {.colour = Colour(Ink::Plank), .height = 1, .round = 0.4f, .grain = 0.16f});
    }
}

void Thwart(Relief& relief) {
    Planked(relief, true);
    relief.Lay(Rect(6.2, 0, 6.4, 20),
               {.colour = Colour(Ink::Clay), .height = 2, .round = 0.6f, .grain = 0.12f, .grainSize = 0.9f});
    relief.StainLine(Trace({{9.4, 0}, {9.4, 20}}), 0.5, Colour(Ink::Bark), 0.7);
}

void Rope(Relief& relief) {
    Planked(relief, true);
    for (const double radius : Steps(6.6, 1.4, -1.9)) {
        relief.LayLine(Ellipse(9.6, 9.6, radius, radius), 1.7,
                       {.colour = Between(Ink::Straw, Ink::Sand, radius / 7),
                        .height = 1.2f + (6.6f - static_cast<float>(radius)) * 0.2f,
                        .round = 0.9f,
                        .grain = 0.25f,
                        .grainSize = 0.8f});
    }
    QPainterPath tail(QPointF(15.6, 11));
    tail.quadTo(18.4, 13.6, 16.8, 17);
    relief.LayLine(
        tail, 1.5,
        {.colour = Colour(Ink::Straw), .height = 1, .round = 0.8f, .grain = 0.25f, .grainSize = 0.8f});
}

void Barrels(Relief& relief) {
    Planked(relief, true);
    for (const auto& [x, y] : {std::pair{5.8, 6.0}, {13, 6.6}, {8.8, 13}}) {
        relief.Lay(Ellipse(x, y, 3.8, 3.8), {.colour = Colour(Ink::Iron), .height = 3, .round = 0.5f});
        relief.Lay(
            Ellipse(x, y, 3.1, 3.1),
            {.colour = Colour(Ink::Timber), .height = -0.4f, .base = 3, .round = 0.4f, .grain = 0.12f});
        for (const double at : {-1.2, 0.2, 1.6})
            relief.StainLine(Trace({{x + at, y - 2.6}, {x + at, y + 2.6}}), 0.4, Colour(Ink::Loam), 0.7);
        relief.Stain(Ellipse(x + 1.4, y - 1.2, 0.6, 0.6), Colour(Ink::Peat));
    }
}

void Engine(Relief& relief) {
    Planked(relief, true);
    relief.Lay(Rect(2.4, 3.4, 14, 11.6, 1),
               {.colour = Colour(Ink::Slate), .height = 2.2f, .round = 0.8f, .grain = 0.06f});
    relief.Lay(Rect(4, 5.2, 8.6, 8, 0.6),
               {.colour = Colour(Ink::Brick), .height = 1.4f, .base = 2.2f, .round = 0.7f, .grain = 0.06f});
    for (const double x : Steps(5.2, 12, 2))
        relief.Stain(Rect(x, 6, 0.8, 6.4), Colour(Ink::Maroon), 0.9);
    relief.Lay(Ellipse(14.2, 9.2, 2, 3.2),
               {.colour = Colour(Ink::Concrete), .height = 1.2f, .base = 2.2f, .round = 0.8f});
    relief.Stain(Ellipse(14.2, 9.2, 0.9, 1.6), Colour(Ink::Soot));
}

// The bow tapers to a point in the middle of the cell's far side.
void Bow(Relief& relief, bool west) {
    OpenWater(relief);
    QPainterPath hull(QPointF(28, -0.5));
    hull.lineTo(19, -0.5);
    hull.quadTo(7, 1, 0.6, 10);
    hull.quadTo(7, 19, 19, 20.5);
    hull.lineTo(28, 20.5);
    hull.closeSubpath();
    QTransform mirror;
    if (!west) mirror.translate(20, 0).scale(-1, 1);
    Relief planks;
    Planked(planks, true);
    const QPainterPath deck = mirror.map(hull);
    relief.Each([&](float x, float y, Texel& texel) {
        if (!deck.contains(QPointF(static_cast<double>(x), static_cast<double>(y)))) return;
        texel = planks.At(x, y);
        texel.height += 2;
    });
    QPainterPath rim(QPointF(28, 1.2));
    rim.lineTo(19, 1.2);
    rim.quadTo(8.6, 2.4, 2.4, 10);
    rim.quadTo(8.6, 17.6, 19, 18.8);
    rim.lineTo(28, 18.8);
    relief.LayLine(mirror.map(rim), 2.4,
                   {.colour = Colour(Ink::Navy), .height = 1, .base = 2, .round = 0.7f});
    relief.StainLine(mirror.map(rim), 0.9, Colour(Ink::Snow), 0.9);
}

void Grating(Relief& relief) {
    Planked(relief, true);
    relief.Lay(Rect(1, 1, 18, 18, 0.5), {.colour = Colour(Ink::Bark), .height = 0.5f, .round = 0.4f});
    for (const double y : Steps(2.4, 17, 2.6)) {
        for (const double x : Steps(2.4, 17, 2.6))
            relief.Lay(Rect(x, y, 1.7, 1.7), {.colour = Colour(Ink::Peat), .height = -1.2f});
    }
}

// Columns 11 to 24.
constexpr TileDrawing Fittings[] = {
    [](Relief& r) { Porthole(r, true); },
    [](Relief& r) { Porthole(r, false); },
    Gangway,
    Hatch,
    BrokenPlanks,
    Thwart,
    Rope,
    Barrels,
    Engine,
    [](Relief& r) { Planked(r, true); },
    [](Relief& r) { Planked(r, false); },
    [](Relief& r) { Bow(r, true); },
    [](Relief& r) { Bow(r, false); },
    Grating,
};

}  // namespace

TileRow ShipTiles() {
    TileRow row;
    for (std::size_t column = 0; column < FullJoints; ++column) {
        Relief relief;
        Hull(relief, column);
        row.push_back(Finished(relief));
    }
    AddTiles(row, TileGround::Bare, Fittings);
    return row;
}

}  // namespace art
