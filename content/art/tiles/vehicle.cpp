#include "tiles/vehicle.h"

#include "kit/canvas.h"
#include "kit/noise.h"
#include "kit/shapes.h"
#include "tiles/grounds.h"

namespace art {
namespace {

Solid Armour(Ink ink, float height, float base, float round = 1) {
    return {.colour = Colour(ink),
            .height = height,
            .base = base,
            .round = round,
            .grain = 0.05f,
            .grainSize = 2};
}

void Wheels(Relief& relief) {
    for (const double x : {10.5, 25.5, 46.5, 61.0}) {
        for (const double y : {3.4, 30.4}) {
            relief.Lay(Rect(x, y, 10.5, 5, 1.6),
                       {.colour = Colour(Ink::Asphalt), .height = 2.4f, .round = 1.4f, .grain = 0.1f});
            for (const double tread : Steps(x + 1, x + 10, 1.8)) {
                relief.StainLine(Trace({{tread, y + 0.4}, {tread + 0.6, y + 4.6}}), 0.6, Colour(Ink::Soot),
                                 0.8);
            }
        }
    }
}

// An eight-wheeled carrier, its nose to the east: sloped sides, a flat roof, a sharp bow plate.
void HullPlates(Relief& relief) {
    relief.Lay(Polygon({{4, 8.4},
                        {8, 6.8},
                        {62, 6.8},
                        {75.4, 11.4},
                        {76.6, 19.6},
                        {75.4, 27.8},
                        {62, 32.4},
                        {8, 32.4},
                        {4, 30.8}}),
               Armour(Ink::Olive, 4.4f, 1.6f, 2.6f));
    relief.Lay(Polygon({{7, 10.4}, {58, 10.4}, {64, 14}, {64, 25.2}, {58, 28.8}, {7, 28.8}}),
               Armour(Ink::Canvas, 1.4f, 6, 1));
    relief.Stain(Polygon({{64, 14.6}, {72.6, 13}, {73.6, 19.6}, {72.6, 26.2}, {64, 24.6}}),
                 Colour(Ink::Straw), 0.3);
    for (const QPainterPath& seam : {Trace({{62, 6.6}, {64, 14}}), Trace({{62, 32.6}, {64, 25.2}}),
                                     Trace({{28, 10.6}, {28, 28.6}}), Trace({{49, 10.6}, {49, 28.6}})}) {
        relief.StainLine(seam, 0.6, Colour(Ink::Jacket), 0.9);
    }
}

// Dark patches of paint over the plates, the same shade on roof and sides.
void Camouflage(Relief& relief) {
    struct Patch {
        double x, y, radius;
    };
    constexpr Patch Patches[] = {{12, 13, 4.6}, {22, 27, 4},   {36, 9, 4.2}, {54, 26, 5},
                                 {60, 12, 3.6}, {68, 22, 3.6}, {42, 30, 3}};
    std::uint32_t seed = 851;
    for (const Patch& patch : Patches) {
        relief.Stain(Lump(patch.x, patch.y, patch.radius, 0.4, ++seed), Colour(Ink::Olive), 0.75);
    }
}

void Hatches(Relief& relief) {
    for (const double y : {11.6, 20.6}) {
        relief.Lay(Rect(10, y, 14.6, 7, 0.8), Armour(Ink::Khaki, 0.9f, 7.4f, 0.8f));
        relief.StainLine(Trace({{17.3, y + 0.6}, {17.3, y + 6.4}}), 0.5, Colour(Ink::Jacket), 0.9);
        relief.Lay(Rect(16.4, y + 2.6, 1.8, 1.8, 0.3), Armour(Ink::Canvas, 0.7f, 8.1f, 0.4f));
    }
    relief.Lay(Ellipse(56, 14.8, 2.9, 2.9), Armour(Ink::Canvas, 0.9f, 7.4f));
    relief.StainLine(Ellipse(56, 14.8, 1.9, 1.9), 0.5, Colour(Ink::Jacket), 0.8);
    for (const double y : Steps(21.4, 27, 1.5))
        relief.Stain(Rect(51.4, y, 8.4, 0.8), Colour(Ink::Jacket), 0.95);
}

void Turret(Relief& relief) {
    relief.Lay(Ellipse(38.4, 19.6, 8, 7.6), Armour(Ink::Olive, 1, 7.4f, 0.8f));
    relief.LayLine(Trace({{44, 19.6}, {69, 19.6}}), 1.7, Armour(Ink::Slate, 1, 9.4f, 0.8f), Qt::FlatCap);
    relief.LayLine(Trace({{65.6, 19.6}, {69.4, 19.6}}), 2.6, Armour(Ink::Asphalt, 1.2f, 9.4f, 0.9f),
                   Qt::FlatCap);
    relief.Lay(Polygon({{33, 14.4}, {43, 14}, {47.6, 17.2}, {47.6, 22}, {43, 25.2}, {33, 24.8}, {31, 19.6}}),
               Armour(Ink::Canvas, 2.2f, 8.4f, 1.6f));
    relief.Lay(Ellipse(37.4, 19.6, 3.1, 3.1), Armour(Ink::Khaki, 0.8f, 10.6f));
    relief.StainLine(Ellipse(37.4, 19.6, 2.2, 2.2), 0.5, Colour(Ink::Jacket), 0.8);
    relief.Lay(Rect(42, 15.4, 2.4, 1.8, 0.3), Armour(Ink::Brook, 0.7f, 10.2f, 0.4f));
}

void Fittings(Relief& relief) {
    relief.Lay(Rect(2.2, 12.4, 3, 5.6, 0.5), Armour(Ink::Jacket, 2, 5, 0.5f));
    relief.Lay(Rect(2.2, 21.4, 3, 5.6, 0.5), Armour(Ink::Tan, 2, 5, 0.7f));
    relief.LayLine(Trace({{8.4, 30.4}, {24, 31.6}}), 1.1, Armour(Ink::Timber, 0.8f, 5, 0.5f));
    relief.LayLine(Trace({{30, 7.6}, {52, 7.6}}), 1.3, Armour(Ink::Clay, 0.8f, 5, 0.5f));
    relief.Lay(Ellipse(9, 9.4, 0.9, 0.9), Armour(Ink::Iron, 1, 7, 0.5f));
    relief.StainLine(Trace({{9, 9.4}, {1.6, 3.4}}), 0.6, Colour(Ink::Soot), 0.9);
    for (const double y : {12.4, 26.8})
        relief.Lay(Ellipse(73.4, y, 1.1, 1.3), Armour(Ink::Glow, 0.8f, 4.6f, 0.6f));
    relief.Stain(Star(28.6, 19.6, 2.6, 1.1, 5, -1.5708), Colour(Ink::Chalk), 0.9);
}

}  // namespace

std::array<QImage, VehicleCellCount> VehicleCells() {
    Relief relief(VehicleColumns * CellSize, VehicleRows * CellSize);
    GrassGround(relief);
    relief.Stain(Rect(4, 4, 72, 32, 8), Colour(Ink::Moss), 0.5);
    Wheels(relief);
    HullPlates(relief);
    Camouflage(relief);
    Hatches(relief);
    Turret(relief);
    Fittings(relief);
    const QImage whole = Settle(relief.Render());
    std::array<QImage, VehicleCellCount> cells;
    int x = 0;
    int y = 0;
    for (QImage& cell : cells) {
        cell = whole.copy(x, y, CellSize, CellSize);
        x += CellSize;
        if (x < whole.width()) continue;
        x = 0;
        y += CellSize;
    }
    return cells;
}

}  // namespace art
