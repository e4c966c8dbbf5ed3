// Row 1: water, its banks, fords and streams.
#include <algorithm>
#include <cmath>

#include "kit/noise.h"
#include "kit/shapes.h"
#include "tiles/grounds.h"
#include "tiles/tile_rows.h"

namespace art {
namespace {

constexpr float ShoreLine = 5;  // from the land's side of the cell to the water's edge, pixels

// Distance from the water's edge, positive in the water, by the tile's column.
using ShoreDistance = float (*)(float x, float y);

float North(float, float y) {
    return y - ShoreLine;
}
float South(float, float y) {
    return 20 - ShoreLine - y;
}
float West(float x, float) {
    return x - ShoreLine;
}
float East(float x, float) {
    return 20 - ShoreLine - x;
}

// Land on both sides: the inner corner of the water is rounded.
float Inside(float a, float b) {
    constexpr float Radius = 5;
    const float ca = Radius - a;
    const float cb = Radius - b;
    if (ca > 0 && cb > 0) return Radius - std::sqrt(ca * ca + cb * cb);
    return std::min(a, b);
}

// Land at the corner alone.
float Around(float a, float b) {
    return -Inside(-a, -b);
}

constexpr ShoreDistance Shores[] = {
    North,
    South,
    West,
    East,
    [](float x, float y) { return Inside(North(x, y), West(x, y)); },
    [](float x, float y) { return Inside(North(x, y), East(x, y)); },
    [](float x, float y) { return Inside(South(x, y), West(x, y)); },
    [](float x, float y) { return Inside(South(x, y), East(x, y)); },
    [](float x, float y) { return Around(North(x, y), West(x, y)); },
    [](float x, float y) { return Around(North(x, y), East(x, y)); },
    [](float x, float y) { return Around(South(x, y), West(x, y)); },
    [](float x, float y) { return Around(South(x, y), East(x, y)); },
    // a stream: two shores
    [](float, float y) { return 4.6f - std::abs(y - 10); },
    [](float x, float) { return 4.6f - std::abs(x - 10); },
};
constexpr std::size_t BankCount = 12;

// Grass, a strip of wet sand, then water that deepens.
void Shore(Relief& relief, ShoreDistance distance) {
    constexpr float SandWidth = 2.2f;
    Relief sand;
    LooseGround(sand, {Ink::Timber, Ink::Sand, 2, 0.6f, 0.4f, 83});
    GrassGround(relief);
    Relief water;
    water.Each([&](float x, float y, Texel& texel) {
        const float wander = 1.1f * Noise(x, y, 5, 20, 87) + 0.5f * Noise(x, y, 2, 20, 88);
        WaterTexel(texel, x, y, distance(x, y) + wander);
    });
    relief.Each([&](float x, float y, Texel& texel) {
        const float wander = 1.1f * Noise(x, y, 5, 20, 87) + 0.5f * Noise(x, y, 2, 20, 88);
        const float depth = distance(x, y) + wander;
        if (depth > 0) {
            texel = water.At(x, y);
        } else if (depth > -SandWidth - 0.7f * Noise(x, y, 1.25f, 20, 89)) {
            texel = sand.At(x, y);
            texel.height -= 0.35f * (depth + SandWidth);
        }
    });
}

void Shallows(Relief& relief) {
    relief.Each(
        [](float x, float y, Texel& texel) { WaterTexel(texel, x, y, 4 + 2 * Noise(x, y, 4, 20, 91)); });
}

void SteppingStones(Relief& relief) {
    struct Stone {
        double x, y, radius;
    };
    constexpr Stone Stones[] = {{3.2, 4.4, 2.3},   {10.2, 3.2, 2.0}, {16.4, 5.6, 2.4}, {5.6, 10.6, 2.5},
                                {13.2, 11.2, 2.6}, {3.6, 16.6, 2.1}, {9.8, 17.0, 2.2}, {16.8, 16.6, 2.0}};
    std::uint32_t seed = 93;
    for (const Stone& stone : Stones) {
        relief.Stain(Ellipse(stone.x, stone.y, stone.radius + 0.8, stone.radius + 0.8), Colour(Ink::Foam),
                     0.55);
        const double shade = seed % 3 * 0.4;
        ++seed;
        relief.Lay(Lump(stone.x, stone.y, stone.radius, 0.18, seed),
                   {.colour = Between(Ink::Fieldstone, Ink::Concrete, shade),
                    .height = 1.3f,
                    .round = 1.4f,
                    .grain = 0.12f,
                    .bump = 0.2f});
    }
}

void RipplesAndWeed(Relief& relief) {
    for (const auto& [x, y, length] : {std::array{3.0, 5.0, 6.0}, {10.5, 8.5, 6.5}, {4.5, 14.5, 5.0}}) {
        QPainterPath ripple(QPointF(x, y));
        ripple.quadTo(x + length / 2, y - 1.8, x + length, y);
        relief.StainLine(ripple, 0.8, Colour(Ink::Brook), 0.85);
    }
    Dice dice(97);
    for (int i = 0; i < 9; ++i) {
        const auto x = static_cast<double>(dice.Roll(11, 17));
        const auto y = static_cast<double>(dice.Roll(12, 17));
        relief.Stain(Ellipse(x, y, 1.3, 0.9),
                     Between(Ink::Fir, Ink::Grass, static_cast<double>(dice.Roll(0, 1))), 0.9);
    }
}

void Reeds(Relief& relief) {
    Dice dice(99);
    for (int i = 0; i < 34; ++i) {
        const auto x = static_cast<double>(dice.Roll(1.5f, 18));
        const auto y = static_cast<double>(dice.Roll(4, 19));
        const auto lean = static_cast<double>(dice.Roll(-1.2f, 1.2f));
        relief.StainLine(Trace({{x + 0.6, y + 0.4}, {x + lean + 1.6, y - 2}}), 0.8, Colour(Ink::Lake), 0.6);
        relief.StainLine(Trace({{x, y}, {x + lean, y - 3.4}}), 0.75,
                         Between(Ink::Moss, Ink::Sprout, static_cast<double>(dice.Roll(0, 1))));
        if (i % 4 == 0)
            relief.StainLine(Trace({{x + lean, y - 3.4}, {x + lean, y - 2.2}}), 1.1, Colour(Ink::Bark));
    }
}

QImage Drawn(void (*ground)(Relief&), void (*detail)(Relief&)) {
    Relief relief;
    ground(relief);
    detail(relief);
    return Finished(relief);
}

}  // namespace

TileRow WaterTiles() {
    const auto nothing = [](Relief&) {};
    TileRow row{Drawn(OpenWater, nothing)};
    for (std::size_t i = 0; i < BankCount; ++i) {
        Relief relief;
        Shore(relief, Shores[i]);
        row.push_back(Finished(relief));
    }
    row.push_back(Drawn(OpenWater, RipplesAndWeed));
    row.push_back(Drawn(Shallows, SteppingStones));
    for (std::size_t i = BankCount; i < std::size(Shores); ++i) {
        Relief relief;
        Shore(relief, Shores[i]);
        row.push_back(Finished(relief));
    }
    row.push_back(Drawn(Shallows, Reeds));
    return row;
}

}  // namespace art
