#include "things/small_arms.h"

#include <array>
#include <cmath>

#include "kit/shapes.h"
#include "things/piece.h"

namespace art {
namespace {

// A blade from the guard to its tip, lit along the edge, with a handle behind.
void Blade(Relief& relief, double length, double width, double handle, Ink grip, bool doubleEdged) {
    QTransform place;
    place.translate(21, 21).rotate(-45).translate(-(length + handle) / 2, 0);
    relief.Lay(place.map(Rect(0, -2.2, handle, 4.4, 1.8)), Piece(grip, 2));
    for (const double at : Steps(2, handle - 1, 2.4))
        relief.StainLine(place.map(Trace({{at, -1.8}, {at, 1.8}})), 0.7, Colour(Ink::Soot), 0.6);
    const double top = doubleEdged ? -width / 2 : -width * 0.4;
    relief.Lay(place.map(Polygon({{handle, top},
                                  {handle + length * 0.72, top},
                                  {handle + length, doubleEdged ? 0 : width * 0.2},
                                  {handle + length * 0.7, width / 2},
                                  {handle, width / 2}})),
               Piece(Ink::Chalk, 1, 0, 1.2f));
    relief.StainLine(place.map(Trace({{handle + 2, 0}, {handle + length * 0.7, 0}})), 0.9,
                     Colour(Ink::Cement));
    relief.Lay(place.map(Rect(handle - 1, -4, 2, 8, 0.6)), Piece(Ink::Slate, 2.2f));
}

void Kukri(Relief& relief) {
    relief.LayLine(Trace({{8, 34}, {15, 27}}), 4.4, Piece(Ink::Bark, 2));
    QPainterPath blade(QPointF(14, 25));
    blade.quadTo(22, 17, 33, 16);
    blade.quadTo(38, 12, 36, 7);
    blade.quadTo(28, 6, 22, 12);
    blade.quadTo(17, 18, 12, 23);
    blade.closeSubpath();
    relief.Lay(blade, Piece(Ink::Chalk, 1, 0, 1.4f));
    relief.LayLine(Trace({{12, 23}, {16, 28}}), 2, Piece(Ink::Gold, 2.2f));
}

void Machete(Relief& relief) {
    relief.Lay(Rect(12, 17, 22, 7, 2.4), Piece(Ink::Timber, 2));
    for (const double x : {17.0, 23.0, 29.0})
        relief.Stain(Ellipse(x, 20.5, 1.1, 1.1), Colour(Ink::Gold));
    relief.Lay(Polygon({{34, 18}, {92, 15}, {103, 19}, {98, 26}, {80, 27}, {34, 24}}),
               Piece(Ink::Chalk, 1, 0, 1.4f));
    relief.StainLine(Trace({{35, 23.4}, {80, 26.2}, {97, 25}}), 1.2, Colour(Ink::Snow));
}

void Tomahawk(Relief& relief) {
    relief.LayLine(Trace({{8, 35}, {30, 11}}), 3.4, Piece(Ink::Asphalt, 2));
    relief.LayLine(Trace({{8, 35}, {16, 26}}), 4.2, Piece(Ink::Soil, 2.2f));
    relief.Lay(Polygon({{24, 11}, {29, 6}, {38, 16}, {37, 21}, {32, 20}}), Piece(Ink::Concrete, 1.6f, 1));
    relief.Lay(Polygon({{26, 13}, {22, 7}, {30, 8}}), Piece(Ink::Concrete, 1.6f, 1));
    relief.StainLine(Trace({{38, 16}, {37, 21}}), 1.2, Colour(Ink::Snow));
}

void ThrowingKnives(Relief& relief) {
    for (const double x : {10.0, 20.0, 30.0}) {
        relief.Lay(Polygon({{x, 5}, {x + 2.6, 12}, {x + 1.6, 24}, {x - 1.6, 24}, {x - 2.6, 12}}),
                   Piece(Ink::Chalk, 1.2f, 0, 1.4f));
        relief.Lay(Rect(x - 1.4, 24, 2.8, 12, 1), Piece(Ink::Iron, 1.2f));
        relief.LayLine(Ellipse(x, 37, 1.6, 1.6), 1, Piece(Ink::Iron, 1));
    }
}

void ThrowingStars(Relief& relief, int points, double inner) {
    for (const auto& [x, y, turn] : {std::array{13.0, 14.0, 0.2}, {28.5, 19, 0.9}, {16.0, 30, 0.5}}) {
        relief.Lay(Star(x, y, 9, inner, points, turn),
                   Piece(Ink::Cement, 1.4f, static_cast<float>(y) * 0.04f, 1.8f));
        relief.Stain(Ellipse(x, y, 1.5, 1.5), Colour(Ink::Soot));
    }
}

// A spade with a long handle, blade to the right.
void Spade(Relief& relief, double shaft, Ink blade) {
    const double x = (117 - shaft - 30) / 2;
    relief.LayLine(Trace({{x + 4, 21}, {x + shaft, 21}}), 3.6, Piece(Ink::Timber, 2));
    relief.LayLine(Trace({{x + 2, 16}, {x + 2, 26}}), 3.6, Piece(Ink::Bark, 2));
    QPainterPath head(QPointF(x + shaft - 2, 19));
    head.lineTo(x + shaft + 4, 12);
    head.lineTo(x + shaft + 18, 12);
    head.quadTo(x + shaft + 26, 14, x + shaft + 30, 21);
    head.quadTo(x + shaft + 26, 28, x + shaft + 18, 30);
    head.lineTo(x + shaft + 4, 30);
    head.lineTo(x + shaft - 2, 23);
    head.closeSubpath();
    relief.Lay(head, Piece(blade, 1.8f, 0, 2.4f));
    relief.StainLine(Trace({{x + shaft + 2, 21}, {x + shaft + 20, 21}}), 1.2, Colour(Ink::Soot), 0.5);
}

void SmallSpade(Relief& relief, bool folded) {
    if (!folded) relief.LayLine(Trace({{6, 36}, {24, 18}}), 3.4, Piece(Ink::Timber, 2));
    QTransform place;
    place.translate(folded ? 20 : 26, folded ? 22 : 16).rotate(folded ? 0 : 45);
    relief.Lay(place.map(Polygon({{-8, 8}, {-8, -4}, {0, -13}, {8, -4}, {8, 8}, {3, 11}, {-3, 11}})),
               Piece(Ink::Olive, 1.8f, 0.4f, 2.2f));
    if (!folded) return;
    relief.LayLine(Trace({{20, 8}, {20, 33}}), 3, Piece(Ink::Slate, 1.6f, 2));
    relief.LayLine(Polygon({{15, 33}, {25, 33}, {20, 39}}), 2, Piece(Ink::Slate, 1.6f));
}

// A hand grenade: a ball or an egg with a fuze, a lever and a ring.
void Grenade(Relief& relief, double radiusX, double radiusY, Ink body, Ink band) {
    relief.Lay(Ellipse(20, 26, radiusX, radiusY), Piece(body, 5, 0, static_cast<float>(radiusX)));
    relief.Stain(Rect(20 - radiusX + 0.6, 24.6, radiusX * 2 - 1.2, 1.8), Colour(band), 0.9);
    relief.Lay(Rect(17, 26 - radiusY - 4.6, 6, 6, 1), Piece(Ink::Cement, 2, 2));
    QPainterPath lever(QPointF(17, 26 - radiusY - 4));
    lever.lineTo(25, 26 - radiusY - 4.6);
    lever.quadTo(20 + radiusX + 3, 22, 20 + radiusX + 1, 31);
    relief.LayLine(lever, 2, Piece(Ink::Ash, 1.4f, 3));
    relief.LayLine(Ellipse(13.6, 26 - radiusY - 1.4, 3.6, 3.6), 1.2, Piece(Ink::Gold, 1, 3));
}

void Block(Relief& relief) {
    relief.Lay(Rect(7, 11, 28, 22, 2), Piece(Ink::Sand, 3, 0, 2.4f));
    relief.Stain(Rect(7.6, 17, 26.8, 9), Colour(Ink::Olive), 0.9);
    relief.Lay(Rect(13, 17.6, 14, 8, 1), Piece(Ink::Iron, 1.6f, 3));
    relief.Stain(Rect(15, 19.4, 6.4, 3), Colour(Ink::Scarlet));
    relief.Stain(Ellipse(24, 21, 1.1, 1.1), Colour(Ink::Signal));
    QPainterPath wire(QPointF(25, 18));
    wire.cubicTo(28, 6, 36, 8, 33, 14);
    relief.LayLine(wire, 1.3, Piece(Ink::Scarlet, 1, 3));
}

void Crossbow(Relief& relief) {
    relief.Lay(Polygon({{14, 17}, {44, 16}, {98, 16.4}, {98, 20}, {48, 21}, {40, 25}, {16, 28}}),
               Piece(Ink::Timber, 2.4f, 0, 2.2f));
    relief.Lay(Polygon({{42, 22}, {47, 22}, {44, 32}, {39, 31}}), Piece(Ink::Bark, 2));
    QPainterPath limb(QPointF(84, 3));
    limb.quadTo(101, 8, 96, 18);
    limb.quadTo(101, 30, 84, 37);
    relief.LayLine(limb, 2.6, Piece(Ink::Iron, 2, 2));
    relief.StainLine(Trace({{84, 3.4}, {52, 16}, {84, 36.6}}), 0.9, Colour(Ink::Chalk));
    relief.LayLine(Trace({{52, 15.6}, {104, 15.6}}), 1.5, Piece(Ink::Sand, 1, 3));
    relief.Stain(Polygon({{103, 13.8}, {109, 15.6}, {103, 17.4}}), Colour(Ink::Cement));
    relief.LayLine(Trace({{97, 10}, {108, 12}, {108, 24}, {97, 26}}), 1.6, Piece(Ink::Iron, 1));
}

void Blowpipe(Relief& relief) {
    relief.LayLine(Trace({{6, 20}, {111, 20}}), 4, Piece(Ink::Clay, 2, 0, 2));
    for (const double x : {26.0, 48.0, 70.0, 92.0})
        relief.StainLine(Trace({{x, 18}, {x, 22}}), 1.3, Colour(Ink::Bark));
    relief.Lay(Rect(4, 17, 6, 6, 2), Piece(Ink::Bark, 2.6f));
    for (const double x : {36.0, 38.4})
        relief.Lay(Rect(x, 17.4, 1.6, 5.4), Piece(Ink::Brick, 2.4f));
}

void Fist(Relief& relief) {
    relief.Lay(Rect(14, 30, 14, 10, 2), Piece(Ink::Olive, 3, 0, 3));
    relief.Lay(Rect(9, 13, 24, 19, 6), Piece(Ink::Skin, 4, 0, 5));
    for (const double x : {14.6, 20.4, 26.2})
        relief.StainLine(Trace({{x, 14.4}, {x, 22}}), 1, Colour(Ink::Tan));
    for (int i = 0; i < 4; ++i)
        relief.Lay(Rect(9.4 + i * 5.9, 12, 5.4, 8, 2.4), Piece(Ink::Skin, 1.6f, 3.4f, 2.4f));
    relief.Lay(Rect(8, 21, 17, 5.6, 2.6), Piece(Ink::Skin, 1.8f, 4, 2.4f));
}

void MedicalKit(Relief& relief) {
    relief.LayLine(Trace({{14, 12}, {16, 7}, {26, 7}, {28, 12}}), 2, Piece(Ink::Iron, 1.4f));
    relief.Lay(Rect(5, 11, 32, 25, 3), Piece(Ink::Olive, 3, 0, 2.6f));
    relief.Lay(Ellipse(21, 23.6, 9, 9), Piece(Ink::Snow, 0.5f, 3, 0.6f));
    relief.Stain(Rect(18.8, 17, 4.4, 13.2), Colour(Ink::Crimson));
    relief.Stain(Rect(14.4, 21.4, 13.2, 4.4), Colour(Ink::Crimson));
}

void Helmet(Relief& relief) {
    QPainterPath dome(QPointF(5, 28));
    dome.cubicTo(3, 6, 36, 2, 37, 24);
    dome.lineTo(38, 29);
    dome.quadTo(30, 26, 24, 28);
    dome.lineTo(18, 33);
    dome.quadTo(10, 33, 5, 28);
    relief.Lay(dome, Piece(Ink::Khaki, 6, 0, 12));
    relief.StainLine(Trace({{6, 27}, {17, 31.4}, {23.4, 26.8}, {36.6, 26.6}}), 1.2, Colour(Ink::Jacket));
    QPainterPath strap(QPointF(15, 32));
    strap.quadTo(18, 39, 26, 36);
    strap.lineTo(27, 28);
    relief.LayLine(strap, 1.6, Piece(Ink::Bark, 1));
}

void Vest(Relief& relief) {
    relief.Lay(Polygon({{9, 6},
                        {16, 5},
                        {18, 11},
                        {24, 11},
                        {26, 5},
                        {33, 6},
                        {34, 16},
                        {37, 20},
                        {36, 37},
                        {6, 37},
                        {5, 20},
                        {8, 16}}),
               Piece(Ink::Khaki, 2.6f, 0, 3));
    for (const double x : {8.6, 17.4, 26.2}) {
        relief.Lay(Rect(x, 24, 7.4, 10, 1), Piece(Ink::Olive, 1.6f, 2.6f));
        relief.StainLine(Trace({{x + 0.6, 27}, {x + 6.8, 27}}), 0.9, Colour(Ink::Jacket));
    }
    relief.StainLine(Trace({{21, 11.4}, {21, 23}}), 0.9, Colour(Ink::Jacket));
    for (const double y : {14.0, 18.0})
        relief.StainLine(Trace({{9, y}, {33, y}}), 0.9, Colour(Ink::Olive));
}

void Pack(Relief& relief) {
    relief.LayLine(Trace({{13, 10}, {14, 4}, {28, 4}, {29, 10}}), 2.2, Piece(Ink::Olive, 1.4f));
    relief.Lay(Rect(8, 8, 26, 30, 5), Piece(Ink::Khaki, 4, 0, 5));
    relief.Lay(Rect(8.6, 7.6, 24.8, 10, 4), Piece(Ink::Canvas, 1.6f, 4, 2.4f));
    relief.Lay(Rect(12, 22, 18, 13, 2.4), Piece(Ink::Olive, 2, 4, 2.4f));
    for (const double x : {14.4, 26.0}) {
        relief.StainLine(Trace({{x, 9}, {x, 34}}), 1.4, Colour(Ink::Bark));
        relief.Stain(Rect(x - 1.2, 18, 2.4, 2), Colour(Ink::Gold));
    }
}

void Radio(Relief& relief) {
    relief.LayLine(Trace({{13, 12}, {13, 2}}), 1.6, Piece(Ink::Iron, 1));
    relief.Lay(Rect(10, 10, 22, 29, 2), Piece(Ink::Olive, 3, 0, 2));
    relief.Lay(Rect(13, 13, 16, 8, 1), Piece(Ink::Iron, -0.6f, 3, 0.6f));
    relief.Stain(Rect(14.4, 14.6, 9, 3), Colour(Ink::Signal));
    for (const double y : Steps(24, 35, 2.4))
        relief.StainLine(Trace({{14, y}, {24, y}}), 1.1, Colour(Ink::Soot), 0.9);
    for (const double y : {26.0, 32.0})
        relief.Lay(Ellipse(28, y, 2, 2), Piece(Ink::Ash, 1.2f, 3));
    relief.Lay(Ellipse(26, 8.8, 2.4, 2), Piece(Ink::Slate, 2, 1));
}

void Binocular(Relief& relief) {
    for (const double x : {11.0, 31.0}) {
        relief.Lay(Polygon({{x - 4, 6}, {x + 4, 6}, {x + 5, 16}, {x + 8, 34}, {x - 8, 34}, {x - 5, 16}}),
                   Piece(Ink::Asphalt, 4, 0, 5));
        relief.Lay(Ellipse(x, 34.6, 7.6, 2.8), Piece(Ink::Slate, 2, 1));
        relief.Stain(Ellipse(x, 34.8, 5.4, 1.8), Colour(Ink::Brook));
        relief.Stain(Rect(x - 4.4, 6, 8.8, 2.4), Colour(Ink::Soot));
    }
    relief.Lay(Rect(14, 14, 14, 6, 1.4), Piece(Ink::Slate, 2.4f));
    relief.Lay(Ellipse(21, 13, 3, 3), Piece(Ink::Ash, 2, 1));
}

void FieldMap(Relief& relief) {
    relief.Lay(Polygon({{4, 9}, {14, 6}, {24, 10}, {38, 6}, {38, 34}, {24, 38}, {14, 34}, {4, 37}}),
               Piece(Ink::Shell, 1.4f));
    for (const double x : {14.0, 24.0})
        relief.StainLine(Trace({{x, 8}, {x, 36}}), 1, Colour(Ink::Plank), 0.8);
    relief.Stain(Lump(10, 16, 4, 0.3, 41), Colour(Ink::Sprout), 0.9);
    relief.Stain(Lump(31, 28, 5, 0.3, 43), Colour(Ink::Sprout), 0.9);
    relief.StainLine(Trace({{5, 28}, {12, 25}, {20, 27}, {28, 18}, {37, 16}}), 2, Colour(Ink::Brook));
    relief.StainLine(Trace({{18, 9}, {20, 20}, {16, 34}}), 1.2, Colour(Ink::Brick));
    relief.StainLine(Trace({{26, 11}, {31, 16}}), 1.6, Colour(Ink::Crimson));
    relief.StainLine(Trace({{31, 11}, {26, 16}}), 1.6, Colour(Ink::Crimson));
}

void Canteen(Relief& relief) {
    relief.Lay(Rect(17, 4, 9, 9, 2), Piece(Ink::Iron, 2.6f));
    relief.Lay(Rect(9, 11, 25, 27, 9), Piece(Ink::Olive, 5, 0, 8));
    relief.Lay(Rect(9.6, 21, 23.8, 16.4, 6), Piece(Ink::Khaki, 1.4f, 4.6f, 3));
    relief.StainLine(Trace({{10, 21.6}, {33, 21.6}}), 1.4, Colour(Ink::Jacket));
    relief.LayLine(Trace({{21.5, 12}, {21.5, 29}}), 3, Piece(Ink::Bark, 1, 5.4f));
    relief.Lay(Ellipse(21.5, 28, 1.8, 1.8), Piece(Ink::Gold, 1, 6));
}

void Ration(Relief& relief) {
    relief.Lay(Rect(5, 12, 24, 24, 1.6), Piece(Ink::Clay, 3, 0, 2.4f));
    relief.Stain(Rect(8, 18, 18, 9), Colour(Ink::Shell), 0.9);
    for (const double y : {20.6, 23.4})
        relief.StainLine(Trace({{10, y}, {23, y}}), 1.1, Colour(Ink::Soil));
    relief.Lay(Rect(25, 18, 13, 17, 2), Piece(Ink::Cement, 3, 2, 3));
    relief.Lay(Ellipse(31.5, 18.4, 6.5, 2.8), Piece(Ink::Chalk, 1.2f, 5));
    relief.Stain(Rect(25.4, 22, 12.2, 8), Colour(Ink::Crimson), 0.9);
    relief.Stain(Ellipse(31.5, 26, 2.4, 2.4), Colour(Ink::Gold));
}

void Papers(Relief& relief) {
    for (const auto& [turn, ink] : {std::pair{-14.0, Ink::Chalk}, {4.0, Ink::Snow}}) {
        QTransform place;
        place.translate(21, 21).rotate(turn);
        relief.Lay(place.map(Rect(-12, -15, 24, 31, 0.6)), Piece(ink, 1, turn > 0 ? 1.2f : 0.0f, 0.8f));
        if (turn < 0) continue;
        for (const double y : Steps(-10, 11, 3))
            relief.StainLine(place.map(Trace({{-9, y}, {y > 6 ? 2.0 : 9.0, y}})), 1, Colour(Ink::Cement));
        relief.Stain(place.map(Ellipse(6.4, 10.4, 3.6, 3.6)), Colour(Ink::Crimson), 0.9);
        relief.StainLine(place.map(Trace({{-11, -15}, {-6, -15}, {-6, -10}})), 1.2, Colour(Ink::Ash));
    }
}

void Knife(Relief& relief) {
    Blade(relief, 26, 7, 14, Ink::Asphalt, false);
}

void Bayonet(Relief& relief) {
    Blade(relief, 27, 5.4, 14, Ink::Brick, true);
}

void Shuriken(Relief& relief) {
    ThrowingStars(relief, 4, 2.6);
}

void Shaken(Relief& relief) {
    ThrowingStars(relief, 6, 4.6);
}

void EntrenchingTool(Relief& relief) {
    Spade(relief, 44, Ink::Olive);
}

void FoldedTool(Relief& relief) {
    SmallSpade(relief, true);
}

void LongSpade(Relief& relief) {
    Spade(relief, 76, Ink::Slate);
}

void ShortSpade(Relief& relief) {
    SmallSpade(relief, false);
}

void RoundGrenade(Relief& relief) {
    Grenade(relief, 10.5, 10.5, Ink::Olive, Ink::Gold);
}

void MarkedGrenade(Relief& relief) {
    Grenade(relief, 10.5, 10.5, Ink::Khaki, Ink::Crimson);
}

void SlimGrenade(Relief& relief) {
    Grenade(relief, 9, 11.5, Ink::Moss, Ink::Gold);
}

}  // namespace

const std::vector<SimpleThing>& SimpleThings() {
    static const std::vector<SimpleThing> table = {
        {"hand", false, Fist, "Fist"},
        {"knife", false, Knife, "Knife"},
        {"bayonet", false, Bayonet, "Bayonet"},
        {"kukri", false, Kukri, "Kukri"},
        {"machete", true, Machete, "Machete"},
        {"tomahawk", false, Tomahawk, "Tomahawk"},
        {"thronives", false, ThrowingKnives, "ThrowingKnives"},
        {"shuriken", false, Shuriken, "Shuriken"},
        {"shaken", false, Shaken, "Shaken"},
        {"etool", true, EntrenchingTool, "EntrenchingTool"},
        {"etoolfold", false, FoldedTool, "FoldedTool"},
        {"bsl", true, LongSpade, "LongSpade"},
        {"mpl", false, ShortSpade, "ShortSpade"},
        {"m67", false, RoundGrenade, "RoundGrenade"},
        {"m67a2", false, MarkedGrenade, "MarkedGrenade"},
        {"m367", false, SlimGrenade, "SlimGrenade"},
        {"c4", false, Block, "Block"},
        {"crossbow", true, Crossbow, "Crossbow"},
        {"airpipe", true, Blowpipe, "Blowpipe"},
        {"med", false, MedicalKit, "MedicalKit"},
        {"helmet", false, Helmet, "Helmet"},
        {"vest", false, Vest, "Vest"},
        {"pack", false, Pack, "Pack"},
        {"radio", false, Radio, "Radio"},
        {"binocular", false, Binocular, "Binocular"},
        {"map", false, FieldMap, "FieldMap"},
        {"canteen", false, Canteen, "Canteen"},
        {"ration", false, Ration, "Ration"},
        {"papers", false, Papers, "Papers"},
    };
    return table;
}

}  // namespace art
