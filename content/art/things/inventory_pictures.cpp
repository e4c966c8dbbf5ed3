#include "things/inventory_pictures.h"

#include <string_view>

#include "kit/canvas.h"
#include "kit/shapes.h"
#include "things/ammunition.h"
#include "things/guns.h"
#include "things/pistols.h"
#include "things/small_arms.h"

namespace art {
namespace {

constexpr int LongWidth = 117;
constexpr int SmallWidth = 42;
constexpr int Height = 42;
constexpr int Fine = 3;
constexpr double Dither = 0.01;

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

QImage Drawn(bool wide, const std::function<void(Relief&)>& lay) {
    Relief relief(wide ? LongWidth : SmallWidth, Height, 2, Fine, 120);
    lay(relief);
    return Outlined(Settle(relief.Render(true), Dither));
}

Drawing Thing(std::string name, bool wide, std::function<void(Relief&)> lay, std::string source,
              std::string note) {
    return {std::move(name), Alone([wide, lay = std::move(lay)] { return Drawn(wide, lay); }),
            std::move(source), std::move(note)};
}

// The feeds that a weapon is shown with: none and each size, or a plain picture for one that takes no
// magazine.
struct Feeding {
    std::string suffix, note;
    int capacity;
};

std::vector<Feeding> Feedings(const char* feedKind) {
    if (std::string_view(feedKind).empty()) return {{"", "", 0}};
    std::vector<Feeding> feedings{{"0", ", without a magazine", 0}};
    for (const int size : SizesOf(feedKind))
        feedings.push_back({std::to_string(size), ", with " + std::to_string(size) + " rounds", size});
    return feedings;
}

std::string RowOf(const std::string& name, const char* table) {
    return "row " + name + " of " + table;
}

void AddGuns(Drawings& drawings, bool wide) {
    for (const Gun& gun : Guns()) {
        if (IsSmall(gun) == wide) continue;
        for (const Feeding& feeding : Feedings(gun.feedKind))
            drawings.push_back(Thing(
                gun.name + feeding.suffix, wide,
                [&gun, feeding](Relief& relief) { LayGun(relief, gun, feeding.capacity); },
                "things/guns.cpp:LayGun", RowOf(gun.name, "things/guns_table.cpp") + feeding.note));
    }
}

void AddPistols(Drawings& drawings) {
    for (const Pistol& pistol : Pistols()) {
        for (const Feeding& feeding : Feedings(pistol.feedKind))
            drawings.push_back(Thing(
                pistol.name + feeding.suffix, false,
                [&pistol, feeding](Relief& relief) { LayPistol(relief, pistol, feeding.capacity); },
                "things/pistols.cpp:LayPistol", RowOf(pistol.name, "Pistols") + feeding.note));
    }
}

// As it lies in a slot, as the pointer carries it out of a weapon, and a lone grenade.
std::vector<std::string> AmmoNames(const AmmoKind& kind, int size) {
    const std::string count = std::to_string(size);
    if (kind.holder != Holder::Round) return {kind.name + count, count + kind.name};
    if (size != kind.sizes.front()) return {count + kind.name};
    return {count + kind.name, std::string(kind.name) + "he"};
}

void AddAmmo(Drawings& drawings) {
    for (const AmmoKind& kind : AmmoKinds()) {
        for (const int size : SizesOf(kind.name)) {
            for (const std::string& name : AmmoNames(kind, size))
                drawings.push_back(Thing(
                    name, false, [&kind, size](Relief& relief) { LayAmmo(relief, kind, size); },
                    "things/ammunition.cpp:LayAmmo",
                    RowOf(kind.name, "AmmoKinds") + ", " + std::to_string(size) + " rounds"));
        }
    }
}

void AddSimple(Drawings& drawings, bool wide) {
    for (const SimpleThing& thing : SimpleThings()) {
        if (thing.wide == wide)
            drawings.push_back(Thing(thing.name, wide, thing.draw,
                                     std::string("things/small_arms.cpp:") + thing.routine, ""));
    }
}

}  // namespace

Drawings LongThings() {
    Drawings drawings;
    AddGuns(drawings, true);
    AddSimple(drawings, true);
    return drawings;
}

Drawings SmallThings() {
    Drawings drawings;
    AddGuns(drawings, false);
    AddPistols(drawings);
    AddAmmo(drawings);
    AddSimple(drawings, false);
    return drawings;
}

Drawings PackBoards() {
    Drawings drawings;
    for (const int pockets : {3, 6, 9, 12})
        drawings.push_back({.name = "infoPack" + std::to_string(pockets),
                            .draw = Alone([pockets] { return PackBoard(pockets); }),
                            .note = std::to_string(pockets) + " pockets"});
    return drawings;
}

}  // namespace art
