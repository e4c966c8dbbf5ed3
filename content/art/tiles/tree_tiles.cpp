// Row 2: trees, bushes and undergrowth, and the tops that lie over a soldier who walks among them.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "kit/canvas.h"
#include "kit/noise.h"
#include "kit/shapes.h"
#include "tiles/grounds.h"
#include "tiles/tile_rows.h"

namespace art {
namespace {

struct Foliage {
    Ink shade, middle, light;
};

constexpr Foliage Oak{Ink::Pine, Ink::Moss, Ink::Pasture};
constexpr Foliage Birch{Ink::Fir, Ink::Grass, Ink::Sprout};
constexpr Foliage Spruce{Ink::Fir, Ink::Moss, Ink::Grass};
constexpr Foliage Old{Ink::Pine, Ink::Moss, Ink::Grass};

QColor Leaf(const Foliage& foliage, float share) {
    return share < 0.5f ? Between(foliage.shade, foliage.middle, static_cast<double>(share * 2))
                        : Between(foliage.middle, foliage.light, static_cast<double>(share * 2 - 1));
}

struct Clump {
    float x, y, radius, height;
};

// A crown of leaf clumps on a dome, low ones first.
void Crown(Relief& relief, Clump crown, int clumps, const Foliage& foliage, std::uint32_t seed) {
    Dice dice(seed);
    std::vector<Clump> lobes;
    for (int i = 0; i < clumps; ++i) {
        const float angle = dice.Roll(0, 2 * std::numbers::pi_v<float>);
        const float out = std::sqrt(dice.Roll(0, 1));
        const float radius = crown.radius * dice.Roll(0.20f, 0.32f);
        const float reach = out * (crown.radius - radius);
        const float up = crown.height * std::sqrt(1 - 0.85f * out * out);
        lobes.push_back({crown.x + reach * std::cos(angle), crown.y + reach * std::sin(angle), radius, up});
    }
    std::sort(lobes.begin(), lobes.end(), [](const Clump& a, const Clump& b) { return a.height < b.height; });
    for (const Clump& lobe : lobes) {
        const float share =
            std::clamp(0.15f + 0.6f * lobe.height / crown.height + dice.Roll(-0.2f, 0.2f), 0.0f, 1.0f);
        relief.Lay(
            Lump(static_cast<double>(lobe.x), static_cast<double>(lobe.y), static_cast<double>(lobe.radius),
                 0.28, static_cast<std::uint32_t>(dice.Pick(100000))),
            {.colour = Leaf(foliage, share),
             .height = lobe.radius * 0.7f,
             .base = lobe.height,
             .round = lobe.radius,
             .grain = 0.14f,
             .grainSize = 0.8f,
             .bump = 0.25f});
    }
}

// Layers of spikes that narrow to the tip.
void Conifer(Relief& relief, Clump tree, std::uint32_t seed) {
    constexpr int Layers = 5;
    Dice dice(seed);
    for (int i = 0; i < Layers; ++i) {
        const float share = static_cast<float>(i) / Layers;
        const auto outer = static_cast<double>(tree.radius * (1 - 0.85f * share));
        relief.Lay(Star(static_cast<double>(tree.x), static_cast<double>(tree.y), outer, outer * 0.62, 11 - i,
                        static_cast<double>(dice.Roll(0, 6))),
                   {.colour = Leaf(Spruce, 0.1f + 1.0f * share),
                    .height = tree.height / Layers * 0.9f,
                    .base = tree.height * share * 0.62f,
                    .round = tree.radius * 0.35f,
                    .grain = 0.16f,
                    .grainSize = 0.8f,
                    .bump = 0.2f});
    }
}

void Trunk(Relief& relief, double x, double y, double radius) {
    relief.Lay(Ellipse(x, y, radius, radius),
               {.colour = Colour(Ink::Bark), .height = 3, .round = 0.8f, .grain = 0.2f, .covers = false});
}

// Dark ground under trees: old leaves and no grass, ragged at `reach` pixels from the middle. A reach beyond
// the corners, 15, covers the tile.
void ForestFloor(Relief& relief, float strength, float reach) {
    relief.Each([strength, reach](float x, float y, Texel& texel) {
        const QColor colour =
            Between(Ink::Pine, Ink::Soil, 0.5 + 0.5 * static_cast<double>(Fractal(x, y, 2.5f, 20, 211)));
        const float edge = reach + 1.6f * Noise(x, y, 1.67f, 20, 213) - std::hypot(x - 10, y - 10);
        const float share = strength * std::clamp(edge, 0.0f, 1.0f);
        texel.red = std::lerp(texel.red, static_cast<float>(colour.red()), share);
        texel.green = std::lerp(texel.green, static_cast<float>(colour.green()), share);
        texel.blue = std::lerp(texel.blue, static_cast<float>(colour.blue()), share);
    });
}

// Dense crowns fill the cell, so that a wood shows no ground.
void DenseBroadleaf(Relief& relief, std::uint32_t seed) {
    ForestFloor(relief, 0.8f, 11.2f);
    Trunk(relief, 10, 10, 1.8);
    Crown(relief, {9.6f, 9.6f, 9.6f, 6}, 62, Oak, seed);
}

// Thin grass and old leaves around a plant's foot: sets it off from the meadow.
void GrassShade(Relief& relief, const Clump& plant) {
    const auto reach = static_cast<double>(plant.radius);
    relief.Stain(
        Lump(static_cast<double>(plant.x) + 0.8, static_cast<double>(plant.y) + 0.8, reach + 0.8, 0.12, 219),
        Colour(Ink::Pine), 0.6);
}

void Fern(Relief& relief, float x, float y, float reach, std::uint32_t seed) {
    Dice dice(seed);
    constexpr int Fronds = 8;
    GrassShade(relief, {x, y, reach * 0.75f, 0});
    for (int i = 0; i < Fronds; ++i) {
        const float angle =
            (static_cast<float>(i) + dice.Roll(-0.2f, 0.2f)) * 2 * std::numbers::pi_v<float> / Fronds;
        const auto tipX = static_cast<double>(x + reach * std::cos(angle));
        const auto tipY = static_cast<double>(y + reach * std::sin(angle));
        QPainterPath frond(QPointF(static_cast<double>(x), static_cast<double>(y)));
        frond.quadTo((static_cast<double>(x) + tipX) / 2 + 0.6, (static_cast<double>(y) + tipY) / 2 - 0.6,
                     tipX, tipY);
        relief.LayLine(frond, 1.4,
                       {.colour = Leaf(Birch, dice.Roll(0.45f, 1)),
                        .height = 1,
                        .base = 0.6f,
                        .round = 0.6f,
                        .grain = 0.2f,
                        .grainSize = 0.8f});
    }
}

void SmallTree(Relief& relief, int variant) {
    constexpr Clump Trees[] = {
        {8.8f, 8.8f, 6.4f, 4.4f}, {9.4f, 9.2f, 5.6f, 4}, {7.2f, 7.6f, 4.8f, 3.4f}, {9, 9.4f, 6, 2.6f}};
    const auto seed = static_cast<std::uint32_t>(221 + variant * 7);
    const Clump& tree = Trees[variant];
    GrassShade(relief, tree);
    if (variant == 2) Crown(relief, {13.4f, 13, 3.8f, 2.2f}, 16, Birch, seed + 50);
    Crown(relief, tree, 30, variant % 2 == 0 ? Birch : Oak, seed);
}

void Saplings(Relief& relief, int variant) {
    const auto seed = static_cast<std::uint32_t>(251 + variant * 9);
    Dice dice(seed);
    if (variant % 2 == 1) {
        for (int i = 0; i < 3; ++i) {
            const float size = dice.Roll(3.4f, 4.6f);
            const float y = dice.Roll(5, 15);
            const float x = dice.Roll(5, 15);
            Fern(relief, x, y, size, seed + static_cast<std::uint32_t>(i));
        }
        return;
    }
    for (int i = 0; i < 4; ++i) {
        const Clump plant{dice.Roll(4, 14.5f), dice.Roll(4, 14.5f), dice.Roll(2.3f, 3.1f), 1.6f};
        GrassShade(relief, plant);
        Crown(relief, plant, 9, Birch, seed + static_cast<std::uint32_t>(i));
    }
}

// Two thin trunks with light crowns: a soldier walks and sees between them.
void OpenWood(Relief& relief, int variant) {
    struct Pair {
        Clump first, second;
    };
    constexpr Pair Pairs[] = {{{5.5f, 5.5f, 4.6f, 4}, {13.5f, 13, 4.8f, 4}},
                              {{13.5f, 5.5f, 4.7f, 4}, {5.5f, 13.2f, 4.7f, 4}},
                              {{5.2f, 9, 4.4f, 4}, {14.2f, 11, 4.4f, 4}},
                              {{10.5f, 5, 4.5f, 4}, {9, 14, 4.6f, 4}}};
    ForestFloor(relief, 0.4f, 10.5f);
    const auto seed = static_cast<std::uint32_t>(281 + variant * 5);
    for (const Clump& tree : {Pairs[variant].first, Pairs[variant].second}) {
        GrassShade(relief, tree);
        Trunk(relief, static_cast<double>(tree.x), static_cast<double>(tree.y), 1.1);
        Crown(relief, tree, 17, variant % 2 == 0 ? Birch : Oak,
              seed + static_cast<std::uint32_t>(tree.x * 3));
    }
}

void DenseConifers(Relief& relief, int variant) {
    constexpr Clump Groups[][3] = {{{5.6f, 5.8f, 5.6f, 6}, {14.2f, 8, 5.6f, 7}, {7.6f, 14, 5.8f, 6}},
                                   {{14, 5.4f, 5.4f, 6}, {5.8f, 9, 5.8f, 7}, {13.4f, 14, 5.8f, 6}},
                                   {{6, 13.4f, 5.8f, 6}, {10.2f, 5.8f, 5.8f, 7}, {14.4f, 13.6f, 5.4f, 6}},
                                   {{5.4f, 5.6f, 5.4f, 5}, {13.6f, 13.8f, 6, 6}, {9.8f, 9.8f, 7.2f, 8}}};
    ForestFloor(relief, 0.85f, 11.6f);
    std::uint32_t seed = static_cast<std::uint32_t>(311 + variant * 13);
    for (const Clump& tree : Groups[variant])
        Conifer(relief, tree, ++seed);
}

void Berries(Relief& relief, int variant) {
    const auto seed = static_cast<std::uint32_t>(351 + variant * 3);
    const Clump shrub{9.2f, 9.4f, 6.2f, 2.4f};
    GrassShade(relief, shrub);
    Crown(relief, shrub, 30, Old, seed);
    Dice dice(seed);
    for (int i = 0; i < 11; ++i) {
        const auto x = static_cast<double>(dice.Roll(5, 14));
        const auto y = static_cast<double>(dice.Roll(5, 14));
        relief.Stain(Ellipse(x, y, 0.75, 0.75), Colour(variant == 0 ? Ink::Scarlet : Ink::Shallow));
    }
}

// Old wood closes over the whole cell and beyond its sides.
void OldWood(Relief& relief, int variant) {
    constexpr Clump Low[] = {{2.6f, 2.6f, 4, 2}, {17.2f, 3, 4, 2}, {3, 17, 4, 2}, {17, 17, 4, 2}};
    constexpr Clump High[] = {{9.5f, 9, 9, 6}, {8.6f, 10, 8.4f, 7}, {10.6f, 9.4f, 8.8f, 6}};
    ForestFloor(relief, 0.9f, 17);
    std::uint32_t seed = static_cast<std::uint32_t>(371 + variant * 17);
    for (const Clump& bush : Low)
        Crown(relief, bush, 12, Spruce, ++seed);
    Crown(relief, High[variant], 56, Old, ++seed);
}

void Grow(Relief& relief, int column) {
    GrassGround(relief);
    if (column == 0) return DenseBroadleaf(relief, 201);
    if (column <= 4) return SmallTree(relief, column - 1);
    if (column <= 8) return Saplings(relief, column - 5);
    if (column <= 12) return OpenWood(relief, column - 9);
    if (column <= 16) return DenseConifers(relief, column - 13);
    if (column <= 18) return Berries(relief, column - 17);
    OldWood(relief, column - 19);
}

constexpr int TreeColumns = 22;

// Gaps between leaves: a soldier under a dense crown must still be found by the player.
bool Gap(int x, int y) {
    const float middle = std::hypot(static_cast<float>(x) - 9.5f, static_cast<float>(y) - 9.5f);
    const float openness = 0.08f - middle * 0.06f;
    return Noise(static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f, 2.5f, 20, 401) < openness;
}

}  // namespace

TreePictures DrawTrees() {
    TreePictures trees;
    for (int column = 0; column < TreeColumns; ++column) {
        Relief relief;
        Grow(relief, column);
        QImage tile = Finished(relief);
        trees.tiles.push_back(tile);
        const QImage leaves = relief.Render(true);
        for (int y = 0; y < CellSize; ++y) {
            for (int x = 0; x < CellSize; ++x) {
                if (qAlpha(leaves.pixel(x, y)) < 128 || Gap(x, y)) tile.setPixel(x, y, 0u);
            }
        }
        trees.tops.push_back(tile);
    }
    return trees;
}

}  // namespace art
