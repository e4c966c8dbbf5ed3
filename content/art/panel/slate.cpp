#include "panel/slate.h"

#include <algorithm>

#include "kit/canvas.h"
#include "kit/noise.h"
#include "kit/shapes.h"

namespace art {
namespace {

constexpr double SteelDither = 0.018;
constexpr int PanelWidth = 801;
constexpr int FieldHeight = 470;
constexpr int FrameFine = 4;

// A groove with its lit far edge, as deep as an engraver cuts.
void Groove(Relief& relief, const QPainterPath& line, double width) {
    relief.LayLine(line, width, {.colour = Colour(Ink::Engraving), .height = -0.9f, .grain = 0.05f},
                   Qt::FlatCap);
}

void Pointer(Relief& relief, const QPainterPath& head) {
    relief.Lay(Widened(head, 1.6, Qt::SquareCap, Qt::MiterJoin).united(head),
               {.colour = Colour(Ink::Peat), .grain = 0});
    relief.Lay(head, {.colour = Colour(Ink::Amber), .height = 1.4f, .round = 2.4f, .grain = 0});
}

}  // namespace

void SteelGround(Relief& relief, Ink dark, Ink light) {
    relief.Each([&](float x, float y, Texel& texel) {
        const float brush =
            Noise(x * 0.12f, y * 1.4f, 1.25f, 1000, 1101) + 0.5f * Noise(x * 0.4f, y * 2, 1, 1000, 1103);
        const float cloud = Noise(x, y, 40, 1000, 1107);
        const float share = std::clamp(0.5f + 0.22f * brush + 0.25f * cloud, 0.0f, 1.0f);
        const QColor colour = Between(dark, light, static_cast<double>(share));
        texel.red = static_cast<float>(colour.red());
        texel.green = static_cast<float>(colour.green());
        texel.blue = static_cast<float>(colour.blue());
        texel.height = 0.05f * brush;
    });
}

void LayPlate(Relief& relief, double x, double y, double width, double height) {
    const QPainterPath plate = Rect(x, y, width, height, 3);
    relief.Lay(Rect(x - 1, y - 1, width + 2, height + 2, 4),
               {.colour = Colour(Ink::Engraving), .height = -0.8f, .grain = 0.05f});
    relief.Lay(plate, {.colour = Colour(Ink::Steel),
                       .height = 1.6f,
                       .round = 2,
                       .grain = 0.09f,
                       .grainSize = 1.5f,
                       .bump = 0.03f});
}

void LayWell(Relief& relief, double x, double y, double width, double height, Ink floor) {
    relief.Lay(Rect(x - 2, y - 2, width + 4, height + 4, 1.6),
               {.colour = Colour(Ink::Plate), .height = -1, .base = 1.6f, .round = 1.4f, .grain = 0.05f});
    relief.Lay(Rect(x, y, width, height),
               {.colour = Colour(floor), .height = -1, .base = 0.8f, .round = 0.6f, .grain = 0.03f});
}

QImage UpperFrame() {
    Relief relief(PanelWidth, 10, 4, FrameFine, 1000);
    SteelGround(relief, Ink::Plate, Ink::Steel);
    relief.Lay(Rect(-4, 8.6, PanelWidth + 8, 8),
               {.colour = Colour(Ink::Engraving), .height = -1.4f, .round = 0.8f, .grain = 0.05f});
    for (int x = CellSize; x <= PanelWidth; x += CellSize) {
        const bool tenth = (x / CellSize - 1) % 5 == 0;
        Groove(relief, Trace({{x + 0.0, tenth ? 1.0 : 4.0}, {x + 0.0, 8.6}}), tenth ? 1.2 : 1);
    }
    return Settle(relief.Render(), SteelDither);
}

QImage RightFrame() {
    Relief relief(CellSize, FieldHeight, 4, FrameFine, 1000);
    SteelGround(relief, Ink::Plate, Ink::Steel);
    relief.Lay(Rect(-8, -4, 8.8, FieldHeight + 8),
               {.colour = Colour(Ink::Engraving), .height = -1.4f, .round = 0.8f, .grain = 0.05f});
    for (int y = CellSize / 2; y <= FieldHeight; y += CellSize) {
        const bool tenth = (y / CellSize) % 5 == 0;
        Groove(relief, Trace({{0.8, y + 0.0}, {tenth ? 9.0 : 6.0, y + 0.0}}), tenth ? 1.2 : 1);
    }
    relief.Lay(Rect(11.4, -4, 1, FieldHeight + 8),
               {.colour = Colour(Ink::Engraving), .height = -0.9f, .grain = 0.05f});
    return Settle(relief.Render(), SteelDither);
}

QImage LeftFrame() {
    Relief relief(CellSize, FieldHeight, 4, FrameFine, 1000);
    SteelGround(relief, Ink::Plate, Ink::Steel);
    relief.Lay(Rect(19.2, -4, 8, FieldHeight + 8),
               {.colour = Colour(Ink::Engraving), .height = -1.4f, .round = 0.8f, .grain = 0.05f});
    for (int y = 0; y <= FieldHeight; y += CellSize) {
        const bool tenth = (y / CellSize) % 5 == 0;
        Groove(relief, Trace({{tenth ? 11.0 : 14.0, y + 0.0}, {19.2, y + 0.0}}), tenth ? 1.2 : 1);
    }
    relief.Lay(Rect(7.6, -4, 1, FieldHeight + 8),
               {.colour = Colour(Ink::Engraving), .height = -0.9f, .grain = 0.05f});
    return Settle(relief.Render(), SteelDither);
}

QImage Stripes() {
    constexpr int Height = 12;
    Relief relief(PanelWidth, Height, 4, FrameFine, 1000);
    SteelGround(relief, Ink::Armour, Ink::Plate);
    for (int x = -Height; x < PanelWidth + Height; x += 16) {
        relief.Lay(
            Polygon({{x + 4.0, 1.5}, {x + 12.0, 1.5}, {x + 4.0, Height - 1.5}, {x - 4.0, Height - 1.5}}),
            {.colour = Between(Ink::Stubble, Ink::Steel, 0.35),
             .height = 0.6f,
             .round = 0.8f,
             .grain = 0.12f});
    }
    return Settle(relief.Render(), SteelDither);
}

QImage ColumnMark() {
    Relief relief(CellSize, CellSize / 2, 1, 8);
    Pointer(relief, Polygon({{3.4, 1}, {16.6, 1}, {10, 8.6}}));
    return Settle(relief.Render(true), 0);
}

QImage RowMark() {
    Relief relief(CellSize / 2, CellSize, 1, 8);
    Pointer(relief, Polygon({{9, 3.4}, {9, 16.6}, {1.4, 10}}));
    return Settle(relief.Render(true), 0);
}

}  // namespace art
