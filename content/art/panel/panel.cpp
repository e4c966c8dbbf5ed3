#include "panel/panel.h"

#include <QPainter>

#include "kit/canvas.h"
#include "kit/glyphs.h"
#include "kit/noise.h"
#include "kit/relief.h"
#include "kit/shapes.h"
#include "panel/digits.h"
#include "panel/emblem.h"
#include "panel/slate.h"

namespace art {
namespace {

constexpr int Width = 801;
constexpr int Height = 200;
constexpr int Fine = 3;
constexpr double SteelDither = 0.018;

constexpr QRect BarsArea(423, 75, 210, 31);
constexpr QRect WeaponBox(656, 31, 117, 42);
constexpr QRect DurabilityColumn(776, 31, 5, 42);
constexpr QRect DigitWindow(613, 75, 18, 31);

// Where controls stand: each sits in a well of its own size.
constexpr QRect Wells[] = {
    {568, 0, 209, 17},   {16, 8, 425, 21},  {448, 8, 25, 19},  {16, 40, 152, 92}, {471, 48, 32, 25},
    {506, 48, 32, 25},   {541, 48, 32, 25}, {576, 48, 32, 25}, {616, 48, 32, 25}, {656, 80, 121, 21},
    {656, 120, 123, 25}, WeaponBox,         DurabilityColumn,
};

constexpr QRect Plates[] = {
    {5, 3, 474, 29}, {5, 34, 172, 106}, {181, 34, 238, 106}, {420, 34, 231, 106}, {652, 22, 138, 128},
};

constexpr int BarLeft = 472;
constexpr int BarTops[] = {77, 85, 93, 101};

void Bars4(Relief& relief) {
    for (const int top : BarTops) {
        relief.Lay(Rect(BarLeft - 1, top - 1, BarLength + 2, 5),
                   {.colour = Colour(Ink::Engraving), .height = -1, .base = 1.2f, .round = 0.5f, .grain = 0});
    }
    relief.Lay(Rect(DigitWindow.x(), DigitWindow.y(), DigitWindow.width(), DigitWindow.height()),
               {.colour = Colour(Ink::Engraving), .height = -0.6f, .base = 1.2f, .round = 0.5f, .grain = 0});
}

// The middle plate carries the name and the badge, with ribs on both sides.
void NamePlate(Relief& relief) {
    constexpr double MiddleX = 300;
    for (const double side : {-1.0, 1.0}) {
        for (int i = 0; i < 5; ++i) {
            const double inner = MiddleX + side * 34;
            const double outer = MiddleX + side * (104 - i * 9);
            const double y = 50 + i * 8;
            relief.LayLine(
                Trace({{inner, y}, {outer, y}}), 3,
                {.colour = Colour(Ink::Armour), .height = -1, .base = 1.6f, .round = 1, .grain = 0.05f});
        }
    }
    LayBadge(relief, MiddleX, 68, 46, 1.6f);
    constexpr double NameHeight = 17;
    constexpr double Gap = 5;
    const double nameWidth = TitleWidth("SARNOTH III", NameHeight, Gap);
    const QPainterPath name = Title("SARNOTH III", MiddleX - nameWidth / 2, 106, NameHeight, Gap);
    relief.Lay(name.translated(0.8, 0.8), {.colour = Colour(Ink::Edge), .base = 1.6f, .grain = 0});
    relief.Lay(name, {.colour = Colour(Ink::Engraving), .height = -1.2f, .base = 1.6f, .grain = 0.04f});
    for (const QPointF& corner : {QPointF(188, 41), QPointF(412, 41), QPointF(188, 133), QPointF(412, 133)}) {
        LayRivet(relief, corner.x(), corner.y(), 2.4, 1.6f);
    }
}

void Rivets(Relief& relief) {
    constexpr QPointF Places[] = {{9.5, 38.5}, {172.5, 38.5}, {9.5, 135.5}, {172.5, 135.5}, {426, 40},
                                  {645, 40},   {426, 134},    {645, 134},   {785, 27},      {785, 144.5},
                                  {657, 27},   {490, 17},     {556, 17}};
    for (const QPointF& place : Places)
        LayRivet(relief, place.x(), place.y(), 1.7, 1.6f);
}

// A row of slots below the bars and one between the log and the scroll bar: the machine breathes there.
void Vents(Relief& relief) {
    for (int i = 0; i < 20; ++i) {
        relief.LayLine(
            Trace({{440.0 + i * 10, 118}, {436.0 + i * 10, 128}}), 3.4,
            {.colour = Colour(Ink::Engraving), .height = -1.6f, .base = 1.6f, .round = 0.8f, .grain = 0.04f});
    }
    for (int i = 0; i < 8; ++i) {
        relief.LayLine(Trace({{502.0 + i * 6, 8}, {502.0 + i * 6, 24}}), 2.2,
                       {.colour = Colour(Ink::Engraving), .height = -1.2f, .round = 0.6f, .grain = 0.04f});
    }
}

// A faint grid and corner marks in the weapon box: a thing lies on a board, not in a hole.
void RuleWeaponBox(QPainter& painter) {
    constexpr int Pitch = 13;
    const QRect box = WeaponBox.adjusted(0, 0, -1, -1);
    painter.setPen(Colour(Ink::Armour));
    for (int x = box.left() + Pitch / 2; x <= box.right(); x += Pitch)
        painter.drawLine(x, box.top(), x, box.bottom());
    for (int y = box.top() + Pitch / 2 + 1; y <= box.bottom(); y += Pitch)
        painter.drawLine(box.left(), y, box.right(), y);
    painter.setPen(Colour(Ink::Edge));
    constexpr int Arm = 5;
    for (const int side : {1, -1}) {
        const int x = side > 0 ? box.left() + 1 : box.right() - 1;
        for (const int rise : {1, -1}) {
            const int y = rise > 0 ? box.top() + 1 : box.bottom() - 1;
            painter.drawLine(x, y, x + side * Arm, y);
            painter.drawLine(x, y, x, y + rise * Arm);
        }
    }
}

// A rim around the durability column with a notch at each quarter.
void RimColumn(QPainter& painter) {
    constexpr int Quarter = 10;
    const QRect rim = DurabilityColumn.adjusted(0, 0, -1, -1);
    painter.setPen(Colour(Ink::Steel));
    painter.drawRect(rim);
    painter.setPen(Colour(Ink::Sheen));
    for (int y = rim.top() + 1; y <= rim.bottom(); y += Quarter) {
        painter.drawPoint(rim.left(), y);
        painter.drawPoint(rim.right(), y);
    }
}

// What the relief can't give exactly: the flat floor behind digits and the lettering.
void Letter(QImage& picture) {
    QPainter painter(&picture);
    const QColor floor = Colour(Ink::Engraving);
    painter.fillRect(DigitWindow.adjusted(1, 1, 0, -1), floor);
    for (const int top : BarTops)
        painter.fillRect(BarLeft, top, BarLength, 3, floor);
    painter.fillRect(WeaponBox, floor);
    RuleWeaponBox(painter);
    RimColumn(painter);
    painter.end();
    for (std::size_t bar = 0; bar < BarCount; ++bar) {
        const int x = BarLeft - 5 - PrintedWidth(Bars[bar].label);
        Print(picture, x + 1, BarTops[bar], Bars[bar].label, Colour(Ink::Engraving).rgb());
        Print(picture, x, BarTops[bar] - 1, Bars[bar].label, Colour(Bars[bar].light).rgb());
    }
}

}  // namespace

QImage Panel() {
    Relief relief(Width, Height, 2, Fine, 1000);
    SteelGround(relief, Ink::Armour, Ink::Plate);
    relief.Lay(Rect(-4, 158, Width + 8, 3),
               {.colour = Colour(Ink::Engraving), .height = -1.2f, .round = 0.8f});
    for (const QRect& plate : Plates)
        LayPlate(relief, plate.x(), plate.y(), plate.width(), plate.height());
    for (const QRect& well : Wells)
        LayWell(relief, well.x(), well.y(), well.width(), well.height());
    Bars4(relief);
    NamePlate(relief);
    Rivets(relief);
    Vents(relief);
    QImage picture = Settle(relief.Render(), SteelDither);
    Letter(picture);
    return picture;
}

QImage BarsFrame(const QImage& panel) {
    return panel.copy(BarsArea);
}

QImage WeaponBoard(const QImage& panel) {
    return panel.copy(WeaponBox);
}

QImage ColumnFrame(const QImage& panel) {
    return panel.copy(DurabilityColumn);
}

}  // namespace art
