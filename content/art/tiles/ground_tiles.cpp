// Row 0: open ground.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include <QTransform>

#include "kit/canvas.h"
#include "kit/noise.h"
#include "kit/shapes.h"
#include "tiles/grounds.h"
#include "tiles/tile_drawing.h"
#include "tiles/tile_rows.h"

namespace art {
namespace {

void Tufts(Relief& relief, std::uint32_t seed, Ink dark, Ink light) {
    constexpr int Count = 5;
    Dice dice(seed);
    for (int i = 0; i < Count; ++i) {
        const float size = dice.Roll(2.0f, 3.0f);
        const float y = dice.Roll(5, 17);
        const float x = dice.Roll(4, 16);
        Tuft(relief, x, y, size, dark, light, seed + static_cast<std::uint32_t>(i));
    }
}

// Small round leaves or petals, lying flat.
void Dots(Relief& relief, int count, float radius, Ink dark, Ink light, std::uint32_t seed) {
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const auto x = static_cast<double>(dice.Roll(2.5f, 17.5f));
        const auto y = static_cast<double>(dice.Roll(2.5f, 17.5f));
        const auto size = static_cast<double>(radius * dice.Roll(0.8f, 1.3f));
        relief.Stain(Ellipse(x + 0.4, y + 0.5, size, size), Colour(Ink::Fir), 0.5);
        relief.Stain(Ellipse(x, y, size, size), Between(dark, light, static_cast<double>(dice.Roll(0, 1))));
    }
}

void Flowers(Relief& relief) {
    Tufts(relief, 114, Ink::Meadow, Ink::Sprout);
    Dots(relief, 4, 0.8f, Ink::Glow, Ink::Snow, 115);
    Dots(relief, 3, 0.75f, Ink::Gold, Ink::Gold, 116);
}

// A thin patch in the grass where another ground shows, well inside the tile.
void WornPatch(Relief& relief, const Loose& ground, std::uint32_t seed) {
    LoosePatch(relief, Lump(10, 10.5, 5.4, 0.35, seed), ground, 0, 1.4f);
}

void Furrows(Relief& relief, bool westEast) {
    relief.Each([westEast](float x, float y, Texel& texel) {
        const float across = westEast ? y : x;
        const float along = westEast ? x : y;
        constexpr float Turn = 2 * 3.14159265f / 5;  // four furrows a tile
        const float wave = std::sin((across + 0.35f * Noise(along, 3, 2.5f, 20, 121)) * Turn);
        texel.height += 0.9f * wave;
        const float light = 1 + 0.12f * wave;
        texel.red *= light;
        texel.green *= light;
        texel.blue *= light;
    });
}

void Grain(Relief& relief) {
    LooseGround(relief, {Ink::Stubble, Ink::Straw, 1.25f, 0.7f, 0.6f, 127});
    Dice dice(128);
    for (int i = 0; i < 70; ++i) {
        const float x = dice.Roll(0, 20);
        const float y = dice.Roll(0, 20);
        const QColor colour = Between(Ink::Stubble, Ink::Glow, static_cast<double>(dice.Roll(0, 0.75f)));
        for (int wrap = 0; wrap < 9; ++wrap) {
            const int across = wrap % 3 - 1;
            const int down = wrap / 3 - 1;
            const double left = static_cast<double>(x) + across * 20;
            const double top = static_cast<double>(y) + down * 20;
            relief.StainLine(Trace({{left, top}, {left + 0.7, top - 2.1}}), 0.7, colour, 0.9);
        }
    }
}

void WheelTracks(Relief& relief) {
    for (const double y : {6.0, 14.0}) {
        LoosePatch(relief, Rect(-8, y - 1.7, 36, 3.4), EarthGround, -0.9f, 0.7f);
        for (int x = -8; x < 28; x += 2) {
            relief.StainLine(Trace({{static_cast<double>(x), y - 1.2}, {x + 0.9, y + 1.2}}), 0.7,
                             Colour(Ink::Loam), 0.5);
        }
    }
}

constexpr TileDrawing Drawings[] = {
    [](Relief& r) { GrassGround(r); },
    [](Relief& r) {
        GrassGround(r);
        Tufts(r, 101, Ink::Moss, Ink::Sprout);
    },
    [](Relief& r) {
        GrassGround(r);
        Dots(r, 20, 0.85f, Ink::Meadow, Ink::Sprout, 103);
    },
    [](Relief& r) {
        GrassGround(r);
        Flowers(r);
    },
    [](Relief& r) {
        GrassGround(r);
        Tufts(r, 105, Ink::Stubble, Ink::Straw);
    },
    [](Relief& r) {
        GrassGround(r);
        ScatterStones(r, 7, 0.6f, 1.3f, 2, Ink::Limestone, 107);
    },
    [](Relief& r) {
        GrassGround(r);
        Dots(r, 7, 0.8f, Ink::Timber, Ink::Straw, 109);
    },
    [](Relief& r) {
        GrassGround(r);
        WornPatch(r, {Ink::Timber, Ink::Clay, 2, 0.5f, 0.4f, 59}, 111);
    },
    [](Relief& r) { LooseGround(r, EarthGround); },
    [](Relief& r) { LooseGround(r, SandGround); },
    [](Relief& r) { LooseGround(r, GravelGround); },
    [](Relief& r) { LooseGround(r, MudGround); },
    [](Relief& r) {
        LooseGround(r, EarthGround);
        Furrows(r, true);
    },
    [](Relief& r) {
        LooseGround(r, EarthGround);
        Furrows(r, false);
    },
    [](Relief& r) { Grain(r); },
    [](Relief& r) {
        GrassGround(r);
        WheelTracks(r);
    },
};

// Grounds that lie beside nothing but themselves.
constexpr std::size_t Lone[] = {8, 9, 10, 11, 14};

int ColourStep(QRgb a, QRgb b) {
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

// The column of a picture that differs least from the one before it; both wrap.
int SmoothestColumn(const QImage& picture) {
    std::array<int, CellSize> steps{};
    for (int x = 0; x < CellSize; ++x)
        for (int y = 0; y < CellSize; ++y)
            steps[static_cast<std::size_t>(x)] +=
                ColourStep(picture.pixel(x, y), picture.pixel((x + CellSize - 1) % CellSize, y));
    return static_cast<int>(std::ranges::min_element(steps) - steps.begin());
}

// A tile that repeats, cut where its grain shows the cut least.
QImage CutBetweenGrains(const QImage& tile) {
    const int left = SmoothestColumn(tile);
    const int top = SmoothestColumn(tile.transformed(QTransform(0, 1, 1, 0, 0, 0)));
    QImage cut(tile.size(), tile.format());
    for (int y = 0; y < CellSize; ++y)
        for (int x = 0; x < CellSize; ++x)
            cut.setPixel(x, y, tile.pixel((x + left) % CellSize, (y + top) % CellSize));
    return cut;
}

}  // namespace

TileRow SurfaceTiles() {
    TileRow row;
    AddTiles(row, TileGround::Bare, Drawings);
    for (const std::size_t tile : Lone)
        row[tile] = CutBetweenGrains(row[tile]);
    return row;
}

}  // namespace art
