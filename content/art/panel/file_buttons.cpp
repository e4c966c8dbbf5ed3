#include "panel/file_buttons.h"

#include <algorithm>
#include <array>

#include "kit/canvas.h"
#include "kit/glyphs.h"
#include "kit/shapes.h"
#include "panel/navy_steel.h"

namespace art {
namespace {

constexpr int Width = 60;
constexpr int Height = 19;
constexpr int CutWidth = 49;
constexpr int CutHeight = 17;

struct FaceRow {
    const char* label;
    bool cut;  // drawn for the window's smaller picture
    QPainterPath (*sign)();
    Ink ink;
};

QPainterPath Tick() {
    return Widened(Trace({{1, 5.5}, {3.8, 8.4}, {9, 2}}), 2, Qt::FlatCap, Qt::MiterJoin);
}

QPainterPath Cross() {
    return Widened(Trace({{1.5, 1.5}, {8.5, 8.5}}), 2, Qt::FlatCap, Qt::MiterJoin)
        .united(Widened(Trace({{8.5, 1.5}, {1.5, 8.5}}), 2, Qt::FlatCap, Qt::MiterJoin));
}

QPainterPath LeftArrow() {
    return Polygon({{0.5, 5}, {5.5, 0.5}, {5.5, 3.6}, {9.8, 3.6}, {9.8, 6.4}, {5.5, 6.4}, {5.5, 9.5}});
}

QPainterPath RightArrow() {
    return Polygon({{9.5, 5}, {4.5, 0.5}, {4.5, 3.6}, {0.2, 3.6}, {0.2, 6.4}, {4.5, 6.4}, {4.5, 9.5}});
}

// A door that stands open.
QPainterPath Door() {
    return Rect(0.5, 0.5, 6, 9)
        .subtracted(Rect(1.9, 1.9, 3.2, 7.6))
        .united(Polygon({{9.9, 5}, {6.4, 1.8}, {6.4, 4}, {3, 4}, {3, 6}, {6.4, 6}, {6.4, 8.2}}));
}

// A sheet with an i on it.
QPainterPath Note() {
    return Polygon({{1, 0}, {7, 0}, {9.5, 2.5}, {9.5, 10}, {1, 10}})
        .subtracted(Rect(4.3, 1.6, 1.8, 1.6))
        .subtracted(Rect(4.3, 4.2, 1.8, 4.2));
}

QPainterPath Tray() {
    return Polygon({{5, 6.6}, {1.6, 3.2}, {4, 3.2}, {4, 0}, {6, 0}, {6, 3.2}, {8.4, 3.2}})
        .united(
            Polygon({{0.2, 6}, {1.8, 6}, {1.8, 8.4}, {8.2, 8.4}, {8.2, 6}, {9.8, 6}, {9.8, 10}, {0.2, 10}}));
}

QPainterPath Lens() {
    return Ellipse(4, 4, 4, 4)
        .subtracted(Ellipse(4, 4, 2.3, 2.3))
        .united(Widened(Trace({{6.4, 6.4}, {9.4, 9.4}}), 2.2, Qt::FlatCap, Qt::MiterJoin));
}

constexpr std::array<FaceRow, FileButtons / 2> Faces{{
    {"OK", false, Tick, Ink::Sprout},
    {"CANCEL", false, Cross, Ink::Scarlet},
    {"BACK", false, LeftArrow, Ink::Foam},
    {"CLOSE", true, Door, Ink::Gold},
    {"INFO", true, Note, Ink::Glow},
    {"NEXT", false, RightArrow, Ink::Foam},
    {"STORE", false, Tray, Ink::Straw},
    {"LOOK", false, Lens, Ink::Shallow},
}};

void Cap(Relief& relief, int width, int height, bool pressed) {
    NavyGround(relief);
    relief.Lay(Rect(0, 0, width, height, 2), {.colour = Colour(Ink::Midnight), .grain = 0});
    const Solid cap =
        pressed ? Solid{.colour = Colour(Ink::Serge), .height = -1.2f, .round = 1.6f, .grain = 0.06f}
                : Solid{.colour = Between(Ink::Gunmetal, Ink::Denim, 0.35),
                        .height = 1.6f,
                        .round = 1.8f,
                        .grain = 0.06f};
    relief.Lay(Rect(1, 1, width - 2, height - 2, 2), cap);
}

constexpr int MarkWidth = 14;
constexpr int MarkHeight = 12;

// A small steel key with a sign on it.
QImage Key(const QPainterPath& sign, Ink ink) {
    Relief relief(MarkWidth, MarkHeight, 1, 8);
    relief.Lay(Rect(0, 0, MarkWidth, MarkHeight, 2), {.colour = Colour(Ink::Midnight), .grain = 0});
    relief.Lay(
        Rect(1, 1, MarkWidth - 2, MarkHeight - 2, 1.6),
        {.colour = Between(Ink::Gunmetal, Ink::Denim, 0.4), .height = 1, .round = 1.4f, .grain = 0.04f});
    relief.Stain(sign.translated(0.7, 0.7), Colour(Ink::Midnight), 0.9);
    relief.Lay(sign, {.colour = Colour(ink), .base = 1, .grain = 0, .glow = 0.7f});
    return Settle(relief.Render(true), 0, Palette::Whole);
}

}  // namespace

QImage FileButton(int index) {
    const FaceRow& face = Faces[static_cast<std::size_t>(index / 2)];
    const bool pressed = index % 2 == 1;
    const int width = face.cut ? CutWidth : Width;
    const int height = face.cut ? CutHeight : Height;
    Relief relief(Width, Height, 2, 6, 60);
    Cap(relief, width, height, pressed);
    const int labelWidth = PrintedWidth(face.label);
    const int left = (width - 10 - 4 - labelWidth) / 2 + (pressed ? 1 : 0);
    const int top = (height - 10) / 2 + (pressed ? 1 : 0);
    const QPainterPath sign = face.sign().translated(left, top);
    relief.Stain(sign.translated(0.9, 0.9), Colour(Ink::Midnight), 0.9);
    relief.Lay(sign, {.colour = Colour(face.ink), .base = pressed ? -1.0f : 1.6f, .grain = 0, .glow = 0.8f});
    QImage picture = Settle(relief.Render(), 0.012, Palette::Whole);
    Print(picture, left + 15, top + 4, face.label, Colour(Ink::Midnight).rgb());
    Print(picture, left + 14, top + 3, face.label, Colour(pressed ? Ink::Gold : Ink::Snow).rgb());
    return picture;
}

QImage InfoPanel() {
    constexpr int PanelWidth = 145;
    constexpr int PanelHeight = 158;
    Relief relief(PanelWidth, PanelHeight, 2, 4, 200);
    NavyGround(relief);
    relief.Lay(Rect(0, 0, PanelWidth, PanelHeight), {.colour = Colour(Ink::Midnight), .grain = 0});
    relief.Lay(
        Rect(1, 1, PanelWidth - 2, PanelHeight - 2, 3),
        {.colour = Between(Ink::Serge, Ink::Gunmetal, 0.6), .height = 2, .round = 2.4f, .grain = 0.08f});
    LayNavyWell(relief, 9, 9, 127, 140, Ink::Slate);
    for (const double x : {5.0, PanelWidth - 5.0}) {
        for (const double y : {5.0, PanelHeight - 5.0})
            LayNavyRivet(relief, x, y, 1.5);
    }
    return Settle(relief.Render(), NavyDither, Palette::Whole);
}

QImage DeleteMark() {
    return Key(Cross().translated(2, 1), Ink::Scarlet);
}

QImage FeedArrow(int arrow) {
    switch (arrow) {
        case 1:
            return Key(Polygon({{3, 4}, {11, 4}, {7, 9.4}}), Ink::Gold);
        case 2:
            return Key(Rect(3.4, 5, 7.2, 2.2), Ink::Foam);
        default:
            return Key(Rect(3.4, 5, 7.2, 2.2).united(Rect(5.9, 2.5, 2.2, 7.2)), Ink::Foam);
    }
}

QImage AwardBorder() {
    constexpr int BorderWidth = 102;
    constexpr int BorderHeight = 34;
    constexpr int Arm = 9;
    QImage picture = Sheet(BorderWidth, BorderHeight, 0u);
    for (int y = 0; y < BorderHeight; ++y) {
        for (int x = 0; x < BorderWidth; ++x) {
            const int across = std::min(x, BorderWidth - 1 - x);
            const int down = std::min(y, BorderHeight - 1 - y);
            const int edge = std::min(across, down);
            if (edge > 2 || across + down == 0) continue;
            const bool corner = across < Arm && down < Arm;
            if (edge == 1) {
                picture.setPixel(x, y, Colour(corner ? Ink::Glow : Ink::Gold).rgb());
            } else if (edge == 0 || corner) {
                picture.setPixel(x, y, Colour(Ink::Amber).rgb());
            }
        }
    }
    return picture;
}

}  // namespace art
