// Row 11: asphalt roads.
#include <QPainterPathStroker>

#include "kit/shapes.h"
#include "tiles/grounds.h"
#include "tiles/tile_drawing.h"
#include "tiles/tile_rows.h"
#include "tiles/walls.h"

namespace art {
namespace {

constexpr double AsphaltWidth = 16;
constexpr double ShoulderWidth = 19;
constexpr double EdgeLine = 13.4;  // width between the outer rims of the white edge lines

// A dashed middle line: on for half of each cell, so that dashes of neighbours are even.
void MiddleLine(Relief& relief, const QPainterPath& line) {
    QPainterPathStroker pen;
    pen.setWidth(1.1);
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({5.0 / 1.1, 5.0 / 1.1});
    pen.setDashOffset(-1.5 / 1.1);
    relief.Stain(pen.createStroke(line), Colour(Ink::Snow), 0.85);
}

void EdgeLines(Relief& relief, const QPainterPath& line) {
    QPainterPath lines = Widened(line, EdgeLine, Qt::FlatCap, Qt::RoundJoin);
    QPainterPath inside = Widened(line, EdgeLine - 1.5, Qt::FlatCap, Qt::RoundJoin);
    relief.Stain(lines.simplified().subtracted(inside.simplified()), Colour(Ink::Chalk), 0.6);
}

void Highway(Relief& relief, const Joint& joint) {
    const QPainterPath line = JointLine(joint, true);
    LoosePatch(relief, Widened(line, ShoulderWidth, Qt::RoundCap, Qt::RoundJoin), GravelGround, 0, 0.9f);
    LoosePatch(relief, Widened(line, AsphaltWidth, Qt::RoundCap, Qt::RoundJoin), AsphaltGround, 0.4f, 0.15f);
    EdgeLines(relief, line);
    const int arms = joint.west + joint.east + joint.north + joint.south;
    if (arms <= 2) MiddleLine(relief, line);
}

void Deck(Relief& relief, bool westEast) {
    OpenWater(relief);
    relief.Lay(Along(westEast, -8, 28, -10, 9), {.colour = Colour(Ink::Cement), .height = 3, .grain = 0.08f});
    Relief asphalt;
    LooseGround(asphalt, AsphaltGround);
    relief.Each([&](float x, float y, Texel& texel) {
        const float across = westEast ? y : x;
        if (across < 3 || across > 16.2f) return;
        texel = asphalt.At(x, y);
        texel.height += 2.8f;
    });
    const QPainterPath line = JointLine({westEast, westEast, !westEast, !westEast}, false);
    MiddleLine(relief, line);
    for (const double at : {-9.4, 7.0}) {
        relief.Lay(
            Along(westEast, -8, 28, at, at + 1.8),
            {.colour = Colour(Ink::Concrete), .height = 1.5f, .base = 3, .round = 0.7f, .grain = 0.06f});
        for (const double post : {1.0, 11.0}) {
            relief.Stain(Along(westEast, post, post + 1, at, at + 1.8), Colour(Ink::Slate), 0.7);
        }
    }
}

void Crossing(Relief& relief, bool westEast) {
    Highway(relief, {westEast, westEast, !westEast, !westEast});
    LoosePatch(relief, Along(westEast, 3, 17, -8, 8), AsphaltGround, 0.4f, 0.15f);
    for (const double at : Steps(-6.6, 6, 3.4)) {
        relief.Stain(Along(westEast, 4, 16, at, at + 1.9), Colour(Ink::Snow), 0.8);
    }
}

// Columns 15 to 19.
constexpr TileDrawing Pieces[] = {
    [](Relief& r) { Deck(r, true); },
    [](Relief& r) { Deck(r, false); },
    [](Relief& r) { Crossing(r, true); },
    [](Relief& r) { Crossing(r, false); },
    [](Relief& r) { LooseGround(r, AsphaltGround); },
};

}  // namespace

TileRow HighwayTiles() {
    TileRow row;
    AddJoints(row, Highway);
    AddTiles(row, TileGround::Grass, Pieces);
    return row;
}

}  // namespace art
