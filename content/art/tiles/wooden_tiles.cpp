// Row 3: plank walls and what stands in a house.
#include "kit/noise.h"
#include "kit/shapes.h"
#include "tiles/grounds.h"
#include "tiles/tile_drawing.h"
#include "tiles/tile_rows.h"
#include "tiles/walls.h"

namespace art {
namespace {

// Cross boards of unlike tone, with a ridge beam along the middle.
void DressPlanks(Relief& relief, QPointF outward, const WallMake& make) {
    const double half = make.width / 2;
    constexpr double Board = 2.5;
    for (int i = 0; i < 7; ++i) {
        const double from = i * Board;
        relief.Stain(AlongArm(outward, from, from + Board, -half + 0.6, half - 0.6),
                     Colour(i % 2 == 1 ? Ink::Plank : Ink::Sand), 0.4);
        relief.Stain(AlongArm(outward, from, from + 0.5, -half + 0.2, half - 0.2), Colour(Ink::Bark), 0.85);
    }
    relief.Lay(AlongArm(outward, -1.1, 18, -1.1, 1.1),
               {.colour = Colour(Ink::Sand), .height = 1.1f, .base = 4.6f, .round = 0.8f, .grain = 0.15f});
}

const WallMake PlankWall{
    .top = {.colour = Colour(Ink::Clay), .height = 4.6f, .round = 0.9f, .grain = 0.16f, .grainSize = 0.9f},
    .width = 9,
    .footing = EarthGround,
    .apron = 19,
    .dress = DressPlanks,
};

const Solid WindowSill{.colour = Colour(Ink::Clay), .height = 1.6f, .round = 0.6f, .grain = 0.12f};

void Board(Relief& relief, double x, double y, double length, double width, double turn, Ink ink,
           float height) {
    QTransform place;
    place.translate(x, y).rotate(turn);
    relief.Lay(place.map(Rect(-length / 2, -width / 2, length, width, 0.3)),
               {.colour = Colour(ink), .height = height, .round = 0.4f, .grain = 0.18f, .grainSize = 0.9f});
}

void Splintered(Relief& relief) {
    LoosePatch(relief, Lump(10, 10, 8.6, 0.2, 441), EarthGround, 0, 1.2f);
    struct Plank {
        double x, y, length, turn;
        Ink ink;
    };
    constexpr Plank Planks[] = {{7, 6, 9, 28, Ink::Clay},       {13, 8, 8, -36, Ink::Plank},
                                {8, 13, 10, -12, Ink::Sand},    {13.5, 14, 7, 52, Ink::Clay},
                                {5, 10, 6, 78, Ink::Sand},      {11, 10.4, 6, 8, Ink::Clay},
                                {15.6, 5, 3.5, 12, Ink::Plank}, {4, 15.6, 3.6, 40, Ink::Plank}};
    float height = 0.7f;
    for (const Plank& plank : Planks) {
        Board(relief, plank.x, plank.y, plank.length, 1.9, plank.turn, plank.ink, height);
        height += 0.3f;
    }
}

void OnFloor(Relief& relief) {
    BoardGround(relief, true, Ink::Soil, Ink::Timber, 451);
}

void Table(Relief& relief) {
    OnFloor(relief);
    for (const double y : {3.4, 14.4}) {
        relief.Lay(Rect(7.4, y, 4.4, 2.4, 0.8),
                   {.colour = Colour(Ink::Timber), .height = 1.3f, .round = 0.5f});
    }
    relief.Lay(
        Rect(2.6, 5.6, 14, 8, 0.6),
        {.colour = Colour(Ink::Sand), .height = 2.4f, .round = 0.6f, .grain = 0.1f, .grainSize = 0.9f});
    for (const double y : {8.2, 10.9})
        relief.StainLine(Trace({{2.8, y}, {16.4, y}}), 0.45, Colour(Ink::Bark), 0.8);
    relief.Lay(Ellipse(6.4, 8.8, 1.5, 1.5),
               {.colour = Colour(Ink::Snow), .height = 0.6f, .base = 2.4f, .round = 0.6f});
    relief.Lay(Rect(11.2, 8.6, 3, 2.2), {.colour = Colour(Ink::Chalk), .height = 0.3f, .base = 2.4f});
}

void Bed(Relief& relief) {
    OnFloor(relief);
    relief.Lay(Rect(4.2, 1.4, 11, 16.4, 0.8),
               {.colour = Colour(Ink::Bark), .height = 1.6f, .round = 0.6f, .grain = 0.15f});
    relief.Lay(Rect(5.2, 2.4, 9, 14.4, 0.9),
               {.colour = Colour(Ink::Chalk), .height = 1, .base = 1.5f, .round = 0.9f});
    relief.Lay(Rect(4.9, 7.6, 9.6, 9.4, 0.8), {.colour = Colour(Ink::Brick),
                                               .height = 0.9f,
                                               .base = 2,
                                               .round = 0.8f,
                                               .grain = 0.1f,
                                               .bump = 0.15f});
    for (const double y : {10.2, 13.0})
        relief.StainLine(Trace({{5.2, y}, {14.2, y}}), 0.8, Colour(Ink::Straw), 0.7);
    relief.Lay(Rect(6.2, 3.1, 7, 3.4, 1.4),
               {.colour = Colour(Ink::Snow), .height = 1, .base = 2.4f, .round = 1.2f});
}

// A crate with a lid of slats and a diagonal brace.
void Crate(Relief& relief, double x, double y, double size, float base, Ink ink) {
    relief.Lay(Rect(x, y, size, size, 0.3), {.colour = Colour(ink),
                                             .height = 2.6f,
                                             .base = base,
                                             .round = 0.6f,
                                             .grain = 0.14f,
                                             .grainSize = 0.9f});
    relief.StainLine(Rect(x + 1.4, y + 1.4, size - 2.8, size - 2.8), 0.9, Colour(Ink::Bark), 0.95,
                     Qt::FlatCap);
    relief.StainLine(Trace({{x + 1.6, y + size - 1.6}, {x + size - 1.6, y + 1.6}}), 1.1, Colour(Ink::Bark),
                     0.9);
}

void Crates(Relief& relief) {
    OnFloor(relief);
    Crate(relief, 1.4, 1.6, 8.2, 0, Ink::Clay);
    Crate(relief, 10.6, 3.4, 6.4, 0, Ink::Plank);
    Crate(relief, 2.4, 10.6, 7, 0, Ink::Plank);
    Crate(relief, 9, 9.2, 8.2, 1, Ink::Sand);
}

void Cupboard(Relief& relief) {
    OnFloor(relief);
    relief.Lay(
        Rect(1.6, 4, 15.4, 9, 0.5),
        {.colour = Colour(Ink::Plank), .height = 3.6f, .round = 0.9f, .grain = 0.12f, .grainSize = 0.9f});
    relief.StainLine(Trace({{9.3, 4.4}, {9.3, 12.8}}), 0.5, Colour(Ink::Peat), 0.9);
    relief.Lay(Rect(1.9, 12.2, 14.8, 1.5, 0.4), {.colour = Colour(Ink::Clay), .height = 2.4f, .round = 0.5f});
    for (const double x : {8.0, 10.6})
        relief.Stain(Ellipse(x, 12.9, 0.6, 0.6), Colour(Ink::Gold));
    relief.Lay(Rect(3.4, 5.8, 3.6, 3.2, 0.4),
               {.colour = Colour(Ink::Canvas), .height = 1, .base = 3.6f, .round = 0.6f});
}

void Door(Relief& relief, bool westEast) {
    const Joint joint{westEast, westEast, !westEast, !westEast};
    BuildApron(relief, joint, PlankWall);
    relief.Lay(Along(westEast, 0, 20, -4.5, 4.5),
               {.colour = Colour(Ink::Bark), .height = 0.3f, .grain = 0.15f, .grainSize = 0.9f});
    for (const double at : {-2.2, 0.0, 2.2}) {
        relief.Stain(Along(westEast, 3, 17, at - 0.2, at + 0.2), Colour(Ink::Loam), 0.7);
    }
    BuildStubs(relief, westEast, 3.2, PlankWall);
    const QPainterPath leaf = westEast ? Rect(3.2, 1.2, 1.8, 9.6, 0.3) : Rect(1.2, 3.2, 9.6, 1.8, 0.3);
    relief.Lay(leaf, {.colour = Colour(Ink::Clay), .height = 3.6f, .round = 0.6f, .grain = 0.12f});
}

void Window(Relief& relief, bool westEast, bool broken) {
    const Joint joint{westEast, westEast, !westEast, !westEast};
    BuildApron(relief, joint, PlankWall);
    BuildWindow(relief, westEast, PlankWall, WindowSill, broken);
}

// Columns 11 to 23.
constexpr TileDrawing Fittings[] = {
    [](Relief& r) { Window(r, true, false); },
    [](Relief& r) { Window(r, false, false); },
    [](Relief& r) { Window(r, true, true); },
    [](Relief& r) { Window(r, false, true); },
    Splintered,
    Table,
    Bed,
    Crates,
    Cupboard,
    [](Relief& r) { BoardGround(r, true, Ink::Soil, Ink::Timber, 451); },
    [](Relief& r) { BoardGround(r, false, Ink::Soil, Ink::Timber, 451); },
    [](Relief& r) { Door(r, true); },
    [](Relief& r) { Door(r, false); },
};

}  // namespace

TileRow WoodenTiles() {
    TileRow row;
    AddWalls(row, PlankWall);
    AddTiles(row, TileGround::Grass, Fittings);
    return row;
}

}  // namespace art
