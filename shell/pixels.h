// Places and sizes in whole pixels, as front ends pass them on; rectangles are those of platform/picture.
#pragma once

#include "platform/picture.h"

struct PixelPoint {
    int x = 0;
    int y = 0;

    bool operator==(const PixelPoint&) const = default;
};

struct PixelSize {
    int width = 0;
    int height = 0;

    bool operator==(const PixelSize&) const = default;
};

/// A place in pixels and parts of them.
struct FinePoint {
    double x = 0;
    double y = 0;
};

inline PixelPoint operator+(PixelPoint a, PixelPoint b) {
    return {a.x + b.x, a.y + b.y};
}

inline PixelPoint operator-(PixelPoint a, PixelPoint b) {
    return {a.x - b.x, a.y - b.y};
}

inline PixelPoint operator*(PixelPoint point, int factor) {
    return {point.x * factor, point.y * factor};
}

/// The pixel in its middle, of two the left and upper one.
inline PixelPoint MiddleOf(const Rectangle& rectangle) {
    return {rectangle.left + (rectangle.width - 1) / 2, rectangle.top + (rectangle.height - 1) / 2};
}

inline bool Contains(const Rectangle& rectangle, PixelPoint point) {
    return point.x >= rectangle.left && point.x < rectangle.left + rectangle.width &&
           point.y >= rectangle.top && point.y < rectangle.top + rectangle.height;
}
