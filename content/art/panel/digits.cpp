#include "panel/digits.h"

#include "kit/canvas.h"
#include "kit/glyphs.h"
#include "kit/picture_writer.h"

namespace art {
namespace {

constexpr int DigitWidth = 5;
constexpr int DigitHeight = 6;
constexpr int StripTick = 10;

QRgb Rgb(Ink ink) {
    return Inks[static_cast<std::size_t>(ink)].colour;
}

}  // namespace

QImage BarDigits() {
    QImage picture = Sheet(10 * DigitWidth, BarCount * DigitHeight, Rgb(Ink::Engraving));
    for (int bar = 0; bar < BarCount; ++bar) {
        for (int digit = 0; digit < 10; ++digit) {
            Print(picture, digit * DigitWidth, bar * DigitHeight, std::to_string(digit),
                  Rgb(Bars[static_cast<std::size_t>(bar)].light));
        }
    }
    return picture;
}

QImage BarStrip(int bar) {
    const BarLook& look = Bars[static_cast<std::size_t>(bar)];
    QImage picture = Sheet(BarLength, 3);
    for (int x = 0; x < BarLength; ++x) {
        const bool tick = x % StripTick == StripTick - 1;
        picture.setPixel(x, 0, Rgb(tick ? look.middle : look.light));
        picture.setPixel(x, 1, Rgb(tick ? look.dark : look.middle));
        picture.setPixel(x, 2, Rgb(look.dark));
    }
    return picture;
}

QImage DurabilityFill(std::size_t band) {
    constexpr std::array<std::array<Ink, 3>, 4> Looks{{
        {Ink::Scarlet, Ink::Brick, Ink::Maroon},
        {Ink::Gold, Ink::Amber, Ink::Tan},
        {Ink::Glow, Ink::Straw, Ink::Stubble},
        {Ink::Sprout, Ink::Signal, Ink::Meadow},
    }};
    QImage picture = Sheet(3, 40);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < 3; ++x)
            picture.setPixel(x, y, Rgb(Looks[band][static_cast<std::size_t>(x)]));
    }
    return picture;
}

QImage DurabilityCover() {
    QImage picture = Sheet(3, 40);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < 3; ++x)
            picture.setPixel(x, y, Rgb((x + y) % 4 < 2 ? Ink::Slate : Ink::Iron));
    }
    return picture;
}

QImage EnemyCounter(int count) {
    constexpr int Width = 25;
    constexpr int Height = 19;
    QImage picture = Sheet(Width, Height, Rgb(Ink::Engraving));
    for (int i = 0; i < Width * Height; ++i) {
        const int x = i % Width;
        const int y = i / Width;
        const bool rim = x == 0 || y == 0 || x == Width - 1 || y == Height - 1;
        const bool inner = x == 1 || y == 1 || x == Width - 2 || y == Height - 2;
        const bool corner = (x < 7 || x > Width - 8) && (y < 6 || y > Height - 7);
        if (rim) picture.setPixel(x, y, Rgb(corner ? Ink::Scarlet : Ink::Maroon));
        if (inner && !rim) picture.setPixel(x, y, Rgb(Ink::Maroon));
    }
    const std::string text = std::to_string(count);
    QImage small = Sheet(PrintedWidth(text), GlyphHeight, 0u);
    Print(small, 0, 0, text, Rgb(Ink::Gold));
    const QImage large = Enlarged(small, 2);
    Place(picture, (Width - large.width()) / 2, (Height - large.height()) / 2 + 1, large);
    return picture;
}

}  // namespace art
