#include "portraits/portrait_clay.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "kit/palette.h"
#include "kit/relief.h"

namespace art {
namespace {

constexpr float BackdropDepth = -14;

// Direction to the lamp, of length 1: from the upper left and well in front.
constexpr float LampX = -0.50f;
constexpr float LampY = -0.52f;
constexpr float LampZ = 0.69f;

// How each stuff takes the lamp: how far light creeps round it by red, green and blue, and its gloss.
struct Finish {
    std::array<float, 3> wrap;
    float gloss, sharpness;
};
constexpr std::array<Finish, 5> Finishes{{
    {{0.3f, 0.3f, 0.3f}, 0, 8},          // backdrop
    {{0.42f, 0.26f, 0.20f}, 0.12f, 14},  // skin
    {{0.22f, 0.22f, 0.24f}, 0.03f, 8},   // cloth
    {{0.30f, 0.28f, 0.26f}, 0.16f, 10},  // hair
    {{0.20f, 0.20f, 0.22f}, 0.10f, 14},  // shell
}};

constexpr std::array<float, 3> Lamp{0.84f, 0.81f, 0.77f};
constexpr std::array<float, 3> Sky{0.30f, 0.32f, 0.37f};
constexpr std::array<float, 3> Rim{0.16f, 0.20f, 0.27f};

// The mean around each point, by two passes of a running sum.
std::vector<float> Blurred(const std::vector<float>& field, int side, int reach) {
    std::vector<float> once(field.size());
    std::vector<float> twice(field.size());
    const auto pass = [&](const std::vector<float>& from, std::vector<float>& to, int along, int across) {
        for (int line = 0; line < side; ++line) {
            const auto at = [&](int i) {
                return static_cast<std::size_t>(std::clamp(i, 0, side - 1) * along + line * across);
            };
            float sum = 0;
            for (int i = -reach; i <= reach; ++i)
                sum += from[at(i)];
            for (int i = 0; i < side; ++i) {
                to[at(i)] = sum / static_cast<float>(2 * reach + 1);
                sum += from[at(i + reach + 1)] - from[at(i - reach)];
            }
        }
    };
    pass(field, once, 1, side);
    pass(once, twice, side, 1);
    return twice;
}

float Bump(float square) {
    return square >= 1 ? 0 : (1 - square) * (1 - square);
}

}  // namespace

Clay::Clay()
    : heights(At(Points * Points), BackdropDepth),
      layers(At(Points * Points), 0),
      stuffs(At(Points * Points), Stuff::Backdrop),
      paint(Points, Points, QImage::Format_RGB32) {
    QPainter painter(&paint);
    QRadialGradient wall(QPointF(Points * 1.0, Points * 0.55), Points * 1.15);
    wall.setColorAt(0, Colour(Ink::Denim));
    wall.setColorAt(0.45, Between(Ink::Gunmetal, Ink::Denim, 0.75));
    wall.setColorAt(1, Colour(Ink::Gunmetal));
    painter.fillRect(paint.rect(), wall);
}

void Clay::Begin(const QPainterPath& outline) {
    const QRectF fine(outline.boundingRect().topLeft() * Fine, outline.boundingRect().size() * Fine);
    box = fine.toAlignedRect().adjusted(-2, -2, 2, 2).intersected(QRect(0, 0, Points, Points));
    mask = QImage(box.size(), QImage::Format_Grayscale8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-box.topLeft());
    painter.scale(Fine, Fine);
    painter.fillPath(outline, Qt::white);
    painter.end();
    edges = InnerDistance(mask);
}

void Clay::Put(int i, Stuff stuff, const QColor& colour, float z) {
    heights[At(i)] = z;
    layers[At(i)] = layer;
    stuffs[At(i)] = stuff;
    PaintAt(i) = colour.rgb();
}

void Clay::Mound(double x, double y, double radiusX, double radiusY, double rise, double turn) {
    const double angle = turn * 3.14159265 / 180;
    const auto c = static_cast<float>(std::cos(angle));
    const auto s = static_cast<float>(std::sin(angle));
    const double reach = std::max(radiusX, radiusY);
    const auto first = [](double at) { return std::max(0, static_cast<int>(at * Fine)); };
    const auto last = [](double at) { return std::min(Points - 1, static_cast<int>(at * Fine) + 1); };
    for (int row = first(y - reach); row <= last(y + reach); ++row) {
        for (int column = first(x - reach); column <= last(x + reach); ++column) {
            const int i = row * Points + column;
            if (layers[At(i)] != layer) continue;
            const float dx = ToPixel(column) - static_cast<float>(x);
            const float dy = ToPixel(row) - static_cast<float>(y);
            const float u = (dx * c + dy * s) / static_cast<float>(radiusX);
            const float v = (dy * c - dx * s) / static_cast<float>(radiusY);
            heights[At(i)] += static_cast<float>(rise) * Bump(u * u + v * v);
        }
    }
}

void Clay::Crease(const QPainterPath& line, double width, double rise) {
    constexpr int Steps = 24;
    std::array<QPointF, Steps + 1> places;
    for (int k = 0; k <= Steps; ++k)
        places[At(k)] = line.pointAtPercent(static_cast<double>(k) / Steps);
    const QRectF reach = line.boundingRect().adjusted(-width, -width, width, width);
    for (int row = std::max(0, static_cast<int>(reach.top() * Fine));
         row <= std::min(Points - 1, static_cast<int>(reach.bottom() * Fine)); ++row) {
        for (int column = std::max(0, static_cast<int>(reach.left() * Fine));
             column <= std::min(Points - 1, static_cast<int>(reach.right() * Fine)); ++column) {
            const int i = row * Points + column;
            if (layers[At(i)] != layer) continue;
            double nearest = 1e9;
            double share = 0;
            for (int k = 0; k <= Steps; ++k) {
                const double dx = ToPixel(column) - places[At(k)].x();
                const double dy = ToPixel(row) - places[At(k)].y();
                if (dx * dx + dy * dy < nearest) {
                    nearest = dx * dx + dy * dy;
                    share = static_cast<double>(k) / Steps;
                }
            }
            const double fade = std::min(1.0, 4 * std::min(share + 0.08, 1.08 - share));
            heights[At(i)] +=
                static_cast<float>(rise * fade) * Bump(static_cast<float>(nearest / (width * width)));
        }
    }
}

ClayBrush::ClayBrush(Clay& clay) : QPainter(&clay.paint) {
    setRenderHint(QPainter::Antialiasing);
    scale(Clay::Fine, Clay::Fine);
}

void Clay::Blush(double x, double y, double radiusX, double radiusY, const QColor& colour, double strength) {
    ClayBrush painter(*this);
    QRadialGradient soft(QPointF(0, 0), 1);
    QColor inner = colour;
    inner.setAlphaF(static_cast<float>(strength));
    QColor middle = colour;
    middle.setAlphaF(static_cast<float>(strength * 0.45));
    QColor outer = colour;
    outer.setAlphaF(0);
    soft.setColorAt(0, inner);
    soft.setColorAt(0.55, middle);
    soft.setColorAt(1, outer);
    painter.translate(x, y);
    painter.scale(radiusX, radiusY);
    painter.setPen(Qt::NoPen);
    painter.setBrush(soft);
    painter.drawEllipse(QPointF(0, 0), 1, 1);
}

float Clay::HeightAt(double x, double y) const {
    const int column = std::clamp(static_cast<int>(x * Fine), 0, Points - 1);
    const int row = std::clamp(static_cast<int>(y * Fine), 0, Points - 1);
    return heights[At(row * Points + column)];
}

float Clay::Slant(int i, int step) const {
    const int column = i % Points;
    const int row = i / Points;
    const int place = step == 1 ? column : row;
    const int before = place > 0 ? i - step : i;
    const int after = place < Points - 1 ? i + step : i;
    // A layer's edge is no cliff to be lit: the slope is taken on its own side.
    const float here = heights[At(i)];
    const float low = layers[At(before)] == layers[At(i)] ? heights[At(before)] : here;
    const float high = layers[At(after)] == layers[At(i)] ? heights[At(after)] : here;
    return (high - low) * static_cast<float>(Fine) / 2;
}

// How much of the lamp is kept off a point, 0 to 1: walks towards the lamp until above everything near.
float Clay::Shade(int i) const {
    constexpr int Stride = 2;
    constexpr int Walk = 26 * Fine / Stride;
    const float climb = LampZ / -LampX * static_cast<float>(Stride) / static_cast<float>(Fine) * 0.92f;
    float ray = heights[At(i)] + 0.3f;
    float shade = 0;
    int column = i % Points;
    int row = i / Points;
    for (int step = 1; step < Walk; ++step) {
        column -= Stride;
        row -= Stride;
        if (column < 0 || row < 0) break;
        ray += climb;
        const float over = heights[At(row * Points + column)] - ray;
        shade = std::max(shade, over / (1.2f + 0.16f * static_cast<float>(step)));
        if (shade >= 1) return 1;
    }
    return shade;
}

void Clay::Light(int i, float hollow, float* sums) const {
    const QRgb colour = reinterpret_cast<const QRgb*>(paint.constScanLine(i / Points))[i % Points];
    const std::array<float, 3> base{static_cast<float>(qRed(colour)), static_cast<float>(qGreen(colour)),
                                    static_cast<float>(qBlue(colour))};
    const Stuff stuff = stuffs[At(i)];
    if (stuff == Stuff::Backdrop) {
        const float dim = 1 - 0.22f * std::clamp(hollow / 16, 0.0f, 1.0f);
        for (std::size_t c = 0; c < 3; ++c)
            sums[c] += base[c] * dim;
        return;
    }
    const Finish& finish = Finishes[static_cast<std::size_t>(stuff)];
    const float east = Slant(i, 1);
    const float south = Slant(i, Points);
    const float length = std::sqrt(east * east + south * south + 1);
    const float facing = (-east * LampX - south * LampY + LampZ) / length;
    const float open = 1 - Shade(i);
    const float inset = std::clamp(1 - hollow * 0.085f, 0.45f, 1.06f);
    const float halfway = (-east * LampX - south * LampY + LampZ + 1) / length / 1.8385f;
    const float gleam = finish.gloss * std::pow(std::clamp(halfway, 0.0f, 1.0f), finish.sharpness * 2) * open;
    const float away = std::clamp((-east * 0.9f - south * 0.2f) / length, 0.0f, 1.0f);
    for (std::size_t c = 0; c < 3; ++c) {
        const float wrap = finish.wrap[c];
        const float lit =
            std::max(0.0f, (facing + wrap) / (1 + wrap)) * (0.18f * wrap + (1 - 0.18f * wrap) * open);
        const float edge = Rim[c] * away * away;
        sums[c] += base[c] * ((Sky[c] + edge) * inset + Lamp[c] * lit) + 235 * gleam;
    }
}

QImage Clay::Render() const {
    const std::vector<float> mean = Blurred(heights, Points, 4 * Fine);
    QImage picture(PortraitSize, PortraitSize, QImage::Format_ARGB32);
    for (int y = 0; y < PortraitSize; ++y) {
        for (int x = 0; x < PortraitSize; ++x) {
            std::array<float, 3> sums{};
            for (int k = 0; k < Fine * Fine; ++k) {
                const int i = (y * Fine + k / Fine) * Points + x * Fine + k % Fine;
                Light(i, mean[At(i)] - heights[At(i)], sums.data());
            }
            const auto channel = [](float sum) {
                return std::clamp(static_cast<int>(std::lround(sum / (Fine * Fine))), 0, 255);
            };
            picture.setPixel(x, y, qRgb(channel(sums[0]), channel(sums[1]), channel(sums[2])));
        }
    }
    return picture;
}

}  // namespace art
