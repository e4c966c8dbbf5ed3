// Rows 7, 8 and 12: trenches, barbed wire and fences.
#include <cmath>
#include <numbers>

#include "kit/noise.h"
#include "kit/shapes.h"
#include "tiles/grounds.h"
#include "tiles/tile_drawing.h"
#include "tiles/tile_rows.h"
#include "tiles/walls.h"

namespace art {
namespace {

constexpr double TrenchWidth = 9;
constexpr double ParapetWidth = 16.5;

const Solid TrenchFloor{
    .colour = Colour(Ink::Loam), .height = -4.2f, .round = 1.6f, .grain = 0.2f, .bump = 0.25f};

// Thrown-up earth on both sides of a dug line.
void Dig(Relief& relief, const QPainterPath& parapet, const QPainterPath& pit, const Solid& floor) {
    LoosePatch(relief, parapet, EarthGround, 0.9f, 1.1f);
    relief.Lay(pit, floor);
}

void Trench(Relief& relief, const Joint& joint) {
    const QPainterPath line = JointLine(joint, true);
    Dig(relief, Widened(line, ParapetWidth, Qt::RoundCap, Qt::RoundJoin),
        Widened(line, TrenchWidth, Qt::RoundCap, Qt::RoundJoin), TrenchFloor);
    EachArm(joint, [&](QPointF outward) {
        for (const double at : {2.2, 4.4, 6.6, 8.8}) {
            relief.Stain(AlongArm(outward, at, at + 1.2, -2.2, 2.2), Colour(Ink::Bark), 0.6);
        }
    });
}

// A cell of digging: a shallow scrape or a full hole.
void Hole(Relief& relief, float depth, double radius) {
    Solid floor = TrenchFloor;
    floor.height = -depth;
    floor.colour = depth > 2 ? Colour(Ink::Loam) : Colour(Ink::Soil);
    Dig(relief, Lump(10, 10, radius + 3.2, 0.12, 701), Lump(10, 10, radius, 0.12, 703), floor);
}

// Two slack strands along an arm with barbs across them. They sag the same way in every cell, so that they
// join.
void Strands(Relief& relief, QPointF outward, double from, double to) {
    const QPointF across(std::abs(outward.y()), std::abs(outward.x()));
    constexpr double Sag = 0.9;
    for (const double side : {-2.6, 2.4}) {
        QPainterPath strand;
        for (const double at : Steps(from, to + 0.25, 0.5)) {
            const double sway = side + Sag * std::cos(std::numbers::pi * at / 5);
            const QPointF point = QPointF(10, 10) + outward * at + across * sway;
            if (at == from) {
                strand.moveTo(point);
            } else {
                strand.lineTo(point);
            }
        }
        relief.StainLine(strand.translated(1, 1), 0.8, Colour(Ink::Pine), 0.6);
        relief.StainLine(strand, 0.8, Colour(Ink::Chalk));
    }
    for (const double at : Steps(from + 1.25, to, 2.5)) {
        for (const double side : {-2.6, 2.4}) {
            const double sway = side + Sag * std::cos(std::numbers::pi * at / 5);
            const QPointF barb = QPointF(10, 10) + outward * at + across * sway;
            relief.StainLine(Trace({barb - across * 1.2, barb + across * 1.2}), 0.6, Colour(Ink::Snow), 0.9);
        }
    }
}

void Picket(Relief& relief, double x, double y) {
    relief.LayLine(Trace({{x - 3, y - 3}, {x + 3, y + 3}}), 1.5,
                   {.colour = Colour(Ink::Timber), .height = 2.4f, .round = 0.6f});
    relief.LayLine(Trace({{x + 3, y - 3}, {x - 3, y + 3}}), 1.5,
                   {.colour = Colour(Ink::Clay), .height = 2.8f, .round = 0.6f});
}

void Wire(Relief& relief, const Joint& joint) {
    relief.Stain(Widened(JointLine(joint, false), 8, Qt::RoundCap, Qt::RoundJoin), Colour(Ink::Fir), 0.45);
    EachArm(joint, [&](QPointF outward) { Strands(relief, outward, 0, 14); });
    Picket(relief, 10, 10);
}

void CutWire(Relief& relief, bool westEast) {
    const QPointF outward = westEast ? QPointF(1, 0) : QPointF(0, 1);
    Strands(relief, outward, 6, 11);
    Strands(relief, -outward, 6, 11);
    for (const QPointF side : {outward, -outward}) {
        const QPointF end = QPointF(10, 10) + side * 5.6;
        const QPointF across(side.y(), side.x());
        QPainterPath curl(end);
        curl.quadTo(end - side * 2 + across * 2, end - side * 2.6 + across * 4.4);
        relief.StainLine(curl.translated(0.7, 0.7), 0.7, Colour(Ink::Pine), 0.5);
        relief.StainLine(curl, 0.75, Colour(Ink::Chalk));
    }
}

constexpr double FenceWidth = 2.6;

// Boards set on end, with rails and a post in the middle.
void Fence(Relief& relief, const Joint& joint) {
    LoosePatch(relief, Widened(JointLine(joint, false), 7, Qt::RoundCap, Qt::RoundJoin), EarthGround, 0,
               1.4f);
    relief.LayLine(JointLine(joint, false), FenceWidth,
                   {.colour = Colour(Ink::Plank), .height = 4, .round = 0.6f, .grain = 0.14f}, Qt::SquareCap,
                   Qt::MiterJoin);
    EachArm(joint, [&](QPointF outward) {
        for (const double at : Steps(2, 18, 2)) {
            relief.Stain(AlongArm(outward, at, at + 0.5, -1.3, 1.3), Colour(Ink::Soil), 0.85);
        }
    });
    relief.Lay(Rect(7.9, 7.9, 4.2, 4.2, 0.5),
               {.colour = Colour(Ink::Clay), .height = 5, .round = 0.8f, .grain = 0.12f});
}

void Gate(Relief& relief, bool westEast) {
    LoosePatch(relief, Along(westEast, -8, 28, -3.5, 3.5), EarthGround, 0, 1.4f);
    LoosePatch(relief, Along(!westEast, -1, 21, -5, 5), DirtRoadGround, 0, 1.2f);
    for (const double at : {0.6, 16.2}) {
        relief.Lay(Along(westEast, at, at + 3.2, -1.7, 1.7),
                   {.colour = Colour(Ink::Clay), .height = 4.6f, .round = 0.7f});
    }
    const QPainterPath leaf = westEast ? Rect(2, 0.8, 1.6, 8, 0.3) : Rect(0.8, 2, 8, 1.6, 0.3);
    relief.Lay(leaf, {.colour = Colour(Ink::Plank), .height = 3.2f, .round = 0.5f, .grain = 0.14f});
}

void FallenFence(Relief& relief, bool westEast) {
    LoosePatch(relief, Along(westEast, -8, 28, -4, 4), EarthGround, 0, 1.4f);
    for (int i = 0; i < 7; ++i) {
        const double at = 1.2 + i * 2.6;
        const double slip = (i * 5 % 3 - 1) * 1.1;
        relief.Lay(Along(westEast, at, at + 1.9, -5 + slip, 4.4 + slip),
                   {.colour = Colour(i % 2 == 0 ? Ink::Plank : Ink::Timber),
                    .height = 0.8f,
                    .round = 0.5f,
                    .grain = 0.16f});
    }
    for (const double rail : {-2.6, 1.8}) {
        relief.Lay(Along(westEast, 1.6, 18, rail, rail + 1),
                   {.colour = Colour(Ink::Bark), .height = 0.5f, .base = 0.8f, .round = 0.3f});
    }
}

constexpr TileDrawing Holes[] = {
    [](Relief& r) { Hole(r, 1.4f, 5.2); },
    [](Relief& r) { Hole(r, 4.2f, 6.2); },
};

constexpr TileDrawing CutWires[] = {
    [](Relief& r) { CutWire(r, true); },
    [](Relief& r) { CutWire(r, false); },
};

constexpr TileDrawing Openings[] = {
    [](Relief& r) { Gate(r, true); },
    [](Relief& r) { Gate(r, false); },
    [](Relief& r) { FallenFence(r, true); },
    [](Relief& r) { FallenFence(r, false); },
};

}  // namespace

TileRow TrenchTiles() {
    TileRow row;
    AddJoints(row, Trench);
    AddTiles(row, TileGround::Grass, Holes);
    return row;
}

TileRow WireTiles() {
    TileRow row;
    AddJoints(row, Wire);
    AddTiles(row, TileGround::Grass, CutWires);
    return row;
}

TileRow FenceTiles() {
    TileRow row;
    AddJoints(row, Fence, FullJoints);
    AddTiles(row, TileGround::Grass, Openings);
    return row;
}

}  // namespace art
