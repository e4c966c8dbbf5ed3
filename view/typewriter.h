// The bitmap typewriter: stamps glyphs of the stored strip into a picture. The pen and the start of its
// line stay from one call to the next.
#pragma once

#include <string>
#include <string_view>

#include "platform/numbers.h"
#include "platform/picture.h"

struct Pen {
    i16 lineStart;  // where its line began
    i16 x;
    i16 y;
};

/// The pen where the last call left it.
const Pen& ThePen();

constexpr int AtThePen = -1;  // as a coordinate: go on where the last call ended

/// Writes `text` (UTF-8, shown in capitals; a carriage return starts a line 10 pixels below) at pixel (`x`,
/// `y`) of `target`, whose glyphs stand 5 pixels lower. With either coordinate AtThePen it goes on at the pen
/// and keeps the line's start.
void Typewriter(std::string_view text, bool shadow, Picture& target, int x, int y);

/// `value` right-aligned in five places.
std::string PadNumber(int value);
