#include "tiles/grounds.h"

#include <algorithm>
#include <cmath>

#include "kit/noise.h"
#include "kit/shapes.h"

namespace art {
namespace {

constexpr float Period = 20;
constexpr float Reach = 8;  // the hidden margin around a tile

void Paint(Texel& texel, const QColor& colour, float light) {
    texel.red = static_cast<float>(colour.red()) * light;
    texel.green = static_cast<float>(colour.green()) * light;
    texel.blue = static_cast<float>(colour.blue()) * light;
}

void PaintLoose(Texel& texel, const Loose& ground, float x, float y) {
    const float coarse = Fractal(x, y, ground.cell, Period, ground.seed);
    const float fine = Noise(x, y, 0.8f, Period, ground.seed + 3);
    const float share =
        0.5f + 0.5f * std::clamp(ground.contrast * (1.5f * coarse + 0.4f * fine), -1.0f, 1.0f);
    Paint(texel, Between(ground.dark, ground.light, static_cast<double>(share)), 1);
    texel.height = ground.bump * (coarse + 0.3f * fine);
}

struct WaterStop {
    float depth;
    Ink ink;
};

// Colour of water by its distance from the shore, pixels.
constexpr WaterStop WaterStops[] = {
    {0, Ink::Foam},     {1, Ink::Shallow},  {5, Ink::Brook},
    {8.5f, Ink::River}, {11.5f, Ink::Lake}, {14, Ink::Lake},
};

QColor WaterColour(float depth) {
    for (std::size_t i = 1; i < std::size(WaterStops); ++i) {
        const WaterStop& from = WaterStops[i - 1];
        const WaterStop& to = WaterStops[i];
        if (depth < to.depth) {
            return Between(from.ink, to.ink,
                           static_cast<double>((depth - from.depth) / (to.depth - from.depth)));
        }
    }
    return Colour(Ink::Lake);
}

}  // namespace

void LooseGround(Relief& relief, const Loose& ground) {
    relief.Each([&](float x, float y, Texel& texel) { PaintLoose(texel, ground, x, y); });
}

void LoosePatch(Relief& relief, const QPainterPath& path, const Loose& ground, float height, float ragged) {
    const QImage stencil = relief.Stencil(path);
    relief.Each([&](float x, float y, Texel& texel) {
        const float dx = ragged * 1.5f * Noise(x, y, 1.25f, Period, ground.seed + 11);
        const float dy = ragged * 1.5f * Noise(x, y, 1.25f, Period, ground.seed + 12);
        if (!relief.Inside(stencil, x + dx, y + dy)) return;
        PaintLoose(texel, ground, x, y);
        texel.height += height;
    });
}

void GrassGround(Relief& relief) {
    relief.Each([](float x, float y, Texel& texel) {
        const float patch = Noise(x, y, 4, Period, 3);
        const float blades = Noise(x, y, 1, Period, 5) + 0.6f * Noise(x, y, 0.8f, Period, 9);
        const float share = std::clamp(0.5f + 0.07f * patch + 0.26f * blades, 0.0f, 1.0f);
        Paint(texel, Between(Ink::Meadow, Ink::Pasture, static_cast<double>(share)), 1);
        texel.height = 0.26f * blades;
    });
}

void Tuft(Relief& relief, float x, float y, float reach, Ink dark, Ink light, std::uint32_t seed) {
    Dice dice(seed);
    relief.Stain(Ellipse(static_cast<double>(x) + 0.5, static_cast<double>(y) + 0.6,
                         static_cast<double>(reach) * 0.8, static_cast<double>(reach) * 0.55),
                 Colour(Ink::Fir), 0.6);
    for (int i = 0; i < 9; ++i) {
        const float lean = dice.Roll(-1, 1);
        const QPointF foot(static_cast<double>(x + lean * reach * 0.35f),
                           static_cast<double>(y + dice.Roll(0, 0.8f)));
        const QPointF tip(static_cast<double>(x + lean * reach),
                          static_cast<double>(y - reach * (1.1f - 0.5f * std::abs(lean))));
        relief.StainLine(Trace({foot, tip}), 0.9, Between(dark, light, static_cast<double>(dice.Roll(0, 1))),
                         0.95);
    }
}

void BoardGround(Relief& relief, bool westEast, Ink dark, Ink light, std::uint32_t seed) {
    constexpr float BoardWidth = 5;
    relief.Each([&](float x, float y, Texel& texel) {
        const float along = westEast ? x : y;
        const float across = westEast ? y : x;
        const float wrapped = std::fmod(across + Period * 2, Period);
        const float board = std::floor(wrapped / BoardWidth);
        const float inBoard = wrapped - board * BoardWidth;
        const auto boardSeed = seed + static_cast<std::uint32_t>(board) * 17;
        const float tone = 0.5f + 0.4f * Noise(board * 3.1f, 1, 5, Period, boardSeed);
        const float vein = Noise(along, across * 5, 2.5f, Period, boardSeed);
        Paint(texel, Between(dark, light, static_cast<double>(std::clamp(tone + 0.25f * vein, 0.0f, 1.0f))),
              1);
        const float butt = std::fmod(along + Period * 2 + board * 7.0f, Period);
        const bool gap = inBoard < 0.55f || butt < 0.5f;
        texel.height = gap ? -0.8f : 0.1f * vein;
        if (gap) Paint(texel, Between(dark, Ink::Peat, 0.6), 1);
    });
}

void SlabFloor(Relief& relief) {
    LooseGround(relief, SlabGround);
    relief.Each([](float x, float y, Texel& texel) {
        const float across = std::fmod(x + Period * 2, Period);
        const float down = std::fmod(y + Period * 2, Period);
        if (across >= 0.7f && down >= 0.7f) return;
        Paint(texel, Colour(Ink::Slate), 1);
        texel.height = -0.7f;
    });
}

void FlagFloor(Relief& relief) {
    LooseGround(relief, {Ink::Cellar, Ink::Fieldstone, 2, 0.5f, 0.2f, 61});
    struct Flag {
        double x, y, width, height;
        Ink ink;
    };
    constexpr Flag Flags[] = {
        {0.4, 0.4, 11.2, 7.4, Ink::Limestone},  {12.4, 0.4, 7.2, 10.2, Ink::Fieldstone},
        {0.4, 8.6, 6.6, 11, Ink::Fieldstone},   {7.8, 8.6, 3.8, 11, Ink::Concrete},
        {12.4, 11.4, 7.2, 8.2, Ink::Limestone},
    };
    for (int across = -20; across <= 20; across += 20) {
        for (int down = -20; down <= 20; down += 20) {
            for (const Flag& flag : Flags) {
                relief.Lay(Rect(flag.x + across, flag.y + down, flag.width, flag.height, 1.2),
                           {.colour = Colour(flag.ink),
                            .height = 0.6f,
                            .round = 0.7f,
                            .grain = 0.1f,
                            .bump = 0.15f,
                            .seed = 67,
                            .covers = false});
            }
        }
    }
}

void WaterTexel(Texel& texel, float x, float y, float depth) {
    constexpr float Phase = 2.5f;  // keeps the crests off the seams
    const float swell =
        Noise(x, y * 2 + Phase, 4, Period, 71) + 0.45f * Noise(x, y * 2 + Phase, 2, Period, 73);
    const QColor colour = WaterColour(std::max(0.0f, depth + 0.5f * swell));
    const float crest = std::max(0.0f, swell - 0.25f);
    Paint(texel, colour, 1 + 0.05f * swell + 0.3f * crest);
    texel.height = -0.6f + 0.45f * swell;
}

void OpenWater(Relief& relief) {
    relief.Each([](float x, float y, Texel& texel) { WaterTexel(texel, x, y, 14); });
}

QPainterPath WholeTile() {
    const auto size = static_cast<double>(Period + 2 * Reach);
    return Rect(static_cast<double>(-Reach), static_cast<double>(-Reach), size, size);
}

void ScatterStones(Relief& relief, int count, float smallest, float largest, float inset, Ink colour,
                   std::uint32_t seed) {
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const float radius = dice.Roll(smallest, largest);
        const float low = inset + radius;
        const auto x = static_cast<double>(dice.Roll(low, Period - low));
        const auto y = static_cast<double>(dice.Roll(low, Period - low));
        relief.Lay(Lump(x, y, static_cast<double>(radius), 0.25, seed + static_cast<std::uint32_t>(i)),
                   {.colour = Between(colour, Ink::Chalk, static_cast<double>(dice.Roll(0, 0.35f))),
                    .height = radius * 0.8f,
                    .round = radius,
                    .grain = 0.1f});
    }
}

}  // namespace art
