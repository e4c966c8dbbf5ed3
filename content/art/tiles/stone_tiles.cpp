// Row 5: masonry, rocks and hearths.
#include <cmath>

#include "kit/noise.h"
#include "kit/shapes.h"
#include "tiles/grounds.h"
#include "tiles/tile_drawing.h"
#include "tiles/tile_rows.h"
#include "tiles/walls.h"

namespace art {
namespace {

// Two rows of blocks, their joints staggered.
void DressMasonry(Relief& relief, QPointF outward, const WallMake& make) {
    const double half = make.width / 2;
    constexpr Ink Inks4[] = {Ink::Limestone, Ink::Fieldstone, Ink::Concrete, Ink::Limestone};
    constexpr double Block = 5;
    for (int side = 0; side < 2; ++side) {
        const double left = side == 0 ? -half + 0.2 : 0.2;
        for (int i = 0; i < 5; ++i) {
            const double from = i * Block + side * 2.5 - 2.5;
            relief.Lay(AlongArm(outward, from + 0.25, from + Block - 0.25, left, left + half - 0.4),
                       {.colour = Colour(Inks4[(i + side * 2) % 4]),
                        .height = 0.7f,
                        .base = 4.2f,
                        .round = 0.9f,
                        .grain = 0.12f,
                        .bump = 0.15f});
        }
    }
}

const WallMake Masonry{
    .top = {.colour = Colour(Ink::Cellar), .height = 4.4f, .round = 0.5f, .grain = 0.12f},
    .width = 10,
    .footing = {Ink::Soil, Ink::Limestone, 1.67f, 0.6f, 0.4f, 541},
    .apron = 19,
    .dress = DressMasonry,
};

void Boulder(Relief& relief) {
    relief.Stain(Ellipse(10, 10.4, 8.6, 8), Colour(Ink::Moss), 0.6);
    relief.Lay(Lump(9.2, 9.2, 7.6, 0.12, 551),
               {.colour = Colour(Ink::Limestone), .height = 5.5f, .round = 7, .grain = 0.1f, .bump = 0.3f});
    relief.Stain(Lump(7.4, 6.8, 2, 0.4, 553), Colour(Ink::Pasture), 0.5);
    relief.StainLine(Trace({{9.5, 4}, {11, 8}, {10.2, 11.4}, {12.6, 14.6}}), 0.6, Colour(Ink::Cellar), 0.8);
}

void Outcrop(Relief& relief) {
    struct Rock {
        double x, y, radius;
        float height;
        Ink ink;
    };
    constexpr Rock Rocks[] = {{5.4, 13.4, 4, 2.5f, Ink::Fieldstone},
                              {14, 13.6, 3.8, 3, Ink::Fieldstone},
                              {12.6, 6.2, 5, 4, Ink::Limestone},
                              {6.2, 6.6, 4.9, 5, Ink::Concrete},
                              {9.8, 10.6, 3.6, 5.5f, Ink::Limestone}};
    relief.Stain(Ellipse(10, 10.4, 8.8, 8.4), Colour(Ink::Moss), 0.6);
    std::uint32_t seed = 561;
    for (const Rock& rock : Rocks) {
        ++seed;
        relief.Lay(Star(rock.x, rock.y, rock.radius, rock.radius * 0.86, 3, seed * 0.7),
                   {.colour = Colour(rock.ink),
                    .height = rock.height,
                    .round = static_cast<float>(rock.radius) * 0.6f,
                    .grain = 0.14f,
                    .bump = 0.3f,
                    .seed = seed});
    }
}

// Unmortared stones: gaps between them show the ground.
void LooseWall(Relief& relief, bool westEast) {
    LoosePatch(relief, Along(westEast, -8, 28, -6, 6), {Ink::Soil, Ink::Fieldstone, 1.67f, 0.6f, 0.4f, 541},
               0, 1.3f);
    relief.Stain(Along(westEast, -8, 28, -3.6, 4), Colour(Ink::Loam), 0.75);
    Dice dice(571);
    constexpr Ink Inks3[] = {Ink::Limestone, Ink::Fieldstone, Ink::Concrete};
    for (int i = 0; i < 18; ++i) {
        const int place = i / 3;
        const auto along =
            static_cast<double>(static_cast<float>(place) * 3.4f + 1.4f + dice.Roll(-0.5f, 0.5f));
        const auto off = static_cast<double>(static_cast<float>(i % 3 - 1) * 2.5f + dice.Roll(-0.4f, 0.4f));
        const auto radius = static_cast<double>(dice.Roll(1.1f, 1.75f));
        const double x = westEast ? along : 10 + off;
        const double y = westEast ? 10 + off : along;
        relief.Lay(Lump(x, y, radius, 0.25, static_cast<std::uint32_t>(571 + i)),
                   {.colour = Colour(Inks3[dice.Pick(3)]),
                    .height = i % 3 == 1 ? 3.4f : 2.2f,
                    .round = 1.3f,
                    .grain = 0.12f});
    }
}

void Doorway(Relief& relief) {
    LoosePatch(relief, Rect(1, 1, 18, 18, 5), {Ink::Soil, Ink::Limestone, 1.67f, 0.6f, 0.4f, 541}, 0, 1.3f);
    relief.Lay(
        Rect(4, 4, 12, 12, 1),
        {.colour = Colour(Ink::Limestone), .height = 0.5f, .round = 0.6f, .grain = 0.12f, .bump = 0.15f});
    relief.Lay(
        Rect(5.6, 5.6, 8.8, 8.8, 1.2),
        {.colour = Colour(Ink::Concrete), .height = -0.3f, .base = 0.5f, .round = 1.4f, .grain = 0.1f});
    for (const QPointF corner :
         {QPointF(0.4, 0.4), QPointF(15.8, 0.4), QPointF(0.4, 15.8), QPointF(15.8, 15.8)}) {
        relief.Lay(Rect(corner.x(), corner.y(), 3.8, 3.8, 0.6),
                   {.colour = Colour(Ink::Fieldstone), .height = 1, .round = 0.7f, .grain = 0.12f});
    }
}

void LowRubble(Relief& relief) {
    LoosePatch(relief, Lump(10, 10, 8.4, 0.2, 581), {Ink::Soil, Ink::Limestone, 1.67f, 0.6f, 0.4f, 541}, 0,
               1.3f);
    ScatterStones(relief, 26, 0.8f, 1.9f, 1.2f, Ink::Fieldstone, 583);
}

void Chimney(Relief& relief) {
    FlagFloor(relief);
    relief.Lay(Rect(2.6, 2.6, 13, 13, 0.4),
               {.colour = Colour(Ink::Maroon), .height = 5, .round = 0.6f, .grain = 0.1f});
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 4; ++column) {
            const double x = 2.8 + column * 3.3 - (row % 2) * 1.2;
            const double left = std::max(x, 2.8);
            const double width = std::min(x + 3, 15.4) - left;
            relief.Lay(Rect(left, 2.9 + row * 2.55, width, 2.2, 0.2),
                       {.colour = Between(Ink::Brick, Ink::Tan, (row + column) % 3 * 0.35),
                        .height = 0.4f,
                        .base = 5,
                        .round = 0.4f,
                        .grain = 0.12f});
        }
    }
    relief.Lay(Rect(6, 6, 6.2, 6.2, 0.3),
               {.colour = Colour(Ink::Soot), .height = -1.5f, .base = 4, .grain = 0.1f});
}

void Well(Relief& relief) {
    relief.Stain(Ellipse(9.8, 10, 8.8, 8.6), Colour(Ink::Timber), 0.5);
    constexpr int Stones = 12;
    for (int i = 0; i < Stones; ++i) {
        const double angle = i * 2 * 3.14159265 / Stones;
        relief.Lay(Lump(9.3 + 5.6 * std::cos(angle), 9.3 + 5.6 * std::sin(angle), 1.75, 0.15,
                        static_cast<std::uint32_t>(591 + i)),
                   {.colour = Colour(i % 3 == 0 ? Ink::Fieldstone : Ink::Limestone),
                    .height = 3,
                    .round = 1.2f,
                    .grain = 0.12f});
    }
    relief.Lay(Ellipse(9.3, 9.3, 4.1, 4.1), {.colour = Colour(Ink::Abyss), .height = -4, .grain = 0.05f});
    relief.Stain(Ellipse(10.4, 10.4, 1.8, 1.4), Colour(Ink::River), 0.8);
    relief.LayLine(Trace({{3.4, 9.3}, {15.2, 9.3}}), 1.5,
                   {.colour = Colour(Ink::Timber), .height = 5, .round = 0.6f, .grain = 0.15f});
    relief.Lay(Rect(7.6, 8.2, 3.4, 2.2, 0.6),
               {.colour = Colour(Ink::Clay), .height = 0.8f, .base = 5, .round = 0.6f});
}

void Hearth(Relief& relief) {
    FlagFloor(relief);
    relief.Stain(Ellipse(10, 10, 8, 7.6), Colour(Ink::Iron), 0.55);
    relief.Lay(Lump(10, 10, 4.6, 0.2, 601),
               {.colour = Colour(Ink::Slate), .height = 0.6f, .round = 3, .grain = 0.25f, .bump = 0.3f});
    for (const auto& [x, y] : {std::pair{8.6, 9.4}, {11.2, 10.8}, {10, 12}})
        relief.Stain(Ellipse(x, y, 0.9, 0.7), Colour(Ink::Scarlet), 0.8);
    relief.LayLine(Trace({{6.4, 12.4}, {12.6, 7.4}}), 1.5,
                   {.colour = Colour(Ink::Soot), .height = 0.8f, .base = 0.6f, .round = 0.6f});
}

// Columns 11 to 20.
constexpr TileDrawing Fittings[] = {
    Boulder,
    Outcrop,
    [](Relief& r) { LooseWall(r, true); },
    [](Relief& r) { LooseWall(r, false); },
    Doorway,
    LowRubble,
    Chimney,
    Well,
    FlagFloor,
    Hearth,
};

}  // namespace

TileRow StoneTiles() {
    TileRow row;
    AddWalls(row, Masonry);
    AddTiles(row, TileGround::Grass, Fittings);
    return row;
}

}  // namespace art
