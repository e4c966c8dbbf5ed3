#include "badges/medals.h"

#include <array>
#include <cmath>
#include <mutex>
#include <string>

#include "badges/medals_table.h"
#include "kit/canvas.h"
#include "kit/glyphs.h"
#include "kit/shapes.h"
#include "panel/navy_steel.h"

namespace art {
namespace {

constexpr int Width = 105;
constexpr int Height = 41;
constexpr int Fine = 4;
constexpr double Up = -1.5708;

constexpr int TextLeft = 32;
constexpr int TextTop = 11;
constexpr QRectF MedalRibbon(31, 25, 69, 12);
constexpr QRectF WideRibbon(8, 20, 89, 17);
constexpr double PendantX = 15.5;
constexpr double PendantY = 27;
constexpr int TextLeftWide = 9;

// The plate on which an award lies, as the sheet's empty places but raised.
void Ground(Relief& relief) {
    NavyGround(relief);
    relief.Lay(Rect(0, 0, Width, Height), {.colour = Colour(Ink::Midnight), .grain = 0});
    relief.Lay(
        Rect(1, 1, Width - 2, Height - 3, 2),
        {.colour = Between(Ink::Serge, Ink::Gunmetal, 0.25), .height = 0.9f, .round = 1.2f, .grain = 0.06f});
}

// Woven stripes, mirrored about the middle.
void Silk(Relief& relief, const QRectF& area, const std::vector<Stripe>& stripes, const QPainterPath& cut) {
    double total = 0;
    for (const Stripe& stripe : stripes)
        total += stripe.width;
    const double unit = area.width() / 2 / total;
    double left = 0;
    for (const Stripe& stripe : stripes) {
        const double width = stripe.width * unit;
        for (const double x : {area.left() + left, area.right() - left - width}) {
            relief.Lay(Rect(x - 0.05, area.top(), width + 0.1, area.height()).intersected(cut),
                       {.colour = Colour(stripe.ink), .base = 2, .grain = 0.08f, .grainSize = 0.8f});
        }
        left += width;
    }
}

void RibbonBar(Relief& relief, const QRectF& area, const std::vector<Stripe>& stripes) {
    relief.Lay(Rect(area.x() - 1, area.y() - 1, area.width() + 2, area.height() + 2, 1),
               {.colour = Colour(Ink::Midnight), .height = 1.6f, .base = 0.6f, .grain = 0});
    Silk(relief, area, stripes, Rect(area.x(), area.y(), area.width(), area.height()));
    relief.Stain(Rect(area.x(), area.y(), area.width(), 1.2), Colour(Ink::Snow), 0.25);
    relief.Stain(Rect(area.x(), area.bottom() - 2, area.width(), 2), Colour(Ink::Midnight), 0.35);
}

QPainterPath Regular(double x, double y, double radius, int corners, double turn) {
    return Star(x, y, radius, radius * std::cos(3.14159 / corners), corners, turn);
}

QPainterPath Heart(double x, double y, double size) {
    QPainterPath heart(QPointF(x, y + size));
    heart.cubicTo(x - size * 1.5, y + size * 0.1, x - size * 1.05, y - size * 1.1, x, y - size * 0.45);
    heart.cubicTo(x + size * 1.05, y - size * 1.1, x + size * 1.5, y + size * 0.1, x, y + size);
    return heart;
}

QPainterPath CrossShape(double x, double y, double size) {
    const double a = size * 0.34;
    const double b = size * 0.46;
    return Polygon({{x - b, y - size},
                    {x + b, y - size},
                    {x + a, y - a},
                    {x + size, y - b},
                    {x + size, y + b},
                    {x + a, y + a},
                    {x + b, y + size},
                    {x - b, y + size},
                    {x - a, y + a},
                    {x - size, y + b},
                    {x - size, y - b},
                    {x - a, y - a}});
}

QPainterPath ShieldShape(double x, double y, double size) {
    QPainterPath path(QPointF(x - size * 0.85, y - size));
    path.lineTo(x + size * 0.85, y - size);
    path.lineTo(x + size * 0.85, y + size * 0.1);
    path.quadTo(x + size * 0.7, y + size * 0.8, x, y + size);
    path.quadTo(x - size * 0.7, y + size * 0.8, x - size * 0.85, y + size * 0.1);
    path.closeSubpath();
    return path;
}

QPainterPath PendantShape(Pendant pendant, double x, double y, double size) {
    switch (pendant) {
        case Pendant::None:
            return {};
        case Pendant::Star:
            return Star(x, y + size * 0.06, size * 1.14, size * 0.48, 5, Up);
        case Pendant::Cross:
            return CrossShape(x, y, size);
        case Pendant::Disc:
        case Pendant::Buoy:
            return Ellipse(x, y, size, size);
        case Pendant::Heart:
            return Heart(x, y, size);
        case Pendant::Octagon:
            return Regular(x, y, size * 1.05, 8, 0.3927);
        case Pendant::Hexagon:
            return Regular(x, y, size * 1.08, 6, Up);
        case Pendant::Shield:
            return ShieldShape(x, y, size);
    }
    return {};
}

QPainterPath EagleShape(double x, double y, double size) {
    QPainterPath eagle = Ellipse(x, y + size * 0.1, size * 0.24, size * 0.5)
                             .united(Ellipse(x, y - size * 0.5, size * 0.2, size * 0.2));
    for (const double side : {-1.0, 1.0})
        eagle = eagle.united(Polygon({{x, y - size * 0.2},
                                      {x + side * size, y - size * 0.7},
                                      {x + side * size * 0.8, y + size * 0.05},
                                      {x + side * size * 0.4, y + size * 0.45},
                                      {x, y + size * 0.3}}));
    return eagle.united(
        Polygon({{x, y + size * 0.3}, {x + size * 0.34, y + size * 0.9}, {x - size * 0.34, y + size * 0.9}}));
}

QPainterPath RelicShape(Relic relic, double x, double y, double size) {
    switch (relic) {
        case Relic::None:
            return {};
        case Relic::Star:
            return Star(x, y, size, size * 0.42, 5, Up);
        case Relic::Disc:
            return Ellipse(x, y, size * 0.7, size * 0.7);
        case Relic::Eagle:
            return EagleShape(x, y, size);
        case Relic::Sword:
            return Rect(x - size * 0.13, y - size, size * 0.26, size * 2)
                .united(Rect(x - size * 0.5, y + size * 0.4, size, size * 0.24));
        case Relic::Rays:
            return Star(x, y, size * 1.1, size * 0.5, 10, Up);
        case Relic::Wire:
            return Widened(Trace({{x - size, y - size * 0.3},
                                  {x + size, y + size * 0.1},
                                  {x - size, y + size * 0.5}}),
                           size * 0.26, Qt::FlatCap, Qt::MiterJoin)
                .united(Rect(x - size * 0.12, y - size * 0.9, size * 0.24, size * 1.8));
        case Relic::Torch:
            return Rect(x - size * 0.18, y - size * 0.1, size * 0.36, size)
                .united(Ellipse(x, y - size * 0.4, size * 0.36, size * 0.5));
        case Relic::Wreath:
            return Ellipse(x, y, size, size).subtracted(Ellipse(x, y, size * 0.62, size * 0.62));
    }
    return {};
}

// The drape, the ring and the medal that hangs from it.
void Hang(Relief& relief, const AwardLook& look) {
    constexpr double Size = 8.4;
    const QPainterPath drape = Polygon(
        {{PendantX - 8, 3}, {PendantX + 8, 3}, {PendantX + 8, 11}, {PendantX, 18}, {PendantX - 8, 11}});
    relief.Lay(Widened(drape, 1.6, Qt::SquareCap, Qt::MiterJoin).united(drape),
               {.colour = Colour(Ink::Midnight), .height = 1.2f, .base = 0.6f, .grain = 0});
    Silk(relief, {PendantX - 8, 3, 16, 15}, look.stripes, drape);
    const QPainterPath shape = PendantShape(look.pendant, PendantX, PendantY + 0.6, Size);
    relief.Lay(Widened(shape, 1.8, Qt::SquareCap, Qt::RoundJoin).united(shape),
               {.colour = Colour(Ink::Midnight), .height = 1.4f, .base = 1, .grain = 0});
    relief.Lay(shape,
               {.colour = Colour(look.metal), .height = 1.8f, .base = 2.4f, .round = 2.4f, .grain = 0.05f});
    relief.Lay(PendantShape(look.pendant, PendantX, PendantY + 0.6, Size * 0.66),
               {.colour = Colour(look.field), .height = -0.6f, .base = 4.2f, .round = 1, .grain = 0.05f});
    if (look.pendant == Pendant::Buoy) {
        for (int i = 0; i < 4; ++i) {
            const double turn = 0.785 + i * 1.5708;
            relief.Stain(
                Ellipse(PendantX + std::cos(turn) * 6.9, PendantY + 0.6 + std::sin(turn) * 6.9, 1.6, 1.6),
                Colour(Ink::Crimson));
        }
    }
    relief.Lay(RelicShape(look.relic, PendantX, PendantY + 0.6, Size * 0.5),
               {.colour = Colour(look.relicInk), .height = 0.8f, .base = 4, .round = 1, .grain = 0});
    relief.LayLine(Ellipse(PendantX, 17.6, 1.8, 1.6), 1,
                   {.colour = Colour(look.metal), .height = 0.8f, .base = 2.4f, .round = 0.5f, .grain = 0});
}

// A metal bar with an enamel field and its sign in the middle.
void MetalBar(Relief& relief, const AwardLook& look) {
    relief.Lay(Rect(8, 17, 89, 18, 3),
               {.colour = Colour(Ink::Midnight), .height = 0.6f, .base = 0.6f, .grain = 0});
    relief.Lay(Rect(9, 18, 87, 16, 2.4),
               {.colour = Colour(look.metal), .height = 2, .base = 1, .round = 2, .grain = 0.06f});
    relief.Lay(Rect(12, 21, 81, 10, 1),
               {.colour = Colour(look.field), .height = -0.8f, .base = 3, .round = 0.8f, .grain = 0.05f});
    const bool eagle = look.relic == Relic::Eagle;
    for (const double x : {eagle ? 52.5 : 45.5, eagle ? 52.5 : 59.5}) {
        const QPainterPath sign = RelicShape(look.relic, 0, 0, eagle ? 6.4 : 7);
        QTransform place;
        place.translate(eagle ? x : 52.5, 26);
        if (!eagle) place.rotate(x < 52 ? 62 : -62);
        relief.Lay(place.map(sign),
                   {.colour = Colour(look.relicInk), .height = 1, .base = 2.8f, .round = 1, .grain = 0});
    }
    for (const double x : {20.0, 85.0}) {
        for (int i = 0; i < 4; ++i)
            relief.Lay(Ellipse(x + (i - 1.5) * 2.6, 26 + std::abs(i - 1.5) * 1.2, 1.5, 2.2),
                       {.colour = Colour(look.metal), .height = 0.8f, .base = 2.6f, .round = 1, .grain = 0});
    }
}

// A steel housing with three windows in which the drums show the count.
void Housing(Relief& relief, const AwardLook& look) {
    relief.Lay(Rect(24, 16, 57, 21, 3),
               {.colour = Colour(Ink::Midnight), .height = 0.6f, .base = 0.6f, .grain = 0});
    relief.Lay(Rect(25, 17, 55, 19, 2.4),
               {.colour = Colour(look.metal), .height = 2, .base = 1, .round = 2, .grain = 0.08f});
    for (const double x : {30.0, 45.0, 60.0})
        relief.Lay(Rect(x, 19.5, 14, 14, 0.6),
                   {.colour = Colour(look.field), .height = -1.4f, .base = 3, .round = 0.6f, .grain = 0});
}

constexpr int DeviceSize = 7;
using DeviceRows = std::array<const char*, DeviceSize>;
constexpr DeviceRows LeafDevice{"..o#o..", ".o###o.", "o##+##o", "o#+#+#o", ".o###o.", "..o#o..", "...o..."};
constexpr DeviceRows StarDevice{"...o...", "..o#o..", "oo###oo", "o##+##o", ".o###o.", "o##o##o", "oo...oo"};

// A leaf or a star on the ribbon: gold for one more, silver for five more.
void PutDevice(QImage& picture, int x, int y, const DeviceRows& rows, bool silver) {
    for (int i = 0; i < DeviceSize * DeviceSize; ++i) {
        const char sign = rows[static_cast<std::size_t>(i / DeviceSize)][i % DeviceSize];
        if (sign == '.') continue;
        const Ink bright = silver ? Ink::Snow : Ink::Gold;
        const Ink dim = silver ? Ink::Cement : Ink::Amber;
        picture.setPixel(x + i % DeviceSize, y + i / DeviceSize,
                         Colour(sign == 'o'   ? Ink::Soot
                                : sign == '#' ? bright
                                              : dim)
                             .rgb());
    }
}

void PutDevices(QImage& picture, const QRectF& area, bool leaves, int more) {
    constexpr int Pitch = 9;
    const int silver = more / 5;
    const int count = silver + more % 5;
    const int left = static_cast<int>(area.center().x()) - (count * Pitch - 2) / 2;
    const int top = static_cast<int>(area.center().y()) - DeviceSize / 2;
    for (int i = 0; i < count; ++i)
        PutDevice(picture, left + i * Pitch, top, leaves ? LeafDevice : StarDevice, i < silver);
}

void PutDrums(QImage& picture, int times) {
    const std::array<int, 3> digits{times / 100, times / 10 % 10, times % 10};
    for (std::size_t i = 0; i < digits.size(); ++i) {
        QImage digit = Sheet(GlyphWidth, GlyphHeight, 0u);
        Print(digit, 0, 0, std::to_string(digits[i]), Colour(Ink::Snow).rgb());
        Place(picture, 33 + static_cast<int>(i) * 15, 21, Enlarged(digit, 2));
    }
}

// An award before any device.
QImage DrawBase(const AwardLook& look) {
    Relief relief(Width, Height, 2, Fine, 120);
    Ground(relief);
    switch (look.form) {
        case AwardForm::Medal:
            Hang(relief, look);
            RibbonBar(relief, MedalRibbon, look.stripes);
            for (int i = 0; i < look.stars; ++i) {
                const double x = MedalRibbon.left() + MedalRibbon.width() * (i + 0.5) / look.stars;
                relief.Stain(Star(x, MedalRibbon.center().y(), 4.4, 1.8, 5, Up), Colour(Ink::Snow));
            }
            break;
        case AwardForm::Ribbon:
            RibbonBar(relief, WideRibbon, look.stripes);
            break;
        case AwardForm::Bar:
            MetalBar(relief, look);
            break;
        case AwardForm::Counter:
            Housing(relief, look);
            break;
    }
    QImage picture = Settle(relief.Render(), 0.012, Palette::Whole);
    EngraveText(picture, look.form == AwardForm::Medal ? TextLeft : TextLeftWide, TextTop, look.key);
    return picture;
}

// Its twenty pictures share it.
const QImage& Base(std::size_t award) {
    static std::array<std::once_flag, AwardKinds> drawn;
    static std::array<QImage, AwardKinds> bases;
    std::call_once(drawn[award], [&] { bases[award] = DrawBase(AwardLooks()[award]); });
    return bases[award];
}

QImage AwardPicture(std::size_t award, int times) {
    const AwardLook& look = AwardLooks()[award];
    QImage picture = Base(award);
    if (look.form == AwardForm::Counter) {
        PutDrums(picture, times);
        return picture;
    }
    if (times == 1) return picture;
    const int left = (look.form == AwardForm::Medal ? TextLeft : TextLeftWide) + PrintedWidth(look.key) + 5;
    const std::string count = "X" + std::to_string(times);
    Print(picture, left + 1, TextTop + 1, count, Colour(Ink::Midnight).rgb());
    Print(picture, left, TextTop, count, Colour(Ink::Gold).rgb());
    if (look.form == AwardForm::Medal) PutDevices(picture, MedalRibbon, true, times - 1);
    if (look.form == AwardForm::Ribbon) PutDevices(picture, WideRibbon, false, times - 1);
    return picture;
}

}  // namespace

std::vector<std::string> AwardsOften() {
    std::vector<std::string> paths;
    paths.reserve(AwardKinds);
    for (int award = 0; award < AwardKinds; ++award)
        paths.push_back("pic/awards/" + TwoDigits(award) + TwoDigits(1 + award * 7 % AwardTimes) + ".bmp");
    return paths;
}

Drawings AwardDrawings() {
    Drawings drawings;
    for (std::size_t award = 0; award < AwardKinds; ++award) {
        const std::string row =
            std::string("row ") + AwardLooks()[award].key + " of badges/medals_table.cpp, ";
        for (int times = 1; times <= AwardTimes; ++times)
            drawings.push_back(
                {.name = TwoDigits(static_cast<int>(award)) + TwoDigits(times),
                 .draw = Alone([=] { return AwardPicture(award, times); }),
                 .note = row + "won " + std::to_string(times) + (times == 1 ? " time" : " times")});
    }
    return drawings;
}

}  // namespace art
