#include "things/inventory_pictures.h"

#include <string_view>

#include "kit/canvas.h"
#include "kit/shapes.h"
#include "things/ammunition.h"
#include "things/guns.h"
#include "things/small_arms.h"

namespace art {
namespace {

constexpr int LongWidth = 117;
constexpr int SmallWidth = 42;
constexpr int Height = 42;
constexpr int Fine = 3;
constexpr double Dither = 0.01;

Relief Board(bool wide) {
    return Relief(wide ? LongWidth : SmallWidth, Height, 2, Fine, 120);
}

// A dark line around a thing parts it from any board behind.
QImage Outlined(const QImage& picture) {
    QImage outlined = picture;
    const auto shown = [&](int x, int y) {
        return picture.rect().contains(x, y) && qAlpha(picture.pixel(x, y)) > 0;
    };
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (shown(x, y)) continue;
            if (shown(x - 1, y) || shown(x + 1, y) || shown(x, y - 1) || shown(x, y + 1))
                outlined.setPixel(x, y, Colour(Ink::Soot).rgb());
        }
    }
    return outlined;
}

// The part of a pack below its pockets: a flap held by two straps.
void LayFlap(Relief& relief, int top, int width, int bottom) {
    if (bottom - top < 12) return;
    relief.Lay(Rect(4, top, width - 8, bottom - top - 4, 8), {.colour = Colour(Ink::Canvas),
                                                              .height = 3,
                                                              .round = 4,
                                                              .grain = 0.14f,
                                                              .grainSize = 1.5f,
                                                              .bump = 0.12f});
    relief.StainLine(Rect(8, top + 4, width - 16, bottom - top - 12, 6), 1, Colour(Ink::Khaki));
    for (const double x : {34.0, 100.0}) {
        relief.Lay(Rect(x, top - 2, 8, bottom - top + 2, 1),
                   {.colour = Colour(Ink::Timber), .height = 1.4f, .base = 3, .round = 1.2f, .grain = 0.12f});
        relief.LayLine(Rect(x - 2, top + 8, 12, 9, 1), 2,
                       {.colour = Colour(Ink::Gold), .height = 1, .base = 4.4f, .round = 0.8f});
    }
}

// The open pack behind its pockets: three in a row, 50 pixels from one to the next.
QImage PackBoard(int pockets) {
    constexpr int BoardWidth = 142;
    constexpr int BoardHeight = 192;
    constexpr int Pitch = 50;
    constexpr int Across = 3;
    Relief relief(BoardWidth, BoardHeight, 2, Fine, 200);
    relief.Lay(Rect(-2, -2, BoardWidth + 4, BoardHeight + 4),
               {.colour = Colour(Ink::Olive), .grain = 0.2f, .grainSize = 1.5f, .bump = 0.2f});
    const int rows = pockets / Across;
    relief.Lay(Rect(1, 1, BoardWidth - 2, rows * Pitch - 10, 4),
               {.colour = Colour(Ink::Khaki), .height = 2, .round = 2.4f, .grain = 0.12f, .grainSize = 1});
    for (int i = 0; i < pockets; ++i) {
        const int x = i % Across * Pitch;
        const int y = i / Across * Pitch;
        relief.Lay(Rect(x + 1, y + 1, SmallWidth - 2, Height - 2, 3), {.colour = Colour(Ink::Jacket),
                                                                       .height = -2,
                                                                       .base = 2,
                                                                       .round = 2,
                                                                       .grain = 0.12f,
                                                                       .grainSize = 1});
    }
    for (int x = Pitch - 4; x < BoardWidth; x += Pitch) {
        relief.StainLine(Trace({{x + 0.0, 2.0}, {x + 0.0, rows * Pitch - 12.0}}), 1.6, Colour(Ink::Bark));
    }
    LayFlap(relief, rows * Pitch - 4, BoardWidth, BoardHeight);
    return Settle(relief.Render(), 0.02);
}

QImage Done(const Relief& relief) {
    return Outlined(Settle(relief.Render(true), Dither));
}

// The feeds that a weapon is shown with: none and each size, or a plain picture for one that takes no
// magazine.
struct Feeding {
    std::string suffix;
    int capacity;
};

std::vector<Feeding> Feedings(const char* feedKind) {
    if (std::string_view(feedKind).empty()) return {{"", 0}};
    std::vector<Feeding> feedings{{"0", 0}};
    for (const int size : SizesOf(feedKind))
        feedings.push_back({std::to_string(size), size});
    return feedings;
}

void AddGuns(std::vector<NamedPicture>& pictures) {
    for (const Gun& gun : Guns()) {
        for (const Feeding& feeding : Feedings(gun.feedKind)) {
            Relief relief = Board(!IsSmall(gun));
            LayGun(relief, gun, feeding.capacity);
            pictures.push_back({gun.name + feeding.suffix, Done(relief)});
        }
    }
}

void AddPistols(std::vector<NamedPicture>& pictures) {
    for (const Pistol& pistol : Pistols()) {
        for (const Feeding& feeding : Feedings(pistol.feedKind)) {
            Relief relief = Board(false);
            LayPistol(relief, pistol, feeding.capacity);
            pictures.push_back({pistol.name + feeding.suffix, Done(relief)});
        }
    }
}

void AddAmmo(std::vector<NamedPicture>& pictures) {
    for (const AmmoKind& kind : AmmoKinds()) {
        const bool grenade = kind.holder == Holder::Round;
        for (const int size : kind.sizes) {
            if (size == 0) continue;
            Relief relief = Board(false);
            LayAmmo(relief, kind, size);
            const QImage picture = Done(relief);
            if (!grenade) pictures.push_back({kind.name + std::to_string(size), picture});
            pictures.push_back({std::to_string(size) + kind.name, picture});
            if (grenade && size == kind.sizes.front())
                pictures.push_back({std::string(kind.name) + "he", picture});
        }
    }
}

void AddSimple(std::vector<NamedPicture>& pictures) {
    for (const SimpleThing& thing : SimpleThings()) {
        Relief relief = Board(thing.wide);
        thing.draw(relief);
        pictures.push_back({thing.name, Done(relief)});
    }
}

}  // namespace

std::vector<NamedPicture> InventoryPictures() {
    std::vector<NamedPicture> pictures;
    AddGuns(pictures);
    AddPistols(pictures);
    AddAmmo(pictures);
    AddSimple(pictures);
    return pictures;
}

std::vector<NamedPicture> PackBoards() {
    std::vector<NamedPicture> pictures;
    for (const int pockets : {3, 6, 9, 12})
        pictures.push_back({"infoPack" + std::to_string(pockets), PackBoard(pockets)});
    return pictures;
}

}  // namespace art
