// Row 6: dirt roads, paths and plank bridges.
#include "kit/noise.h"
#include "kit/shapes.h"
#include "tiles/grounds.h"
#include "tiles/tile_drawing.h"
#include "tiles/tile_rows.h"
#include "tiles/walls.h"

namespace art {
namespace {

constexpr double RoadWidth = 12.5;
constexpr double RutApart = 6.2;

// Two ruts along a line, with a rise of dry earth between.
void Ruts(Relief& relief, const QPainterPath& line) {
    const QImage outer = relief.Stencil(Widened(line, RutApart + 2, Qt::RoundCap, Qt::RoundJoin));
    const QImage inner = relief.Stencil(Widened(line, RutApart - 2, Qt::RoundCap, Qt::RoundJoin));
    relief.Each([&](float x, float y, Texel& texel) {
        const float sway = 0.5f * Noise(x, y, 2.5f, 20, 621);
        if (!relief.Inside(outer, x + sway, y + sway) || relief.Inside(inner, x + sway, y + sway)) return;
        texel.height -= 0.5f;
        texel.red *= 0.9f;
        texel.green *= 0.88f;
        texel.blue *= 0.86f;
    });
}

void Road(Relief& relief, const Joint& joint) {
    const QPainterPath line = JointLine(joint, true);
    LoosePatch(relief, Widened(line, RoadWidth + 2, Qt::RoundCap, Qt::RoundJoin), EarthGround, 0, 1.1f);
    LoosePatch(relief, Widened(line, RoadWidth, Qt::RoundCap, Qt::RoundJoin), DirtRoadGround, -0.15f, 0.8f);
    Ruts(relief, line);
}

void Path(Relief& relief, bool westEast) {
    LoosePatch(relief, Along(westEast, -8, 28, -3.4, 3.4), EarthGround, 0, 1.1f);
    LoosePatch(relief, Along(westEast, -8, 28, -2.2, 2.2), DirtRoadGround, -0.3f, 0.9f);
}

void Yard(Relief& relief) {
    LooseGround(relief, DirtRoadGround);
    ScatterStones(relief, 4, 0.4f, 0.8f, 2, Ink::Fieldstone, 631);
}

// A bridge lies over open water; its boards run across the way.
void PlankBridge(Relief& relief, bool westEast) {
    OpenWater(relief);
    Relief boards;
    BoardGround(boards, !westEast, Ink::Bark, Ink::Plank, 641);
    relief.Each([&](float x, float y, Texel& texel) {
        const float across = westEast ? y : x;
        if (across < 2 || across > 17.6f) return;
        texel = boards.At(x, y);
        texel.height += 2.4f;
    });
    for (const double at : {-8.0, 6.6}) {
        relief.Lay(
            Along(westEast, -8, 28, at, at + 1.4),
            {.colour = Colour(Ink::Timber), .height = 1.2f, .base = 2.6f, .round = 0.6f, .grain = 0.15f});
        for (const double post : {4.0, 14.0}) {
            relief.Lay(Along(westEast, post, post + 2, at - 0.2, at + 1.6),
                       {.colour = Colour(Ink::Clay), .height = 2, .base = 2.6f, .round = 0.6f});
        }
    }
}

void Cobbles(Relief& relief) {
    LooseGround(relief, {Ink::Soil, Ink::Cellar, 1.67f, 0.5f, 0.2f, 651});
    Dice dice(653);
    constexpr Ink Inks4[] = {Ink::Fieldstone, Ink::Limestone, Ink::Cement, Ink::Fieldstone};
    constexpr int Rows = 6;
    constexpr double Step = 20.0 / Rows;
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Rows; ++column) {
            const double x = (column + (row % 2) * 0.5 + 0.5) * Step;
            const double y = (row + 1) * Step;
            const QColor colour = Colour(Inks4[dice.Pick(4)]);
            const auto seed = static_cast<std::uint32_t>(dice.Pick(9999));
            for (int wrap = 0; wrap < 9; ++wrap) {
                const int across = wrap % 3 - 1;
                const int down = wrap / 3 - 1;
                relief.Lay(Lump(x + across * 20, y + down * 20, Step * 0.5, 0.14, seed),
                           {.colour = colour, .height = 0.8f, .round = 1.2f, .grain = 0.08f});
            }
        }
    }
}

// Columns 15 to 20.
constexpr TileDrawing Pieces[] = {
    Yard,
    [](Relief& r) { PlankBridge(r, true); },
    Cobbles,
    [](Relief& r) { Path(r, true); },
    [](Relief& r) { PlankBridge(r, false); },
    [](Relief& r) { Path(r, false); },
};

}  // namespace

TileRow RoadTiles() {
    TileRow row;
    AddJoints(row, Road);
    AddTiles(row, TileGround::Grass, Pieces);
    return row;
}

}  // namespace art
