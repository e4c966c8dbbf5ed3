// Row 10: single things on the ground, and the vehicle.
#include <array>
#include <cmath>

#include "kit/noise.h"
#include "kit/shapes.h"
#include "tiles/grounds.h"
#include "tiles/tile_drawing.h"
#include "tiles/tile_rows.h"
#include "tiles/vehicle.h"

namespace art {
namespace {

void Rug(Relief& relief) {
    BoardGround(relief, true, Ink::Soil, Ink::Timber, 451);
    relief.Lay(
        Rect(1.4, 2.6, 17, 14.6, 0.4),
        {.colour = Colour(Ink::Brick), .height = 0.35f, .round = 0.3f, .grain = 0.12f, .grainSize = 0.8f});
    relief.StainLine(Rect(3, 4.2, 13.8, 11.4), 0.9, Colour(Ink::Straw), 0.9);
    relief.Stain(Polygon({{9.9, 5.6}, {14.4, 9.9}, {9.9, 14.2}, {5.4, 9.9}}), Colour(Ink::Navy), 0.9);
    relief.Stain(Polygon({{9.9, 7.8}, {12.1, 9.9}, {9.9, 12}, {7.7, 9.9}}), Colour(Ink::Straw), 0.95);
    for (const double y : Steps(3.2, 17, 1.5)) {
        relief.StainLine(Trace({{0.5, y}, {1.6, y}}), 0.6, Colour(Ink::Straw));
        relief.StainLine(Trace({{18.2, y}, {19.3, y}}), 0.6, Colour(Ink::Straw));
    }
}

void Hay(Relief& relief) {
    Dice dice(901);
    relief.Lay(Lump(9.6, 9.8, 7.6, 0.12, 903),
               {.colour = Colour(Ink::Stubble), .height = 2.4f, .round = 6, .grain = 0.15f, .bump = 0.2f});
    for (int i = 0; i < 90; ++i) {
        const float angle = dice.Roll(0, 6.283f);
        const float out = 7.4f * std::sqrt(dice.Roll(0, 1));
        const auto x = static_cast<double>(9.6f + out * std::cos(angle));
        const auto y = static_cast<double>(9.8f + out * std::sin(angle));
        const auto dx = static_cast<double>(dice.Roll(-1.8f, 1.8f));
        relief.StainLine(Trace({{x, y}, {x + dx, y + 1.4 - std::abs(dx) * 0.6}}), 0.55,
                         Between(Ink::Stubble, Ink::Glow, static_cast<double>(dice.Roll(0, 0.8f))));
    }
}

void Campfire(Relief& relief) {
    relief.Stain(Lump(10, 10, 6.6, 0.2, 911), Colour(Ink::Iron), 0.7);
    constexpr int Stones = 10;
    for (int i = 0; i < Stones; ++i) {
        const double angle = i * 2 * 3.14159265 / Stones;
        relief.Lay(Lump(9.8 + 5.6 * std::cos(angle), 9.8 + 5.6 * std::sin(angle), 1.5, 0.2,
                        static_cast<std::uint32_t>(912 + i)),
                   {.colour = Colour(i % 3 == 0 ? Ink::Cement : Ink::Fieldstone),
                    .height = 1.3f,
                    .round = 1.1f,
                    .grain = 0.1f});
    }
    for (const double turn : {20.0, 80.0, 140.0}) {
        QTransform place;
        place.translate(9.8, 9.8).rotate(turn);
        relief.Lay(place.map(Rect(-4, -0.8, 8, 1.6, 0.6)),
                   {.colour = Colour(Ink::Loam), .height = 1, .round = 0.7f, .grain = 0.2f});
    }
    relief.Stain(Star(9.8, 9.6, 3.4, 1.6, 7, 0.3), Colour(Ink::Scarlet), 0.9);
    relief.Stain(Star(9.8, 9.6, 2.5, 1.2, 6, 0.9), Colour(Ink::Amber));
    relief.Stain(Ellipse(9.8, 9.5, 1.1, 1.1), Colour(Ink::Glow));
}

void Tyre(Relief& relief) {
    relief.LayLine(Ellipse(9.7, 9.7, 4.4, 4.4), 3.4,
                   {.colour = Colour(Ink::Iron), .height = 2, .round = 1.6f, .grain = 0.15f});
    for (int i = 0; i < 16; ++i) {
        const double angle = i * 2 * 3.14159265 / 16;
        relief.StainLine(Trace({{9.7 + 4.9 * std::cos(angle), 9.7 + 4.9 * std::sin(angle)},
                                {9.7 + 6 * std::cos(angle + 0.12), 9.7 + 6 * std::sin(angle + 0.12)}}),
                         0.6, Colour(Ink::Soot), 0.9);
    }
}

void FlowerBed(Relief& relief) {
    relief.Lay(Rect(1.6, 2.6, 16.4, 14.4, 2),
               {.colour = Colour(Ink::Soil), .height = 0.8f, .round = 1.2f, .grain = 0.25f, .bump = 0.3f});
    Dice dice(921);
    constexpr Ink Petals[] = {Ink::Scarlet, Ink::Glow, Ink::Snow, Ink::Gold};
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 5; ++column) {
            const double x = 3.4 + column * 3.1 + static_cast<double>(dice.Roll(-0.4f, 0.4f));
            const double y = 4.6 + row * 3.3 + static_cast<double>(dice.Roll(-0.4f, 0.4f));
            relief.Lay(Ellipse(x, y, 1.5, 1.3), {.colour = Colour(row % 2 == 0 ? Ink::Meadow : Ink::Grass),
                                                 .height = 0.9f,
                                                 .base = 0.5f,
                                                 .round = 1});
            relief.Stain(Ellipse(x, y - 0.1, 0.85, 0.8), Colour(Petals[(row * 3 + column) % 4]));
        }
    }
}

void Mushrooms(Relief& relief) {
    Tuft(relief, 13.4f, 13.8f, 2, Ink::Moss, Ink::Grass, 931);
    struct Cap {
        double x, y, radius;
    };
    constexpr Cap Caps[] = {{6.6, 7, 2.5}, {12.2, 6, 1.8}, {9.8, 11.8, 2.2}, {5, 13.4, 1.5}, {14.6, 11, 1.4}};
    for (const Cap& cap : Caps) {
        relief.Lay(Ellipse(cap.x, cap.y, cap.radius, cap.radius),
                   {.colour = Colour(Ink::Brick),
                    .height = static_cast<float>(cap.radius) * 0.9f,
                    .round = static_cast<float>(cap.radius)});
        for (const auto& [dx, dy] : {std::pair{-0.4, -0.5}, {0.5, 0.1}, {-0.3, 0.6}}) {
            relief.Stain(Ellipse(cap.x + dx * cap.radius, cap.y + dy * cap.radius, 0.45, 0.45),
                         Colour(Ink::Snow));
        }
    }
}

void VegetablePatch(Relief& relief) {
    relief.Lay(Rect(1, 1.4, 17.8, 17, 1),
               {.colour = Colour(Ink::Soil), .height = 0.5f, .round = 0.8f, .grain = 0.25f, .bump = 0.3f});
    for (int row = 0; row < 3; ++row) {
        relief.StainLine(Trace({{1.6, 7 + row * 5.2}, {18.2, 7 + row * 5.2}}), 1, Colour(Ink::Loam), 0.8);
        for (int column = 0; column < 4; ++column) {
            const double x = 3.4 + column * 4.3;
            const double y = 4.2 + row * 5.2;
            relief.Lay(Star(x, y, 2, 1.4, 6, column * 0.5),
                       {.colour = Colour(row == 1 ? Ink::Sprout : Ink::Grass),
                        .height = 1.2f,
                        .base = 0.4f,
                        .round = 1.6f,
                        .grain = 0.15f});
            if (row == 1) relief.Stain(Ellipse(x, y, 0.8, 0.8), Colour(Ink::Straw), 0.8);
        }
    }
}

void Bones(Relief& relief) {
    const Solid bone{.colour = Colour(Ink::Shell), .height = 0.9f, .round = 0.6f, .grain = 0.06f};
    relief.LayLine(Trace({{4.4, 13.6}, {12.4, 16}}), 1.3, bone);
    for (const auto& [x, y] : {std::pair{4.0, 13.0}, {4.2, 14.4}, {12.8, 15.4}, {12.6, 16.8}})
        relief.Lay(Ellipse(x, y, 1, 1), bone);
    for (const double x : Steps(9, 17, 2)) {
        QPainterPath rib(QPointF(x, 10.6));
        rib.quadTo(x + 2, 8.4, x + 0.6, 5.4);
        relief.LayLine(rib, 0.9, bone);
    }
    relief.LayLine(Trace({{8.4, 10.8}, {16.4, 10.2}}), 1.2, bone);
    relief.Lay(Ellipse(5.6, 7, 2.7, 2.4),
               {.colour = Colour(Ink::Shell), .height = 1.8f, .round = 2, .grain = 0.06f});
    for (const double x : {4.9, 6.7})
        relief.Stain(Ellipse(x, 7.6, 0.65, 0.75), Colour(Ink::Peat));
}

void FallenLeaves(Relief& relief) {
    Dice dice(941);
    constexpr Ink Tones[] = {Ink::Amber, Ink::Timber, Ink::Brick, Ink::Plank, Ink::Gold};
    for (int i = 0; i < 46; ++i) {
        QTransform place;
        const auto y = static_cast<double>(dice.Roll(1.6f, 18));
        const auto x = static_cast<double>(dice.Roll(1.6f, 18));
        place.translate(x, y).rotate(static_cast<double>(dice.Roll(0, 180)));
        relief.Lay(place.map(Ellipse(0, 0, 1.25, 0.7)),
                   {.colour = Colour(Tones[dice.Pick(5)]), .height = 0.35f, .round = 0.4f});
    }
}

void TargetCard(Relief& relief) {
    relief.LayLine(Trace({{4, 17.4}, {4, 4}}), 1.2,
                   {.colour = Colour(Ink::Timber), .height = 2, .round = 0.5f});
    relief.LayLine(Trace({{15, 17.4}, {15, 4}}), 1.2,
                   {.colour = Colour(Ink::Timber), .height = 2, .round = 0.5f});
    relief.Lay(Rect(2.4, 2.4, 14.2, 14.2, 0.3),
               {.colour = Colour(Ink::Shell), .height = 2.8f, .round = 0.4f, .grain = 0.05f});
    constexpr Ink Rings[] = {Ink::Iron, Ink::Shell, Ink::Iron, Ink::Shell, Ink::Scarlet};
    double radius = 6.4;
    for (const Ink ring : Rings) {
        relief.Stain(Ellipse(9.5, 9.5, radius, radius), Colour(ring));
        radius -= 1.25;
    }
}

void FlatCrates(Relief& relief) {
    for (const auto& [x, y, width, depth] : {std::array{2.0, 3.0, 9.0, 6.4}, {9.4, 9.8, 8.4, 6}}) {
        relief.Lay(Rect(x, y, width, depth, 0.3),
                   {.colour = Colour(Ink::Canvas), .height = 1.4f, .round = 0.6f, .grain = 0.1f});
        for (const double at : Steps(y + 1.8, y + depth - 0.5, 2))
            relief.StainLine(Trace({{x + 0.4, at}, {x + width - 0.4, at}}), 0.45, Colour(Ink::Olive), 0.9);
        relief.Stain(Rect(x + 1.6, y + 0.2, 1, depth - 0.4), Colour(Ink::Olive), 0.7);
        relief.Stain(Rect(x + width - 2.6, y + 0.2, 1, depth - 0.4), Colour(Ink::Olive), 0.7);
    }
}

void Sack(Relief& relief) {
    relief.Lay(
        Lump(9.4, 10.6, 5.4, 0.12, 951),
        {.colour = Colour(Ink::Clay), .height = 2.6f, .round = 4.4f, .grain = 0.15f, .grainSize = 0.8f});
    relief.Lay(Star(9, 5.2, 2.4, 1.3, 6, 0.4),
               {.colour = Colour(Ink::Plank), .height = 1.6f, .base = 0.8f, .round = 1.4f});
    relief.StainLine(Trace({{7, 6.4}, {11, 6.4}}), 0.8, Colour(Ink::Bark));
}

void Puddle(Relief& relief) {
    LoosePatch(relief, Lump(10, 10, 7.6, 0.25, 961), MudGround, 0, 1.2f);
    Relief water;
    water.Each([](float x, float y, Texel& texel) { WaterTexel(texel, x, y, 5); });
    const QPainterPath area = Lump(10, 10, 5.6, 0.25, 961);
    relief.Each([&](float x, float y, Texel& texel) {
        if (area.contains(QPointF(static_cast<double>(x), static_cast<double>(y)))) texel = water.At(x, y);
    });
    relief.StainLine(Trace({{7.4, 9}, {11.4, 7.4}}), 0.9, Colour(Ink::Foam), 0.9);
}

void Stump(Relief& relief) {
    relief.Lay(Star(9.6, 9.8, 7, 4.6, 7, 0.5),
               {.colour = Colour(Ink::Bark), .height = 1, .round = 2, .grain = 0.25f});
    relief.Lay(Lump(9.4, 9.4, 4.8, 0.08, 971),
               {.colour = Colour(Ink::Clay), .height = 2, .round = 0.5f, .grain = 0.08f});
    for (const double radius : Steps(3.9, 0.6, -1.1))
        relief.StainLine(Ellipse(9.2, 9.2, radius, radius), 0.4, Colour(Ink::Timber), 0.9);
    relief.StainLine(Trace({{9.2, 9.2}, {12.8, 11.6}}), 0.5, Colour(Ink::Bark));
}

void Papers(Relief& relief) {
    for (const auto& [x, y, turn] :
         {std::array{6.4, 6.6, -18.0}, {12.6, 8.4, 24}, {8.4, 13.4, 62}, {14.2, 14.4, -36}}) {
        QTransform place;
        place.translate(x, y).rotate(turn);
        relief.Lay(place.map(Rect(-2, -2.6, 4, 5.2, 0.2)),
                   {.colour = Colour(Ink::Snow), .height = 0.4f, .round = 0.2f, .grain = 0});
        for (const double line : Steps(-1.8, 2, 1))
            relief.StainLine(place.map(Trace({{-1.4, line}, {1.2, line}})), 0.4, Colour(Ink::Cement), 0.9);
    }
}

void LogPile(Relief& relief) {
    for (const auto& [y, height] : {std::pair{4.6, 0.0F}, {9, 0}, {13.4, 0}, {6.8, 1.4F}, {11.2, 1.4F}}) {
        relief.LayLine(Trace({{3.2, y}, {15.6, y}}), 3.8,
                       {.colour = Colour(Ink::Timber),
                        .height = 1.8f,
                        .base = height,
                        .round = 1.8f,
                        .grain = 0.2f,
                        .grainSize = 0.9f},
                       Qt::FlatCap);
        relief.Stain(Ellipse(3.4, y, 0.8, 1.7), Colour(Ink::Sand), 0.95);
        relief.StainLine(Trace({{5, y + 0.4}, {14.6, y + 0.4}}), 0.4, Colour(Ink::Soil), 0.7);
    }
}

void Signpost(Relief& relief) {
    relief.Lay(Ellipse(9.6, 10, 1.2, 1.2), {.colour = Colour(Ink::Bark), .height = 4.4f, .round = 0.6f});
    relief.Lay(Polygon({{2.4, 4.6}, {13.6, 4.6}, {16.6, 7.2}, {13.6, 9.8}, {2.4, 9.8}}),
               {.colour = Colour(Ink::Sand), .height = 3.6f, .round = 0.5f, .grain = 0.12f});
    for (const double y : {6.4, 8.0})
        relief.StainLine(Trace({{4, y}, {12.4, y}}), 0.6, Colour(Ink::Soil), 0.9);
    relief.LayLine(Trace({{9.6, 9.6}, {9.6, 16.4}}), 1.3,
                   {.colour = Colour(Ink::Bark), .height = 1.4f, .round = 0.5f});
}

// Columns 0 to 17; the landing spot is never shown and stays grass.
constexpr TileDrawing Things[] = {
    Rug,     Hay,          Campfire,   Tyre,       FlowerBed, Mushrooms, VegetablePatch, [](Relief&) {},
    Bones,   FallenLeaves, TargetCard, FlatCrates, Sack,      Puddle,    Stump,          Papers,
    LogPile, Signpost,
};

}  // namespace

TileRow VariousTiles() {
    TileRow row;
    AddTiles(row, TileGround::Grass, Things);
    for (const QImage& cell : VehicleCells())
        row.push_back(cell);
    return row;
}

}  // namespace art
