#include "kit/relief.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include <QPainter>

#include "kit/noise.h"
#include "kit/shapes.h"

namespace art {
namespace {

// Direction to the light: equally from north and west, and steeply enough that a thing's shadow is as long as
// it is high.
constexpr float LightAcross = -0.52f;
constexpr float LightUp = 0.68f;
constexpr float Contrast = 0.85f;
constexpr std::uint32_t GrainSeed = 1;
constexpr std::uint32_t BumpSeed = 8;
constexpr float Darkest = 0.42f;
constexpr float Brightest = 1.6f;

// What remains of red, green and blue in full shadow: shadows are cool.
constexpr std::array<float, 3> ShadowTint{0.50f, 0.56f, 0.62f};

void Blend(Texel& texel, const QColor& colour, float light, float share) {
    texel.red = std::lerp(texel.red, static_cast<float>(colour.red()) * light, share);
    texel.green = std::lerp(texel.green, static_cast<float>(colour.green()) * light, share);
    texel.blue = std::lerp(texel.blue, static_cast<float>(colour.blue()) * light, share);
}

float Lit(float channel, float light, float shadow, float tint) {
    const float shaded = channel * std::min(light, 1.0f) * std::lerp(1.0f, tint, shadow);
    const float gleam = std::max(0.0f, light - 1.0f) * (1 - shadow);
    return std::clamp(shaded * (1 + 0.75f * gleam) + 34 * gleam, 0.0f, 255.0f);
}

int Channel(float sum, float count) {
    return std::clamp(static_cast<int>(std::lround(sum / count)), 0, 255);
}

// Distance of each point of a grey mask to its edge, in points, row by row.
std::vector<float> InnerDistance(const QImage& mask) {
    const int w = mask.width();
    const int h = mask.height();
    std::vector<float> distance(static_cast<std::size_t>(w) * static_cast<std::size_t>(h));
    const auto at = [&](int x, int y) -> float& {
        return distance[static_cast<std::size_t>(y) * static_cast<std::size_t>(w) +
                        static_cast<std::size_t>(x)];
    };
    for (int y = 0; y < h; ++y) {
        const uchar* row = mask.constScanLine(y);
        for (int x = 0; x < w; ++x)
            at(x, y) = row[x] > 127 ? 1e6f : 0.0f;
    }
    const auto relax = [&](int x, int y, int dx, int dy, float cost) {
        const int nx = x + dx;
        const int ny = y + dy;
        if (nx < 0 || ny < 0 || nx >= w || ny >= h) return;
        at(x, y) = std::min(at(x, y), at(nx, ny) + cost);
    };
    constexpr float Diagonal = 1.4142f;
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            relax(x, y, -1, 0, 1);
            relax(x, y, 0, -1, 1);
            relax(x, y, -1, -1, Diagonal);
            relax(x, y, 1, -1, Diagonal);
        }
    }
    for (int y = h - 1; y >= 0; --y) {
        for (int x = w - 1; x >= 0; --x) {
            relax(x, y, 1, 0, 1);
            relax(x, y, 0, 1, 1);
            relax(x, y, 1, 1, Diagonal);
            relax(x, y, -1, 1, Diagonal);
        }
    }
    return distance;
}

// How far up a solid has risen, 0 to 1, at a distance from its edge: a quarter circle of radius `round`.
float Rise(float distance, float round) {
    if (round <= 0 || distance >= round) return 1;
    const float left = 1 - distance / round;
    return std::sqrt(1 - left * left);
}

}  // namespace

Relief::Relief(int shownWidth, int shownHeight, int hiddenMargin, int finePoints, float grainPeriod)
    : width(shownWidth),
      height(shownHeight),
      margin(hiddenMargin),
      fine(finePoints),
      period(grainPeriod),
      columns((shownWidth + 2 * hiddenMargin) * finePoints),
      rows((shownHeight + 2 * hiddenMargin) * finePoints),
      texels(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows)) {}

QRect Relief::PointsOf(const QPainterPath& path) const {
    const QRectF box = path.boundingRect();
    const auto toPoint = [this](double pixel) { return (pixel + margin) * fine; };
    const QRectF points(QPointF(toPoint(box.left()), toPoint(box.top())),
                        QPointF(toPoint(box.right()), toPoint(box.bottom())));
    return points.toAlignedRect().adjusted(-2, -2, 2, 2).intersected(QRect(0, 0, columns, rows));
}

QImage Relief::MaskOf(const QPainterPath& path, const QRect& points) const {
    QImage mask(points.size(), QImage::Format_Grayscale8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-points.topLeft());
    painter.scale(fine, fine);
    painter.translate(margin, margin);
    painter.fillPath(path, Qt::white);
    return mask;
}

void Relief::Lay(const QPainterPath& path, const Solid& solid) {
    const QRect points = PointsOf(path);
    if (points.isEmpty()) return;
    const QImage mask = MaskOf(path, points);
    std::vector<float> distance;
    if (solid.round > 0) distance = InnerDistance(mask);
    for (int y = 0; y < points.height(); ++y) {
        const uchar* row = mask.constScanLine(y);
        for (int x = 0; x < points.width(); ++x) {
            if (row[x] == 0) continue;
            const int column = points.x() + x;
            const int line = points.y() + y;
            const float px = ToPixel(column);
            const float py = ToPixel(line);
            const float share = static_cast<float>(row[x]) / 255.0f;
            const std::size_t place = static_cast<std::size_t>(y) * static_cast<std::size_t>(points.width()) +
                                      static_cast<std::size_t>(x);
            const float risen =
                distance.empty() ? 1 : Rise(distance[place] / static_cast<float>(fine), solid.round);
            const float rough = solid.grain > 0 ? Noise(px, py, solid.grainSize, period, GrainSeed) : 0;
            const float dent = solid.bump > 0 ? Noise(px, py, solid.grainSize, period, BumpSeed) : 0;
            Texel& texel = texels[Index(column, line)];
            Blend(texel, solid.colour, 1 + solid.grain * rough, share);
            texel.height =
                std::lerp(texel.height, solid.base + solid.height * risen + solid.bump * dent, share);
            texel.glow = std::lerp(texel.glow, solid.glow, share);
            texel.cover = std::max(texel.cover, share);
        }
    }
}

void Relief::LayLine(const QPainterPath& line, double lineWidth, const Solid& solid, Qt::PenCapStyle cap,
                     Qt::PenJoinStyle join) {
    Lay(Widened(line, lineWidth, cap, join), solid);
}

void Relief::Cut(const QPainterPath& path) {
    const QRect points = PointsOf(path);
    if (points.isEmpty()) return;
    const QImage mask = MaskOf(path, points);
    for (int y = 0; y < points.height(); ++y) {
        const uchar* row = mask.constScanLine(y);
        for (int x = 0; x < points.width(); ++x)
            if (row[x] > 127) texels[Index(points.x() + x, points.y() + y)] = {};
    }
}

void Relief::Stain(const QPainterPath& path, const QColor& colour, double strength) {
    const QRect points = PointsOf(path);
    if (points.isEmpty()) return;
    const QImage mask = MaskOf(path, points);
    for (int y = 0; y < points.height(); ++y) {
        const uchar* row = mask.constScanLine(y);
        for (int x = 0; x < points.width(); ++x) {
            const float share = static_cast<float>(row[x]) / 255.0f * static_cast<float>(strength);
            if (row[x] > 0) Blend(texels[Index(points.x() + x, points.y() + y)], colour, 1, share);
        }
    }
}

void Relief::StainLine(const QPainterPath& line, double lineWidth, const QColor& colour, double strength,
                       Qt::PenCapStyle cap) {
    Stain(Widened(line, lineWidth, cap, Qt::RoundJoin), colour, strength);
}

float Relief::HeightAt(int column, int row) const {
    return texels[Index(std::clamp(column, 0, columns - 1), std::clamp(row, 0, rows - 1))].height;
}

// How much of the light is kept off, 0 to 1: walks towards the light until the ray is above everything.
float Relief::Shadow(int column, int row, float highest) const {
    const float step = 1.4142f / static_cast<float>(fine);
    float ray = HeightAt(column, row);
    float shadow = 0;
    for (int x = column - 1, y = row - 1; x >= 0 && y >= 0; --x, --y) {
        ray += step;
        if (ray > highest) break;
        shadow = std::max(shadow, (HeightAt(x, y) - ray) / 0.7f);
        if (shadow >= 1) return 1;
    }
    return shadow;
}

// Light on a slope against light on level ground, which is 1.
float Relief::Slope(int column, int row) const {
    const float half = static_cast<float>(fine) / 2;
    const float east = (HeightAt(column + 1, row) - HeightAt(column - 1, row)) * half;
    const float south = (HeightAt(column, row + 1) - HeightAt(column, row - 1)) * half;
    const float length = std::sqrt(east * east + south * south + 1);
    const float facing = (-(east + south) * LightAcross + LightUp) / length;
    return std::clamp(1 + Contrast * (facing - LightUp), Darkest, Brightest);
}

void Relief::LitPoint(int column, int row, float highest, float* sums) const {
    const Texel& texel = texels[Index(column, row)];
    const float light = std::lerp(Slope(column, row), 1.0f, texel.glow);
    const float shadow = Shadow(column, row, highest) * (1 - texel.glow);
    sums[0] += Lit(texel.red, light, shadow, ShadowTint[0]) * texel.cover;
    sums[1] += Lit(texel.green, light, shadow, ShadowTint[1]) * texel.cover;
    sums[2] += Lit(texel.blue, light, shadow, ShadowTint[2]) * texel.cover;
    sums[3] += texel.cover;
}

QImage Relief::Render(bool seeThrough) const {
    if (!seeThrough) {
        Relief opaque = *this;
        for (Texel& texel : opaque.texels)
            texel.cover = 1;
        return opaque.Render(true);
    }
    float highest = 0;
    for (const Texel& texel : texels)
        highest = std::max(highest, texel.height);
    QImage picture(width, height, QImage::Format_ARGB32);
    const float count = static_cast<float>(fine * fine);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < width; ++x) {
            std::array<float, 4> sums{};
            for (int i = 0; i < fine * fine; ++i) {
                LitPoint((x + margin) * fine + i % fine, (y + margin) * fine + i / fine, highest,
                         sums.data());
            }
            const float weight = std::max(sums[3], 1e-4f);
            line[x] = qRgba(Channel(sums[0], weight), Channel(sums[1], weight), Channel(sums[2], weight),
                            Channel(sums[3] * 255, count));
        }
    }
    return picture;
}

}  // namespace art
