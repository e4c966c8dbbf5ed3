#include "tiles/overlays.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "kit/canvas.h"
#include "kit/noise.h"
#include "kit/palette.h"
#include "kit/relief.h"
#include "kit/shapes.h"

namespace art {
namespace {

constexpr int BlowupSize = 60;
constexpr double Middle = 30;

// One frame: how wide the fire and the smoke are, pixels, how far sparks have flown, and how much smoke has
// torn.
struct Burst {
    float flash, fire, smoke, sparks, torn;
};

constexpr std::array<Burst, OverlayFrames> Bursts{{
    {16, 15, 0, 24, 0},
    {10, 21, 14, 28, 0},
    {0, 19, 24, 29, 0},
    {0, 10, 26, 0, 0.2f},
    {0, 0, 28, 0, 0.44f},
}};

// Puffs on a disc, each a dome; the outer ones lower.
void Puffs(Relief& relief, float reach, int count, float base, Ink dark, Ink light, float glow,
           std::uint32_t seed) {
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const float angle = static_cast<float>(i) * 2.4f + dice.Roll(-0.3f, 0.3f);
        const float share = 1 - static_cast<float>(i) / static_cast<float>(count);
        const float radius = reach * dice.Roll(0.26f, 0.4f);
        const float out = (reach - radius) * std::sqrt(share);
        relief.Lay(Lump(Middle + static_cast<double>(out * std::cos(angle)),
                        Middle + static_cast<double>(out * std::sin(angle)), static_cast<double>(radius),
                        0.16, static_cast<std::uint32_t>(dice.Pick(99999))),
                   {.colour = Between(
                        dark, light,
                        static_cast<double>(std::clamp(1 - share + dice.Roll(-0.25f, 0.25f), 0.0f, 1.0f))),
                    .height = radius * 0.8f,
                    .base = base + (1 - share) * reach * 0.5f,
                    .round = radius,
                    .grain = 0.12f,
                    .grainSize = 2,
                    .bump = 0.4f,
                    .glow = glow});
    }
}

void Sparks(Relief& relief, float reach, int frame) {
    constexpr int Count = 26;
    Dice dice(1003);
    for (int i = 0; i < Count; ++i) {
        const auto angle = static_cast<double>(dice.Roll(0, 2 * std::numbers::pi_v<float>));
        const auto far = static_cast<double>(reach * dice.Roll(0.65f, 1));
        const double near = far * (frame == 1 ? 0.3 : 0.78);
        const QPainterPath ray = Trace({{Middle + near * std::cos(angle), Middle + near * std::sin(angle)},
                                        {Middle + far * std::cos(angle), Middle + far * std::sin(angle)}});
        relief.LayLine(ray, 1.5,
                       {.colour = Colour(i % 3 == 0 ? Ink::Glow : Ink::Gold), .grain = 0, .glow = 1});
    }
}

// Clods of earth thrown outward.
void Clods(Relief& relief, float reach) {
    constexpr int Count = 14;
    Dice dice(1009);
    for (int i = 0; i < Count; ++i) {
        const auto angle = static_cast<double>(dice.Roll(0, 2 * std::numbers::pi_v<float>));
        const auto far = static_cast<double>(reach * dice.Roll(0.8f, 1));
        relief.Lay(Lump(Middle + far * std::cos(angle), Middle + far * std::sin(angle),
                        static_cast<double>(dice.Roll(0.8f, 1.6f)), 0.3, static_cast<std::uint32_t>(i)),
                   {.colour = Colour(i % 2 == 0 ? Ink::Loam : Ink::Soil), .height = 1, .round = 0.8f});
    }
}

// Holes that the wind tears into the smoke.
void Tear(QImage& picture, float torn) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const float out = std::hypot(static_cast<float>(x) - 29.5f, static_cast<float>(y) - 29.5f) / 30;
            const float hole =
                0.5f + 0.5f * Fractal(static_cast<float>(x), static_cast<float>(y), 7.5f, 60, 1013);
            if (torn > 0 && hole < torn * (0.75f + 0.55f * out)) picture.setPixel(x, y, 0u);
        }
    }
}

}  // namespace

QImage BlowupFrame(int frame) {
    const Burst& burst = Bursts[static_cast<std::size_t>(frame - 1)];
    Relief relief(BlowupSize, BlowupSize, 1, 4, 60);
    if (burst.sparks > 0) Clods(relief, burst.sparks);
    if (burst.smoke > 0)
        Puffs(relief, burst.smoke, 34, 0, Ink::Asphalt, frame < 4 ? Ink::Ash : Ink::Concrete, 0.25f,
              static_cast<std::uint32_t>(1020 + frame));
    if (burst.sparks > 0) Sparks(relief, burst.sparks, frame);
    if (burst.fire > 0) {
        Puffs(relief, burst.fire, 26, 14, Ink::Brick, Ink::Gold, 0.75f,
              static_cast<std::uint32_t>(1030 + frame));
        if (frame <= 3)
            Puffs(relief, burst.fire * 0.55f, 12, 28, Ink::Amber, Ink::Glow, 0.85f,
                  static_cast<std::uint32_t>(1040 + frame));
    }
    if (burst.flash > 0) {
        const auto flash = static_cast<double>(burst.flash);
        relief.Lay(Star(Middle, Middle, flash * 1.5, flash * 0.6, 9, 0.3),
                   {.colour = Colour(Ink::Glow), .base = 60, .grain = 0, .glow = 1});
        relief.Lay(Ellipse(Middle, Middle, flash * 0.62, flash * 0.62),
                   {.colour = Colour(Ink::Snow), .base = 60, .grain = 0, .glow = 1});
    }
    QImage picture = Settle(relief.Render(true));
    Tear(picture, burst.torn);
    return picture;
}

QImage TargetFrame(int frame) {
    Relief relief(CellSize, CellSize, 1, 8);
    const double radius = 10.2 - frame * 1.5;
    const Solid dark{.colour = Colour(Ink::Maroon), .grain = 0};
    const Solid bright{.colour = Colour(frame % 2 == 1 ? Ink::Scarlet : Ink::Gold), .grain = 0};
    const QPainterPath ring = Ellipse(10, 10, radius, radius);
    relief.LayLine(ring.translated(0.5, 0.5), 1.6, dark);
    relief.LayLine(ring, 1.5, bright);
    for (const QPointF outward : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
        const QPainterPath tick = Trace({QPointF(10, 10) + outward * (radius - 2.2),
                                         QPointF(10, 10) + outward * std::min(radius + 1.8, 9.4)});
        relief.LayLine(tick, 1.4, bright, Qt::FlatCap);
    }
    if (frame >= 3)
        relief.Lay(Ellipse(10, 10, 0.6 + (frame - 3) * 0.5, 0.6 + (frame - 3) * 0.5),
                   {.colour = Colour(Ink::Glow), .grain = 0});
    return Settle(relief.Render(true), 0);
}

}  // namespace art
