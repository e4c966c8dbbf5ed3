#include "badges/flag_cloth.h"

#include <algorithm>
#include <cmath>

#include "kit/palette.h"

namespace art {
namespace {

constexpr char Cut = '.';
constexpr char Chosen = '*';

struct Dye {
    char letter;
    Ink ink;
};

constexpr Dye Dyes[] = {
    {'R', Ink::Crimson}, {'E', Ink::Scarlet}, {'M', Ink::Maroon}, {'O', Ink::Amber}, {'Y', Ink::Gold},
    {'W', Ink::Snow},    {'K', Ink::Soot},    {'A', Ink::Ash},    {'Z', Ink::Slate}, {'T', Ink::Bark},
    {'B', Ink::Cobalt},  {'N', Ink::Navy},    {'L', Ink::Frost},  {'C', Ink::Brook}, {'G', Ink::Emerald},
    {'S', Ink::Signal},  {'P', Ink::Plum},    {'F', Ink::Armour}, {'H', Ink::Steel},
};

QRgb Dyed(char letter) {
    const auto* dye = std::ranges::find(Dyes, letter, &Dye::letter);
    return letter == Cut || dye == std::end(Dyes) ? 0u : Colour(dye->ink).rgb();
}

// On which side of the line from 1 to 2 a point lies.
double Side(double x, double y, double x1, double y1, double x2, double y2) {
    return (x - x1) * (y2 - y1) - (y - y1) * (x2 - x1);
}

bool InCorner(const Cloth& cloth, double x, double y) {
    const double first = Side(x, y, cloth.a, cloth.b, cloth.c, cloth.d);
    const double second = Side(x, y, cloth.c, cloth.d, cloth.e, cloth.f);
    const double third = Side(x, y, cloth.e, cloth.f, cloth.a, cloth.b);
    return (first >= 0 && second >= 0 && third >= 0) || (first <= 0 && second <= 0 && third <= 0);
}

// How far below the diagonal from the upper left a point lies, and below the one from the lower left.
double BelowFalling(double x, double y) {
    return y - x * FlagHeight / FlagWidth;
}
double BelowRising(double x, double y) {
    return y - FlagHeight + x * FlagHeight / FlagWidth;
}

// Whether a layer of one colour covers a pixel's middle.
bool Covers(const Cloth& cloth, double x, double y) {
    switch (cloth.cut) {
        case Cloth::Cut::Box:
            return x > cloth.a && x < cloth.a + cloth.c && y > cloth.b && y < cloth.b + cloth.d;
        case Cloth::Cut::Rising:
            return std::abs(BelowRising(x, y)) <= cloth.a / 2;
        case Cloth::Cut::Falling:
            return std::abs(BelowFalling(x, y) - cloth.b) <= cloth.a / 2;
        case Cloth::Cut::Saltire:
            return std::min(std::abs(BelowRising(x, y)), std::abs(BelowFalling(x, y))) <= cloth.a / 2;
        case Cloth::Cut::Corner:
            return InCorner(cloth, x, y);
        case Cloth::Cut::Disc:
            return std::hypot(x - cloth.a, y - cloth.b) <= cloth.c;
        case Cloth::Cut::Lozenge:
            return std::abs(x - cloth.a) / cloth.c + std::abs(y - cloth.b) / cloth.d <= 1;
        default:
            return false;
    }
}

void SewBands(QImage& flag, const Cloth& cloth) {
    const auto bands = static_cast<int>(cloth.colours.size());
    const bool across = cloth.cut == Cloth::Cut::Across;
    for (int y = 0; y < FlagHeight; ++y) {
        for (int x = 0; x < FlagWidth; ++x) {
            const int band = across ? y * bands / FlagHeight : x * bands / FlagWidth;
            flag.setPixel(x, y, Dyed(cloth.colours[static_cast<std::size_t>(band)]));
        }
    }
}

void SewStamp(QImage& flag, const Cloth& cloth) {
    const char chosen = static_cast<char>(cloth.c);
    int x = static_cast<int>(cloth.a);
    int y = static_cast<int>(cloth.b);
    for (const char letter : cloth.colours) {
        if (letter == '/') {
            x = static_cast<int>(cloth.a);
            ++y;
            continue;
        }
        if (letter != Cut && flag.valid(x, y)) flag.setPixel(x, y, Dyed(letter == Chosen ? chosen : letter));
        ++x;
    }
}

void Sew(QImage& flag, const Cloth& cloth) {
    if (cloth.cut == Cloth::Cut::Across || cloth.cut == Cloth::Cut::Down) return SewBands(flag, cloth);
    if (cloth.cut == Cloth::Cut::Stamp) return SewStamp(flag, cloth);
    for (int y = 0; y < FlagHeight; ++y) {
        for (int x = 0; x < FlagWidth; ++x) {
            if (Covers(cloth, x + 0.5, y + 0.5)) flag.setPixel(x, y, Dyed(cloth.colours.front()));
        }
    }
}

}  // namespace

QImage Sewn(const std::vector<Cloth>& layers) {
    QImage flag(FlagWidth, FlagHeight, QImage::Format_ARGB32);
    flag.fill(0u);
    for (const Cloth& layer : layers)
        Sew(flag, layer);
    return flag;
}

}  // namespace art
