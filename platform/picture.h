// Pictures in main memory: a width, a height and 32-bit pixels. A picture remembers which rectangle was
// changed since the shell last took it to the screen.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

/// 0xAARRGGBB; alpha is 255 or, in a picture with transparency, 0.
using Colour = std::uint32_t;

constexpr Colour Rgb(int red, int green, int blue) {
    return 0xFF000000U | static_cast<Colour>(red) << 16 | static_cast<Colour>(green) << 8 |
           static_cast<Colour>(blue);
}

struct Rectangle {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool Empty() const { return width <= 0 || height <= 0; }
    bool operator==(const Rectangle&) const = default;
};

/// The part that both have; empty when they don't meet.
Rectangle Common(const Rectangle& a, const Rectangle& b);

/// The smallest rectangle that holds both; an empty one adds nothing.
Rectangle Around(const Rectangle& a, const Rectangle& b);

class Picture {
  public:
    Picture() = default;
    /// `columns` by `rows` pixels of `fill`.
    Picture(int columns, int rows, Colour fill = Rgb(0, 0, 0));

    /// What is assigned counts as changed, all of it.
    Picture(const Picture& other);
    Picture& operator=(const Picture& other);
    Picture(Picture&& other) noexcept;
    Picture& operator=(Picture&& other) noexcept;
    ~Picture() = default;

    int Width() const { return width; }
    int Height() const { return height; }
    Rectangle Bounds() const { return {0, 0, width, height}; }

    /// Outside the picture a pixel reads as 0, and writing one does nothing.
    Colour Pixel(int x, int y) const;
    void SetPixel(int x, int y, Colour colour);

    void Fill(Colour colour);

    /// Row `y` from its first pixel; `y` within the picture. Who writes through it calls MarkChanged.
    Colour* Row(int y) { return &pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width)]; }
    const Colour* Row(int y) const {
        return &pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width)];
    }

    void MarkChanged(const Rectangle& rectangle) { changed = Around(changed, rectangle); }
    /// What was changed since the last call, and forgets it.
    Rectangle TakeChanged();

    /// Same size, same pixels.
    bool SameAs(const Picture& other) const;

  private:
    int width = 0;
    int height = 0;
    std::vector<Colour> pixels;
    Rectangle changed;
};

/// A picture as loaded: shared, never changed, null for none.
using PictureRef = std::shared_ptr<const Picture>;
