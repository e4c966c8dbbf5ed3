#include "panel/dossier_sheet.h"

#include <array>

#include <QPainter>

#include "kit/canvas.h"
#include "kit/glyphs.h"
#include "kit/shapes.h"
#include "panel/emblem.h"
#include "panel/navy_steel.h"
#include "panel/pictograms.h"

namespace art {
namespace {

constexpr int Width = 760;
constexpr int Height = 640;
constexpr int Fine = 2;
constexpr int Long = 117;
constexpr int Small = 42;

constexpr QRect Plates[] = {
    {10, 10, 740, 40},
    {10, 54, 740, 358},
    {10, 415, 604, 205},
    {618, 415, 132, 205},
};

constexpr QRect LongPlaces[] = {
    {152, 218, Long, Small}, {27, 218, Long, Small}, {152, 268, Long, Small}, {27, 268, Long, Small}};

struct SmallPlace {
    int x, y;
    Pictogram sign;
};
constexpr SmallPlace SmallPlaces[] = {
    {227, 120, Pictogram::Helmet}, {227, 168, Pictogram::Vest},   {277, 168, Pictogram::Pack},
    {27, 68, Pictogram::Pistol},   {27, 118, Pictogram::Grenade}, {27, 168, Pictogram::Knife},
};

constexpr QRect Face(78, 69, 140, 140);
constexpr QRect Pack(277, 218, 142, 192);
constexpr QRect Flag(490, 90, 18, 12);
constexpr QRect NameBand(234, 112, 196, 13);
constexpr QRect RankPlate(252, 69, 44, 38);
constexpr QRect Controls[] = {
    {224, 24, 297, 19}, {528, 56, 49, 13}, {528, 72, 25, 33},
    {552, 72, 25, 33},  {680, 40, 49, 25}, {536, 424, 49, 17},
};
// Under the two text boxes, whose letters are a blue that needs a light ground.
constexpr QRect Cards[] = {{224, 24, 297, 19}, {528, 56, 49, 13}};

constexpr int GroundPlaces = 10;
constexpr int GroundLeft = 622;
constexpr int GroundTop = 68;
constexpr int PlacePitch = 50;

constexpr int AttributeRows = 14;
constexpr int FirstBar = 134;
constexpr int BarPitch = 20;
constexpr int BarLeft = 441;
constexpr int BarWidth = 160;
constexpr int BarHeight = 7;

constexpr int AwardsInRow = 5;
constexpr int AwardCount = 25;

QRect AwardPlace(int award) {
    return {26 + award % AwardsInRow * 110, 417 + award / AwardsInRow * 40, 105, 40};
}

void Place(Relief& relief, const QRect& place, Ink floor = Ink::Harbour) {
    LayNavyWell(relief, place.x(), place.y(), place.width(), place.height(), floor);
}

// Where the pack lies when one is worn: a stitched mat with faint pockets.
void Mat(Relief& relief) {
    Place(relief, Pack);
    for (int i = 0; i < 12; ++i) {
        const int x = Pack.x() + i % 3 * PlacePitch;
        const int y = Pack.y() + i / 3 * PlacePitch;
        relief.StainLine(Rect(x + 1.5, y + 1.5, Small - 3, Small - 3, 3), 1, Colour(Ink::Serge));
    }
}

void Attributes(Relief& relief) {
    for (int row = 0; row < AttributeRows; ++row) {
        relief.Lay(
            Rect(BarLeft - 1, FirstBar - 1 + row * BarPitch, BarWidth + 2, BarHeight + 2),
            {.colour = Colour(Ink::Harbour), .height = -0.9f, .base = 1.4f, .round = 0.6f, .grain = 0});
    }
}

void Awards(Relief& relief) {
    for (int award = 0; award < AwardCount; ++award) {
        const QRect place = AwardPlace(award);
        relief.Lay(
            Rect(place.x() + 0.5, place.y() + 1, place.width() - 1, place.height() - 2, 2),
            {.colour = Colour(Ink::Harbour), .height = -1, .base = 1.6f, .round = 0.8f, .grain = 0.05f});
        relief.Lay(Ellipse(place.x() + 52.5, place.y() + 20, 3, 3),
                   {.colour = Colour(Ink::Serge), .height = -0.4f, .base = 0.6f, .round = 1, .grain = 0.04f});
    }
}

void Heading(Relief& relief) {
    constexpr double Size = 15;
    constexpr double Gap = 3.2;
    constexpr double Left = 46;
    constexpr double Top = 23;
    LayBadge(relief, 29, 30, 26, 1.6f);
    const QPainterPath title = Title("PERSONAL FILE", Left, Top, Size, Gap);
    relief.Lay(title.translated(0.9, 0.9), {.colour = Colour(Ink::Denim), .base = 1.6f, .grain = 0});
    relief.Lay(title, {.colour = Colour(Ink::Midnight), .height = -1, .base = 1.6f, .grain = 0.04f});
    for (int i = 0; i < 6; ++i) {
        const double x = 590 + i * 9.0;
        relief.LayLine(
            Trace({{x + 6, 18}, {x, 42}}), 3.2,
            {.colour = Colour(Ink::Midnight), .height = -1.4f, .base = 1.6f, .round = 0.8f, .grain = 0.04f});
    }
}

// Empty places tell by a faint sign what belongs there.
void Signs(Relief& relief) {
    for (const SmallPlace& place : SmallPlaces)
        relief.Stain(SignOf(place.sign).translated(place.x, place.y), Colour(Ink::Serge));
    const QRect& hand = LongPlaces[0];
    for (const QRect& place : LongPlaces) {
        if (place != hand)
            relief.Stain(SignOf(Pictogram::Rifle).translated(place.x(), place.y()), Colour(Ink::Serge));
    }
    relief.Stain(SignOf(Pictogram::Hand).translated(hand.x() + 38, hand.y()), Colour(Ink::Serge));
}

void Lines(Relief& relief) {
    LayNavyGroove(relief, 433.5, 112, 433.5, 404);
    LayNavyGroove(relief, 433.5, 112, 614, 112);
    LayNavyGroove(relief, 20, 404.5, 270, 404.5);
    LayNavyGroove(relief, 20, 318.5, 270, 318.5);
    constexpr QPointF Rivets[] = {{16, 16},   {744, 16},  {16, 44},   {744, 44},  {16, 60},
                                  {744, 60},  {16, 404},  {745, 405}, {608, 421}, {16, 614},
                                  {608, 614}, {624, 614}, {744, 614}};
    for (const QPointF& place : Rivets)
        LayNavyRivet(relief, place.x(), place.y(), 1.7);
}

// The strip beside the awards: the badge between ribs.
void Trophy(Relief& relief) {
    constexpr double MiddleX = 592;
    LayBadge(relief, MiddleX, 540, 30, 1.6f);
    for (const double side : {-1.0, 1.0}) {
        for (int i = 0; i < 5; ++i) {
            const double y = 540 + side * (26 + i * 8);
            relief.LayLine(Trace({{MiddleX - 13 + i * 2, y}, {MiddleX + 13 - i * 2, y}}), 2.8,
                           {.colour = Colour(Ink::Midnight),
                            .height = -1.2f,
                            .base = 1.6f,
                            .round = 0.8f,
                            .grain = 0.04f});
        }
    }
}

// A ruled card below the long places, for notes that nobody has written.
void Card(Relief& relief) {
    Place(relief, {27, 326, 242, 70});
    for (int i = 0; i < 4; ++i) {
        const double y = 342.5 + i * 14;
        relief.StainLine(Trace({{35, y}, {261, y}}), 0.9, Colour(Ink::Serge));
    }
    relief.Stain(Shield(240, 361, 44), Colour(Ink::Serge), 0.8);
    relief.Stain(Star(240, 354, 9, 3.8, 5, -1.5708), Colour(Ink::Harbour));
}

void Captions(QImage& picture) {
    const QColor floor = Colour(Ink::Serge);
    QPainter painter(&picture);
    for (int row = 0; row < AttributeRows; ++row)
        painter.fillRect(BarLeft, FirstBar + row * BarPitch, BarWidth, BarHeight, floor);
    for (const QRect& card : Cards) {
        painter.fillRect(card, Colour(Ink::Clay));
        painter.fillRect(card.adjusted(0, 0, -1, -1), Colour(Ink::Snow));
        painter.fillRect(card.adjusted(1, 1, -1, -1), Colour(Ink::Shell));
    }
    painter.end();
    EngraveText(picture, 626, 58, "GROUND");
    EngraveText(picture, 252, 60, "RANK");
    EngraveText(picture, 310, 103, "NAME");
    EngraveText(picture, 479, 80, "NATION");
    EngraveText(picture, 330, 203, "POCKETS");
    EngraveText(picture, 27, 60, "BELT");
    EngraveText(picture, 78, 61, "PORTRAIT");
    EngraveText(picture, 33, 330, "REMARKS");
}

}  // namespace

QImage DossierSheet() {
    Relief relief(Width, Height, 2, Fine, 1000);
    NavyGround(relief);
    for (const QRect& plate : Plates)
        LayNavyPlate(relief, plate.x(), plate.y(), plate.width(), plate.height());
    Lines(relief);
    for (const QRect& place : LongPlaces)
        Place(relief, place);
    for (const SmallPlace& place : SmallPlaces)
        Place(relief, {place.x, place.y, Small, Small});
    for (int i = 0; i < GroundPlaces; ++i)
        Place(relief, {GroundLeft, GroundTop + i * PlacePitch, Long, Small});
    Place(relief, Face, Ink::Midnight);
    Place(relief, Flag, Ink::Midnight);
    Place(relief, RankPlate);
    for (const QRect& control : Controls)
        Place(relief, control, Ink::Serge);
    Signs(relief);
    relief.Lay(
        Rect(NameBand.x(), NameBand.y(), NameBand.width(), NameBand.height(), 1.5),
        {.colour = Colour(Ink::Harbour), .height = -0.6f, .base = 1.6f, .round = 0.8f, .grain = 0.04f});
    Mat(relief);
    Card(relief);
    Attributes(relief);
    Awards(relief);
    Heading(relief);
    Trophy(relief);
    QImage picture = Settle(relief.Render(), NavyDither, Palette::Whole);
    Captions(picture);
    return picture;
}

}  // namespace art
