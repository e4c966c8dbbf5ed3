#include "platform/blit.h"

#include <algorithm>
#include <cstdint>

#include "platform/run_time_error.h"

namespace {

constexpr Colour ColourBits = 0x00FFFFFF;

void CombineRow(Colour* target, const Colour* source, int width, RasterOp operation) {
    switch (operation) {
        case RasterOp::SRCCOPY:
            std::copy_n(source, width, target);
            break;
        case RasterOp::SRCAND:
            for (int i = 0; i < width; ++i)
                target[i] &= source[i] | ~ColourBits;
            break;
        case RasterOp::SRCINVERT:
            for (int i = 0; i < width; ++i)
                target[i] ^= source[i] & ColourBits;
            break;
    }
}

// The source pixels [first, last) that target pixel `i` of `targetSize` covers, of `sourceSize`.
struct Span {
    int first;
    int last;
};

Span Covered(int i, int targetSize, int sourceSize) {
    const int first = static_cast<int>(static_cast<std::int64_t>(i) * sourceSize / targetSize);
    const int last = static_cast<int>((static_cast<std::int64_t>(i) + 1) * sourceSize / targetSize);
    return {first, std::max(last, first + 1)};
}

Colour Average(const Picture& source, int left, int top, Span columns, Span rows) {
    std::uint64_t red = 0;
    std::uint64_t green = 0;
    std::uint64_t blue = 0;
    for (int y = rows.first; y < rows.last; ++y) {
        const Colour* row = source.Row(top + y) + left;
        for (int x = columns.first; x < columns.last; ++x) {
            red += row[x] >> 16 & 0xFF;
            green += row[x] >> 8 & 0xFF;
            blue += row[x] & 0xFF;
        }
    }
    const auto count = static_cast<std::uint64_t>(columns.last - columns.first) *
                       static_cast<std::uint64_t>(rows.last - rows.first);
    const auto mean = [count](std::uint64_t sum) { return static_cast<int>((sum + count / 2) / count); };
    return Rgb(mean(red), mean(green), mean(blue));
}

}  // namespace

void BitBlt(Picture& target, int x, int y, int width, int height, const Picture& source, int sourceX,
            int sourceY, RasterOp operation) {
    const Rectangle wanted{x, y, width, height};
    const Rectangle served{x - sourceX, y - sourceY, source.Width(), source.Height()};
    const Rectangle part = Common(Common(wanted, served), target.Bounds());
    if (part.Empty()) return;
    for (int row = part.top; row < part.top + part.height; ++row) {
        const Colour* from = source.Row(row - y + sourceY) + (part.left - x + sourceX);
        CombineRow(target.Row(row) + part.left, from, part.width, operation);
    }
    target.MarkChanged(part);
}

void StretchBlt(Picture& target, const Rectangle& to, const Picture& source, const Rectangle& from) {
    if (Common(from, source.Bounds()) != from)
        throw RunTimeError(Fault::Subscript, "a stretch from outside its picture");
    const Rectangle part = Common(to, target.Bounds());
    for (int y = part.top; y < part.top + part.height; ++y) {
        const Span rows = Covered(y - to.top, to.height, from.height);
        for (int x = part.left; x < part.left + part.width; ++x) {
            const Span columns = Covered(x - to.left, to.width, from.width);
            target.Row(y)[x] = Average(source, from.left, from.top, columns, rows);
        }
    }
    if (!part.Empty()) target.MarkChanged(part);
}
