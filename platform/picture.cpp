#include "platform/picture.h"

#include <algorithm>
#include <utility>

Rectangle Common(const Rectangle& a, const Rectangle& b) {
    const int left = std::max(a.left, b.left);
    const int top = std::max(a.top, b.top);
    const int right = std::min(a.left + a.width, b.left + b.width);
    const int bottom = std::min(a.top + a.height, b.top + b.height);
    if (right <= left || bottom <= top) return {};
    return {left, top, right - left, bottom - top};
}

Rectangle Around(const Rectangle& a, const Rectangle& b) {
    if (a.Empty()) return b;
    if (b.Empty()) return a;
    const int left = std::min(a.left, b.left);
    const int top = std::min(a.top, b.top);
    const int right = std::max(a.left + a.width, b.left + b.width);
    const int bottom = std::max(a.top + a.height, b.top + b.height);
    return {left, top, right - left, bottom - top};
}

Picture::Picture(int columns, int rows, Colour fill)
    : width(columns),
      height(rows),
      pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), fill),
      changed(Bounds()) {}

Picture::Picture(const Picture& other)
    : width(other.width), height(other.height), pixels(other.pixels), changed(other.Bounds()) {}

Picture& Picture::operator=(const Picture& other) {
    if (this != &other) *this = Picture(other);
    return *this;
}

Picture::Picture(Picture&& other) noexcept
    : width(std::exchange(other.width, 0)),
      height(std::exchange(other.height, 0)),
      pixels(std::exchange(other.pixels, {})),
      changed(Bounds()) {}

Picture& Picture::operator=(Picture&& other) noexcept {
    std::swap(width, other.width);
    std::swap(height, other.height);
    std::swap(pixels, other.pixels);
    changed = Bounds();
    return *this;
}

Colour Picture::Pixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= width || y >= height) return 0;
    return Row(y)[x];
}

void Picture::SetPixel(int x, int y, Colour colour) {
    if (x < 0 || y < 0 || x >= width || y >= height) return;
    Row(y)[x] = colour;
    MarkChanged({x, y, 1, 1});
}

void Picture::Fill(Colour colour) {
    std::fill(pixels.begin(), pixels.end(), colour);
    MarkChanged(Bounds());
}

Rectangle Picture::TakeChanged() {
    return std::exchange(changed, Rectangle{});
}

bool Picture::SameAs(const Picture& other) const {
    return width == other.width && height == other.height && pixels == other.pixels;
}
