#include "portraits/portraits.h"

#include "kit/canvas.h"
#include "portraits/portrait_clay.h"
#include "portraits/portrait_dress.h"
#include "portraits/portrait_face.h"
#include "portraits/portrait_hair.h"
#include "portraits/portrait_person.h"

namespace art {
namespace {

constexpr double SkinDither = 0.035;

QColor Of(QRgb colour) {
    return QColor::fromRgb(colour);
}

std::vector<Person> Roster() {
    const QColor fair = Of(0xe2b794), pale = Of(0xe9c4a6), ruddy = Of(0xd8a07c), olive = Of(0xcc9a70);
    const QColor brown = Of(0xa8734c), dark = Of(0x8a5a3d), amber = Of(0xdcae84);
    const QColor red = Of(0xb4584a), rose = Of(0xbd6153), wine = Of(0x8c4136), deep = Of(0x6a3228);
    const QColor blue = Of(0x4d7391), grey = Of(0x66777c), green = Of(0x5f7150), hazel = Of(0x6d5230),
                 black = Of(0x2e2018);
    const QColor khaki = Colour(Ink::Khaki), oliveDrab = Colour(Ink::Olive), canvas = Colour(Ink::Canvas);
    const QColor tee = Colour(Ink::Cellar), sand = Colour(Ink::Stubble), ink = Colour(Ink::Asphalt);
    // clang-format off
    return {
        //name               style           beard             gear            glasses  freckles  scar   woman
        // cheek  jaw   chin  length  neck  nose  long  lips  mouth  brow  eyes  tilt  smile  age   yaw
        // skin   blood         hair          iris   cloth         shirt         headgear
        {"Marcus Hale",     Hair::Parted,   Beard::Stubble,   Gear::Headset,  false,   false,    true,  false,
         0.4,   2.2,  1.6,  1.5,    1.5,  1.04, 1.04, 0.78, 1.02,  1.3,  0.86, 1.0,  0.1,   0.75, 0.25,
         ruddy, red,          Of(0x57493d), grey,  khaki,        tee,          khaki},
        {"Ingrid Solberg",  Hair::Tied,     Beard::None,      Gear::Bare,     false,   false,    false, true,
         -0.6,  -1.4, -2.4, 0,      -2.2, 0.84, 0.98, 0.95, 0.9,   0.7,  1.0,  0.3,  0.3,   0.25, -0.45,
         pale,  rose,         Of(0xc7aa6c), blue,  oliveDrab,    tee,          oliveDrab},
        {"Tomasz Wolski",   Hair::Cropped,  Beard::Moustache, Gear::Helmet,   false,   false,    false, false,
         2.6,   4.6,  3.2,  0.5,    4.5,  1.22, 1.02, 0.9,  1.05,  1.3,  0.84, 0.2,  0.4,   0.6,  -0.2,
         ruddy, red,          Of(0x5a4330), hazel, khaki,        tee,          khaki},
        {"Claire Fournier", Hair::Bob,      Beard::None,      Gear::Cap,      false,   false,    false, true,
         -1.0,  -2.2, -3.2, -1,     -2.6, 0.86, 1.0,  1.1,  0.9,   0.7,  1.06, 0,    1.4,   0.2,  0.4,
         fair,  rose,         Of(0x4a2f20), hazel, canvas,       ink,          canvas},
        {"Daniel Okafor",   Hair::Cropped,  Beard::None,      Gear::Beret,    false,   false,    false, false,
         1.0,   2.0,  0.8,  1.5,    2.5,  1.3,  0.98, 1.4,  1.06,  1.1,  0.98, 0,    2.0,   0.3,  -0.3,
         dark,  deep,         Of(0x1d1613), black, khaki,        oliveDrab,    Of(0x7a2c2a)},
        {"Anna Keller",     Hair::Ponytail, Beard::None,      Gear::Bare,     true,    false,    false, true,
         0.2,   -1.0, -2.0, -2,     -2.4, 0.88, 0.96, 0.98, 0.92,  0.6,  1.02, -0.4, 1.5,   0.2,  0.3,
         fair,  rose,         Of(0x8a6238), green, Of(0x6c7256), sand,         canvas},
        {"Ray Whitlock",    Hair::Shaved,   Beard::Full,      Gear::Bare,     false,   false,    false, false,
         1.4,   2.4,  1.5,  1,      4,    1.16, 1.06, 0.85, 0.98,  1.4,  0.84, 0.7,  0.6,   0.95, 0.2,
         ruddy, red,          Of(0x8a5a3c), blue,  canvas,       Of(0x6b3a30), canvas},
        {"Mika Virtanen",   Hair::Cropped,  Beard::Stubble,   Gear::Knit,     false,   false,    false, false,
         -1.6,  -0.6, -1.0, 2.5,    -0.5, 0.95, 1.08, 0.75, 0.95,  1.0,  0.88, -0.6, -0.4,  0.35, -0.5,
         pale,  rose,         Of(0xa0834f), blue,  oliveDrab,    ink,          Of(0x3c4446)},
        {"Lucia Ferrante",  Hair::Curls,    Beard::None,      Gear::Headband, false,   false,    false, true,
         0.0,   -2.4, -3.4, -0.5,   -2.6, 0.94, 1.02, 1.25, 0.95,  0.9,  1.08, 0.5,  1.1,   0.15, -0.35,
         olive, Of(0xaa5448), Of(0x35231b), black, khaki,        ink,          Of(0x5d6440)},
        {"Kenji Mori",      Hair::Spiky,    Beard::None,      Gear::Bare,     false,   false,    false, false,
         0.6,   -0.6, -1.2, -0.5,   -1,   0.98, 0.92, 0.98, 0.92,  0.7,  0.7,  0.9,  0,     0.1,  0.35,
         amber, Of(0xb2604c), Of(0x1e1a1c), black, oliveDrab,    sand,         khaki},
        {"Diego Salinas",   Hair::Cropped,  Beard::Goatee,    Gear::Bandana,  false,   false,    false, false,
         1.2,   1.2,  0.4,  0.5,    2.5,  1.12, 1.0,  1.08, 1.02,  1.2,  0.92, 0.6,  1.8,   0.35, 0.4,
         brown, wine,         Of(0x241813), black, khaki,        tee,          Of(0x4f5a38)},
        {"Sam Delaney",     Hair::Cropped,  Beard::None,      Gear::Helmet,   false,   true,     false, false,
         -1.0,  0.2,  -0.4, -1,     -1,   0.9,  0.94, 1.0,  0.95,  0.7,  1.1,  -0.9, 0.2,   0,    0.15,
         pale,  rose,         Of(0xa2542c), green, canvas,       tee,          canvas},
    };
    // clang-format on
}

QImage Portrait(const Person& person) {
    Clay clay;
    LayBackHair(clay, person);
    LayNeck(clay, person);
    LayUniform(clay, person);
    LayHead(clay, person);
    LayBeard(clay, person);
    LayHair(clay, person);
    LayGear(clay, person);
    return Settle(clay.Render(), SkinDither, Palette::Whole);
}

}  // namespace

std::vector<QImage> Portraits() {
    std::vector<QImage> portraits;
    for (const Person& person : Roster())
        portraits.push_back(Portrait(person));
    return portraits;
}

}  // namespace art
