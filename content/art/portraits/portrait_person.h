// What tells one soldier's portrait from another's: a table row for each, from which the drawing is made.
#pragma once

#include <cstdint>

#include <QColor>

#include "kit/palette.h"

namespace art {

enum class Hair : std::uint8_t { Shaved, Cropped, Parted, Spiky, Tied, Bob, Curls, Ponytail };
enum class Beard : std::uint8_t { None, Stubble, Moustache, Goatee, Full };
enum class Gear : std::uint8_t { Bare, Headset, Helmet, Cap, Beret, Knit, Bandana, Headband };

struct Person {
    const char* name;
    Hair style;
    Beard beard;
    Gear gear;
    bool glasses, freckles, scar, woman;
    // build, in pixels from an average head: cheeks, jaw, chin and neck are half widths, length is of the
    // lower face
    double cheeks, jaw, chin, length, neck;
    // features, shares of an average one where not told otherwise
    double nose, noseLength, lips, mouth, brow, eyes;
    double browTilt;  // pixels by which the inner end is lower
    double smile;     // pixels by which the corners are raised
    double age;       // 0 to 1: folds and furrows
    double yaw;       // -1 to 1: looks to the picture's left or right
    QColor skin, blood, hair, iris, cloth, shirt, headgear;
};

}  // namespace art
