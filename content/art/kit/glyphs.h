// Letters and digits of our own, for plates, buttons and labels. No font is used anywhere.
#pragma once

#include <string_view>

#include <QImage>
#include <QPainterPath>

namespace art {

constexpr int GlyphWidth = 4;
constexpr int GlyphHeight = 5;

// Small capitals and digits of 4 by 5 pixels, one pixel apart; lower case is shown as capitals.
void Print(QImage& target, int x, int y, std::string_view text, QRgb colour);

int PrintedWidth(std::string_view text);

// Whether the glyph has a pixel there.
bool GlyphPixel(char letter, int x, int y);

// Broad capitals as an outline, `height` pixels high, starting at a point, `gap` between letters. The letters
// are those of the game's name and of its windows' headings.
QPainterPath Title(std::string_view text, double x, double y, double height, double gap);

double TitleWidth(std::string_view text, double height, double gap);

}  // namespace art
