// Colours that more than one picture or control has.
#pragma once

#include "platform/picture.h"

constexpr Colour FieldGreen = Rgb(0, 84, 0);
constexpr Colour SelectionYellow = Rgb(255, 255, 128);
constexpr Colour TrailGrey = Rgb(128, 128, 128);  // which no other picture has
