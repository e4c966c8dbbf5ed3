// A picture under way: colour and height of every point at several times the final resolution. It is lit from
// the north-west when it is rendered, so that whatever is drawn casts its shadow to the south-east by itself.
#pragma once

#include <cstddef>
#include <vector>

#include <QColor>
#include <QImage>
#include <QPainterPath>

namespace art {

// What a shape is made of and how it stands. Lengths are pixels of the finished picture.
struct Solid {
    QColor colour;
    float height = 0;         // of the top above the base
    float base = 0;           // height of the foot above the ground; below 0 is dug in
    float round = 0;          // distance from the edge over which it rises; 0 is sheer
    float grain = 0.06f;      // how much its lightness varies, as a share
    float grainSize = 1.25f;  // width of the grain's bumps
    float bump = 0;           // roughness of its surface
    float glow = 0;           // how much it shines by itself: 1 knows no light side and no shadow
};

struct Texel {
    float red = 0, green = 0, blue = 0;
    float height = 0;
    float cover = 0;
    float glow = 0;
};

class Relief {
  public:
    // `margin` pixels around the picture are drawn and lit too but never shown: what stands or runs there
    // casts its shadow in. `period` is the repeat of all grain.
    Relief(int shownWidth, int shownHeight, int hiddenMargin, int finePoints, float grainPeriod = 20);

    void Lay(const QPainterPath& path, const Solid& solid);
    void LayLine(const QPainterPath& line, double width, const Solid& solid,
                 Qt::PenCapStyle cap = Qt::RoundCap, Qt::PenJoinStyle join = Qt::RoundJoin);

    // Takes away what was laid there.
    void Cut(const QPainterPath& path);

    // Colour alone, height stays.
    void Stain(const QPainterPath& path, const QColor& colour, double strength = 1);
    void StainLine(const QPainterPath& line, double width, const QColor& colour, double strength = 1,
                   Qt::PenCapStyle cap = Qt::RoundCap);

    // Calls visit(x, y, texel) for each point, with x and y in pixels of the finished picture.
    template <typename Visitor>
    void Each(Visitor visit) {
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                visit(ToPixel(column), ToPixel(row), texels[Index(column, row)]);
            }
        }
    }

    // The lit picture without its margin. Opaque, or see-through where no solid covers.
    QImage Render(bool seeThrough = false) const;

  private:
    struct Light {
        float red, green, blue;
    };

    std::size_t Index(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
               static_cast<std::size_t>(column);
    }
    float ToPixel(int point) const {
        return (static_cast<float>(point) + 0.5f) / static_cast<float>(fine) - static_cast<float>(margin);
    }
    QRect PointsOf(const QPainterPath& path) const;
    QImage MaskOf(const QPainterPath& path, const QRect& points) const;
    float HeightAt(int column, int row) const;
    float Shadow(int column, int row, float highest) const;
    float Slope(int column, int row) const;
    void LitPoint(int column, int row, float highest, float* sums) const;

    int width, height, margin, fine;
    float period;
    int columns, rows;
    std::vector<Texel> texels;
};

}  // namespace art
