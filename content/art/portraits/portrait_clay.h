// A portrait under way: a surface of heights with paint on it, seen from the front. Faces, hair and cloth are
// modelled as heights, painted, and lit together from the north-west.
#pragma once

#include <cmath>
#include <vector>

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

namespace art {

constexpr int PortraitSize = 140;

// How a surface takes the light.
enum class Stuff : unsigned char { Backdrop, Skin, Cloth, Hair, Shell };

// All lengths are pixels of the finished picture, heights grow towards the viewer.
class Clay {
  public:
    static constexpr int Fine = 4;

    Clay();

    // Lays a new layer: every point inside the outline takes the height that shape(x, y, edge) gives, `edge`
    // being the distance to the outline. A NaN leaves the point as it was.
    template <typename Shape>
    void Form(const QPainterPath& outline, Stuff stuff, const QColor& colour, Shape shape) {
        Begin(outline);
        ++layer;
        EachMasked([&](int i, float x, float y, float edge) {
            const float z = shape(x, y, edge);
            if (!std::isnan(z)) Put(i, stuff, colour, z);
        });
    }

    // Raises (or sinks) the layer last laid in a soft oval, turned clockwise by `turn` degrees.
    void Mound(double x, double y, double radiusX, double radiusY, double rise, double turn = 0);

    // A soft groove or fold along a line on the layer last laid.
    void Crease(const QPainterPath& line, double width, double rise);

    // Moves every point inside: visit(x, y, edge, height, colour) may change the last two.
    template <typename Visitor>
    void Work(const QPainterPath& outline, Visitor visit) {
        Begin(outline);
        EachMasked(
            [&](int i, float x, float y, float edge) { visit(x, y, edge, heights[At(i)], PaintAt(i)); });
    }

    // Soft paint in an oval.
    void Blush(double x, double y, double radiusX, double radiusY, const QColor& colour, double strength);

    float HeightAt(double x, double y) const;

    QImage Render() const;

  private:
    friend class ClayBrush;
    static constexpr int Points = PortraitSize * Fine;

    static std::size_t At(int i) { return static_cast<std::size_t>(i); }
    static float ToPixel(int point) { return (static_cast<float>(point) + 0.5f) / static_cast<float>(Fine); }
    QRgb& PaintAt(int i) { return reinterpret_cast<QRgb*>(paint.scanLine(i / Points))[i % Points]; }
    // Makes ready mask and edge distances of an outline, within the box around it alone.
    void Begin(const QPainterPath& outline);
    template <typename Visitor>
    void EachMasked(Visitor visit) {
        for (int row = 0; row < box.height(); ++row) {
            const uchar* shown = mask.constScanLine(row);
            for (int column = 0; column < box.width(); ++column) {
                if (shown[column] <= 127) continue;
                const float edge = edges[At(row * box.width() + column)] / static_cast<float>(Fine);
                visit((box.y() + row) * Points + box.x() + column, ToPixel(box.x() + column),
                      ToPixel(box.y() + row), edge);
            }
        }
    }
    void Put(int i, Stuff stuff, const QColor& colour, float z);
    float Slant(int i, int step) const;
    float Shade(int i) const;
    void Light(int i, float hollow, float* sums) const;

    int layer = 0;
    std::vector<float> heights;
    std::vector<int> layers;
    std::vector<Stuff> stuffs;
    QImage paint;
    QRect box;
    QImage mask;
    std::vector<float> edges;
};

// A painter on the colours, in pixels of the finished picture.
class ClayBrush : public QPainter {
  public:
    explicit ClayBrush(Clay& clay);
};

}  // namespace art
