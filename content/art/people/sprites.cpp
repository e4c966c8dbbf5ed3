#include "people/sprites.h"

#include "kit/canvas.h"
#include "kit/palette.h"
#include "kit/relief.h"
#include "kit/shapes.h"
#include "people/people.h"

namespace art {
namespace {

constexpr int SpritesInRow = 32;
constexpr int SpriteRows = 8;

Relief Blank() {
    return Relief(CellSize, CellSize, 1, 8);
}

// Three blocks taped together, a timer with a lamp, wires.
QImage Charge() {
    Relief relief = Blank();
    for (int i = 0; i < 3; ++i) {
        relief.Lay(Rect(3.8, 6.4 + i * 2.75, 12, 2.6, 0.7),
                   {.colour = Colour(Ink::Sand), .height = 1.4f, .round = 1, .grain = 0.04f, .glow = 0.3f});
    }
    for (const double x : {4.8, 13.4})
        relief.Stain(Rect(x, 6.2, 1.5, 8.6), Colour(Ink::Slate));
    relief.Lay(Rect(7.4, 7.8, 5, 5.4, 0.5),
               {.colour = Colour(Ink::Iron), .height = 0.6f, .base = 1.4f, .round = 0.6f});
    relief.Stain(Rect(8, 8.6, 4, 2), Colour(Ink::Scarlet));
    relief.Stain(Rect(8.2, 11.4, 1.2, 1.2), Colour(Ink::Gold));
    relief.Stain(Rect(10.6, 11.4, 1.2, 1.2), Colour(Ink::Signal));
    QPainterPath wire(QPointF(10, 7.6));
    wire.cubicTo(11, 3, 15.4, 3.4, 14.6, 7);
    relief.LayLine(wire, 1,
                   {.colour = Colour(Ink::Scarlet), .height = 0.3f, .base = 1.6f, .grain = 0, .glow = 0.8f});
    return Rimmed(Settle(relief.Render(true), 0.012), 1);
}

// An open ammunition crate with a rifle across it.
QImage Pile() {
    Relief relief = Blank();
    relief.Lay(Rect(2.7, 4, 10.6, 8.2, 0.4),
               {.colour = Colour(Ink::Plank), .height = 2, .round = 0.6f, .grain = 0.12f});
    relief.Lay(Rect(4, 5.3, 8, 5.6, 0.2), {.colour = Colour(Ink::Soil), .height = -1.4f, .base = 2});
    for (const double x : Steps(4.6, 11, 1.8))
        relief.Lay(Rect(x, 5.8, 1.2, 4.6, 0.5),
                   {.colour = Colour(Ink::Gold), .height = 0.8f, .base = 0.6f, .round = 0.5f});
    relief.Lay(Lump(14, 6.4, 2.9, 0.15, 981), {.colour = Colour(Ink::Peat), .grain = 0});
    relief.Lay(Lump(14, 6.2, 2.4, 0.15, 981),
               {.colour = Colour(Ink::Khaki), .height = 1.8f, .round = 2, .grain = 0.1f});
    const QPainterPath rifle = Trace({{2.6, 16.4}, {17.2, 10.4}});
    relief.LayLine(rifle, 2.6, {.colour = Colour(Ink::Peat), .grain = 0});
    relief.LayLine(Trace({{2.8, 16.3}, {7, 14.6}}), 2.3,
                   {.colour = Colour(Ink::Timber), .height = 1, .base = 2.4f, .round = 0.9f});
    relief.LayLine(Trace({{7, 14.6}, {17, 10.5}}), 1.4,
                   {.colour = Colour(Ink::Slate), .height = 0.8f, .base = 2.4f, .round = 0.6f});
    relief.LayLine(Trace({{9.2, 14.2}, {10.2, 16.8}}), 1.5,
                   {.colour = Colour(Ink::Slate), .height = 0.8f, .base = 2, .round = 0.6f});
    return Rimmed(Settle(relief.Render(true), 0.012), 1);
}

}  // namespace

QImage SpritePicture(int sprite) {
    switch (sprite) {
        case ChargeSprite:
            return Charge();
        case PileSprite:
            return Pile();
        case DeadSprite:
            return DeadSoldier();
        default:
            return Sheet(CellSize, CellSize, 0u);
    }
}

QImage SpriteSheet() {
    QImage sheet = Sheet(SpritesInRow * CellSize, 2 * SpriteRows * CellSize);
    for (int sprite = 0; sprite < SpritesInRow * SpriteRows; ++sprite) {
        const Masked masked = MaskOut(SpritePicture(sprite));
        const int x = sprite % SpritesInRow * CellSize;
        const int y = sprite / SpritesInRow * CellSize;
        Place(sheet, x, y, masked.picture);
        Place(sheet, x, y + SpriteRows * CellSize, masked.mask);
    }
    return sheet;
}

QImage ForestSheet(const std::vector<QImage>& tops) {
    QImage sheet = Sheet(static_cast<int>(tops.size()) * CellSize, 2 * CellSize);
    for (std::size_t i = 0; i < tops.size(); ++i) {
        const Masked masked = MaskOut(tops[i]);
        Place(sheet, static_cast<int>(i) * CellSize, 0, masked.picture);
        Place(sheet, static_cast<int>(i) * CellSize, CellSize, masked.mask);
    }
    return sheet;
}

}  // namespace art
