// The strip of letters with which the file window's typewriter stamps its text.
#pragma once

#include <string_view>

#include <QImage>

namespace art {

constexpr int TypeCell = 8;   // a glyph is 8 by 8
constexpr int TypePitch = 9;  // from one glyph to the next in the strip

// In the order of the strip.
inline constexpr std::string_view TypeOrder = "ABCDEFGHIJKLMNOPQRSTUVWXYZ.,'\":;-_!?#%0123456789";

// 450 by 8, see-through around the letters.
QImage TypewriterStrip();

// Stamps a line of text with its shadow, pen at (x, y), as the game does; for mock pictures.
void Stamp(QImage& target, int x, int y, std::string_view text);

}  // namespace art
