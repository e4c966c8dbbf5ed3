// What a front end draws over a picture of the game: strokes, discs, boxes and words as plain data, in the
// picture's pixels, each with a colour that may be seen through. The front end draws them with its own
// toolkit, sharp at any scale, in the order in which they stand.
#pragma once

#include <string>
#include <vector>

#include "platform/picture.h"

enum class StrokeKind {
    Line,   // from (x, y) to (toX, toY), `breadth` wide, with round ends
    Disc,   // filled, around (x, y), `breadth` across
    Ring,   // around (x, y), `breadth` across, a pixel and a half thick
    Box,    // filled, from the corner (x, y) to the corner (toX, toY)
    Frame,  // the outline of such a box, `breadth` thick
    Words,  // `text`, centred on (x, y), letters `breadth` high, with a dark edge around them
    Piece,  // the picture's own square with the corner (x, y), `breadth` wide, shown with its corner on
            // (toX, toY)
};

struct Stroke {
    StrokeKind kind = StrokeKind::Line;
    float x = 0;
    float y = 0;
    float toX = 0;
    float toY = 0;
    float breadth = 1;
    Colour colour = Rgb(255, 255, 255);  // with any alpha, not premultiplied
    std::string text = {};

    bool operator==(const Stroke&) const = default;
};

using Sketch = std::vector<Stroke>;

inline Stroke Line(float x, float y, float toX, float toY, float breadth, Colour colour) {
    return {StrokeKind::Line, x, y, toX, toY, breadth, colour, {}};
}

inline Stroke Disc(float x, float y, float across, Colour colour) {
    return {StrokeKind::Disc, x, y, 0, 0, across, colour, {}};
}

inline Stroke Ring(float x, float y, float across, Colour colour) {
    return {StrokeKind::Ring, x, y, 0, 0, across, colour, {}};
}

inline Stroke Box(float x, float y, float width, float height, Colour colour) {
    return {StrokeKind::Box, x, y, x + width, y + height, 1, colour, {}};
}

inline Stroke Outline(float x, float y, float width, float height, float breadth, Colour colour) {
    return {StrokeKind::Frame, x, y, x + width, y + height, breadth, colour, {}};
}

inline Stroke Words(float x, float y, float height, Colour colour, const std::string& text) {
    return {StrokeKind::Words, x, y, 0, 0, height, colour, text};
}

inline Stroke Piece(float x, float y, float breadth, float toX, float toY) {
    return {StrokeKind::Piece, x, y, toX, toY, breadth, Rgb(255, 255, 255), {}};
}

/// `colour` seen through: `share` of its own alpha, 0 to 1.
constexpr Colour Faded(Colour colour, double share) {
    const double held = share < 0 ? 0 : share > 1 ? 1 : share;
    return (colour & 0x00FFFFFF) | static_cast<Colour>(static_cast<double>(colour >> 24) * held) << 24;
}
