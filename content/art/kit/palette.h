// The colours of the whole game. Every picture of the generator ends on these and on no other.
#pragma once

#include <array>
#include <cstdint>

#include <QColor>

namespace art {

enum class Ink : std::uint8_t {
    // foliage and grass, dark to light
    Pine,
    Fir,
    Moss,
    Meadow,
    Grass,
    Pasture,
    Sprout,
    // dry growth
    Stubble,
    Straw,
    // earth, wood and sand, dark to light
    Peat,
    Loam,
    Soil,
    Bark,
    Timber,
    Plank,
    Clay,
    Sand,
    Shell,
    // concrete, iron, asphalt and bone, dark to light
    Soot,
    Iron,
    Asphalt,
    Slate,
    Ash,
    Cement,
    Concrete,
    Chalk,
    Snow,
    // masonry, warm greys
    Cellar,
    Fieldstone,
    Limestone,
    // water and sky
    Abyss,
    Lake,
    River,
    Brook,
    Shallow,
    Foam,
    // soldiers' cloth
    Jacket,
    Olive,
    Khaki,
    Canvas,
    // skin
    Tan,
    Skin,
    // brick, blood and badges
    Maroon,
    Brick,
    Crimson,
    Scarlet,
    // selection, fire and brass
    Amber,
    Gold,
    Glow,
    // the panel's green steel, dark to light
    Engraving,
    Armour,
    Plate,
    Steel,
    Edge,
    Sheen,
    // read-outs and cloth of flags
    Signal,
    Emerald,
    Cobalt,
    Navy,
    // grass between its tones, and water between its depths and over sand: what joins on the field joins in
    // small steps
    Turf,
    Lawn,
    Current,
    Lagoon,
    // the file window's navy steel, dark to light; field pictures never settle on these and the next
    Midnight,
    Harbour,
    Serge,
    Gunmetal,
    Denim,
    Frost,
    // flesh of portraits between the skins above
    Umber,
    Rose,
    Fair,
    Petal,
    // enamel and silk that no field picture needs
    Plum,
    // the sky behind portraits, then their flesh and hair, dark to light; only hand files use these
    Haze,
    Raven,
    Dusk,
    Mauve,
    Sienna,
    Copper,
    Terracotta,
    Peach,
    Apricot,
    Blush,
    Count
};

constexpr std::size_t InkCount = static_cast<std::size_t>(Ink::Count);
// What the field and all that stands, lies, flies and burns on it settle on.
constexpr std::size_t FieldInkCount = static_cast<std::size_t>(Ink::Midnight);
static_assert(FieldInkCount <= 64);
// What any drawing settles on: inks mixed for portraits must not change the tones of the windows and medals.
constexpr std::size_t DrawnInkCount = static_cast<std::size_t>(Ink::Haze);

struct InkRow {
    QRgb colour;
    const char* name;
};

extern const std::array<InkRow, InkCount> Inks;

QColor Colour(Ink ink);

// A colour between two inks; share 0 gives the first.
QColor Between(Ink first, Ink second, double share);

// Which inks a drawing may settle on: the field keeps to its own, so that a tone added for the file window
// leaves every tile as it is. Whole is all inks but those of hand files.
enum class Palette : std::uint8_t { Field, Whole };

// The ink that looks nearest to a colour whose lightness is moved by `lift` (0 to 1 is black to white).
Ink NearestInk(QRgb colour, double lift = 0, Palette palette = Palette::Field);

}  // namespace art
