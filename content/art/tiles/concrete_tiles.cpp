// Row 4: concrete walls, barriers and slabs.
#include "kit/noise.h"
#include "kit/shapes.h"
#include "tiles/grounds.h"
#include "tiles/tile_drawing.h"
#include "tiles/tile_rows.h"
#include "tiles/walls.h"

namespace art {
namespace {

// Casting joints every ten pixels and a rim along the edges.
void DressConcrete(Relief& relief, QPointF outward, const WallMake& make) {
    const double half = make.width / 2;
    relief.Stain(AlongArm(outward, -half + 1.8, 18, -half + 1.8, half - 1.8), Colour(Ink::Concrete), 0.9);
    relief.Stain(AlongArm(outward, 9.7, 10.3, -half, half), Colour(Ink::Slate), 0.8);
    relief.Stain(AlongArm(outward, 6.2, 7.2, -1.6, -0.6), Colour(Ink::Slate), 0.6);
}

const WallMake ConcreteWall{
    .top = {.colour = Colour(Ink::Chalk), .height = 5, .round = 0.8f, .grain = 0.06f, .bump = 0.08f},
    .width = 9,
    .footing = {Ink::Slate, Ink::Cement, 1.67f, 0.7f, 0.4f, 501},
    .apron = 18.5,
    .dress = DressConcrete,
};

const Solid WindowSill{.colour = Colour(Ink::Chalk), .height = 1.7f, .round = 0.6f, .grain = 0.05f};

void Window(Relief& relief, bool westEast, bool broken) {
    GrassGround(relief);
    BuildApron(relief, {westEast, westEast, !westEast, !westEast}, ConcreteWall);
    BuildWindow(relief, westEast, ConcreteWall, WindowSill, broken);
}

void Rubble(Relief& relief, int count, float largest, std::uint32_t seed) {
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const auto x = static_cast<double>(dice.Roll(2.5f, 16.5f));
        const auto y = static_cast<double>(dice.Roll(2.5f, 16.5f));
        const auto radius = static_cast<double>(dice.Roll(0.7f, largest));
        const auto paleness = static_cast<double>(dice.Roll(0, 0.9f));
        const auto turn = static_cast<double>(dice.Roll(0, 3));
        relief.Lay(Star(x, y, radius, radius * 0.8, 3, turn),
                   {.colour = Between(Ink::Cement, Ink::Chalk, paleness),
                    .height = static_cast<float>(radius) * 0.7f,
                    .round = 0.5f,
                    .grain = 0.1f});
    }
}

// A passage: worn threshold, crumbs where the wall was. It reads in both directions.
void Opening(Relief& relief) {
    GrassGround(relief);
    LoosePatch(relief, Rect(1, 1, 18, 18, 5), {Ink::Slate, Ink::Cement, 1.67f, 0.7f, 0.4f, 501}, 0, 1.3f);
    relief.Lay(Rect(4.5, 4.5, 11, 11, 0.5),
               {.colour = Colour(Ink::Cement), .height = 0.35f, .round = 0.4f, .grain = 0.1f});
    for (const double at : Steps(6.5, 15, 2.4)) {
        relief.StainLine(Trace({{5.2, at}, {14.8, at}}), 0.5, Colour(Ink::Slate), 0.6);
    }
    for (const auto& [x, y] : {std::pair{2.2, 3.4}, {15.8, 2.6}, {3, 15.4}, {15.4, 15}}) {
        relief.Lay(Lump(x + 0.6, y + 0.6, 1.5, 0.3, static_cast<std::uint32_t>(x * 9)),
                   {.colour = Colour(Ink::Concrete), .height = 1, .round = 0.7f, .grain = 0.1f});
    }
}

void Barrier(Relief& relief, bool westEast) {
    GrassGround(relief);
    LoosePatch(relief, Along(westEast, -8, 28, -6, 6), {Ink::Slate, Ink::Cement, 1.67f, 0.7f, 0.4f, 501}, 0,
               1.3f);
    relief.Lay(Along(westEast, 0.6, 19, -3.2, 3.2),
               {.colour = Colour(Ink::Concrete), .height = 1, .round = 0.6f, .grain = 0.06f});
    relief.Lay(Along(westEast, 0.6, 19, -1.5, 1.5),
               {.colour = Colour(Ink::Chalk), .height = 1.4f, .base = 1, .round = 1, .grain = 0.06f});
    for (const double at : {2.4, 9.2, 16.0}) {
        relief.Stain(Along(westEast, at, at + 2, -1.4, 1.4), Colour(Ink::Scarlet), 0.85);
    }
}

void Pillar(Relief& relief) {
    SlabFloor(relief);
    relief.Lay(Rect(4, 4, 10.6, 10.6, 0.4),
               {.colour = Colour(Ink::Cement), .height = 1.2f, .round = 0.6f, .grain = 0.06f});
    relief.Lay(Ellipse(9.3, 9.3, 4.3, 4.3),
               {.colour = Colour(Ink::Chalk), .height = 5, .base = 1, .round = 1.6f, .grain = 0.06f});
    relief.Stain(Ellipse(9.3, 9.3, 2.4, 2.4), Colour(Ink::Concrete), 0.7);
}

void Generator(Relief& relief) {
    SlabFloor(relief);
    relief.Lay(Rect(1.4, 2.6, 15.4, 12.4, 0.8),
               {.colour = Colour(Ink::Steel), .height = 3.6f, .round = 1, .grain = 0.06f});
    for (const double x : Steps(2.8, 8.6, 1.4)) {
        relief.Stain(Rect(x, 4, 0.7, 9.6), Colour(Ink::Engraving), 0.85);
    }
    relief.Lay(Ellipse(12.6, 6.6, 2.7, 2.7),
               {.colour = Colour(Ink::Sheen), .height = 1.3f, .base = 3.6f, .round = 1});
    relief.Stain(Ellipse(12.6, 6.6, 1.4, 1.4), Colour(Ink::Iron));
    relief.Lay(Rect(10, 10.6, 5.4, 3, 0.3),
               {.colour = Colour(Ink::Gold), .height = 0.7f, .base = 3.6f, .round = 0.3f});
    relief.StainLine(Trace({{11.4, 13.2}, {13, 11}}), 0.8, Colour(Ink::Iron));
    relief.StainLine(Trace({{13.4, 13.2}, {15, 11}}), 0.8, Colour(Ink::Iron));
}

void Drain(Relief& relief) {
    SlabFloor(relief);
    relief.Lay(Rect(6, 6, 8, 8, 0.5), {.colour = Colour(Ink::Slate), .height = 0.4f, .round = 0.4f});
    for (const double x : Steps(7.2, 13, 1.6))
        relief.Lay(Rect(x, 7, 0.8, 6), {.colour = Colour(Ink::Soot), .height = -0.8f});
}

void YellowLine(Relief& relief) {
    SlabFloor(relief);
    relief.Stain(Rect(-8, 8.6, 36, 2.8), Colour(Ink::Amber), 0.85);
    relief.Stain(Rect(-8, 9.1, 36, 1.8), Colour(Ink::Gold), 0.8);
    Rubble(relief, 2, 0.7f, 521);
}

void Cracked(Relief& relief) {
    SlabFloor(relief);
    for (const QPainterPath& crack :
         {Trace({{2, 5}, {6, 7.2}, {8, 10}, {12.6, 11}, {14, 14.6}, {18, 16.6}}),
          Trace({{8, 10}, {6.6, 14}, {7.6, 18}}), Trace({{12.6, 11}, {15.4, 8}, {15, 3}})}) {
        relief.LayLine(crack, 0.8, {.colour = Colour(Ink::Slate), .height = -0.8f});
    }
    Tuft(relief, 8, 11, 1.3f, Ink::Moss, Ink::Sprout, 531);
    Rubble(relief, 3, 1, 533);
}

// Columns 11 to 23.
constexpr TileDrawing Fittings[] = {
    [](Relief& r) { Window(r, true, false); },
    [](Relief& r) { Window(r, false, false); },
    [](Relief& r) { Window(r, true, true); },
    [](Relief& r) { Window(r, false, true); },
    Opening,
    [](Relief& r) { Barrier(r, true); },
    [](Relief& r) { Barrier(r, false); },
    Pillar,
    Generator,
    SlabFloor,
    Drain,
    YellowLine,
    Cracked,
};

}  // namespace

TileRow ConcreteTiles() {
    TileRow row;
    AddWalls(row, ConcreteWall);
    AddTiles(row, TileGround::Bare, Fittings);
    return row;
}

}  // namespace art
