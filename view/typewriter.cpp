#include "view/typewriter.h"

#include <cctype>

#include "platform/blit.h"
#include "platform/code_page.h"
#include "view/depot_form.h"

namespace {

Pen pen;

constexpr int GlyphSize = 8;   // pixels of a glyph's side
constexpr int GlyphPitch = 9;  // from one glyph of the strip to the next
constexpr int GlyphDrop = 5;   // from the pen down to the glyph
constexpr int LineHeight = 10;
constexpr int WideAdvance = 10;
constexpr int NarrowAdvance = 7;

// Characters in the order of their glyphs, and from which glyph to which the pen advances less.
constexpr std::string_view Glyphs = "ABCDEFGHIJKLMNOPQRSTUVWXYZ.,'\":;-_!?#%0123456789";
constexpr int FirstNarrow = 26;
constexpr int LastNarrow = 31;

struct Glyph {
    int place;    // in the strip
    int advance;  // pixels
};

// A character without a glyph takes the place of its code, which lies past the strip, and leaves the advance.
Glyph GlyphOf(char character, int lastAdvance) {
    const auto code = static_cast<unsigned char>(character);
    const std::size_t place = Glyphs.find(static_cast<char>(std::toupper(code)));
    if (place == std::string_view::npos) return {code, lastAdvance};
    const int glyph = static_cast<int>(place);
    return {glyph, glyph >= FirstNarrow && glyph <= LastNarrow ? NarrowAdvance : WideAdvance};
}

// Lays the 8 by 8 pixels of the strip at (`left`, `top`) on the target.
void Lay(Picture& target, int x, int y, int left, int top, RasterOp operation) {
    BitBlt(target, x, y, GlyphSize, GlyphSize, frmDepot.picScript.canvas, left, top, operation);
}

void Stamp(Picture& target, int x, int y, int glyph, bool shadow) {
    const int left = glyph * GlyphPitch;
    const int top = y + GlyphDrop;
    if (shadow) Lay(target, x + 1, top + 1, left, 0, RasterOp::SRCAND);
    Lay(target, x, top, left, 0, RasterOp::SRCAND);
    Lay(target, x, top, left, GlyphSize, RasterOp::SRCINVERT);
}

}  // namespace

void Typewriter(std::string_view text, bool shadow, Picture& target, int x, int y) {
    if (x != AtThePen && y != AtThePen) {
        pen.lineStart = x;
        pen.x = x;
        pen.y = y;
    }
    int advance = 0;
    for (const char character : ToCodePage(text)) {
        if (character == '\r') {
            pen.y += LineHeight;
            pen.x = pen.lineStart;
            advance = 0;
            continue;
        }
        if (character == ' ') {
            advance = WideAdvance;
        } else {
            const Glyph glyph = GlyphOf(character, advance);
            Stamp(target, pen.x, pen.y, glyph.place, shadow);
            advance = glyph.advance;
        }
        pen.x += advance;
    }
}

const Pen& ThePen() {
    return pen;
}

std::string PadNumber(int value) {
    std::string text = std::to_string(value);
    for (const int bound : {10000, 1000, 100, 10})
        if (value < bound) text.insert(0, 1, ' ');
    return text;
}
