#include "panel/silhouettes.h"

#include <array>
#include <span>

#include <QTransform>

#include "kit/shapes.h"

namespace art {
namespace {

struct Limb {
    double x, y, toX, toY, width;
};

constexpr Limb Prone[] = {
    {1, 17.6, 8, 16.6, 2.4},       {8, 16.6, 16, 14.2, 3.4},      {16, 14.6, 17.6, 17.6, 1.8},
    {16.2, 11.2, 16.6, 11.4, 4.6}, {14.2, 9.8, 18.4, 10.2, 1.6},  {17, 13.6, 26, 12.8, 1.4},
    {15.6, 15, 19, 13.8, 2},       {21.4, 13.4, 22.4, 17.6, 1.2},
};
constexpr Limb Crouch[] = {
    {5.6, 18.4, 8.6, 18.4, 1.8},   {6.4, 18, 10.4, 17.4, 2.2},  {10.4, 17.2, 10.2, 12.8, 2.8},
    {10.2, 13.2, 14.6, 12.6, 2.8}, {14.6, 12.8, 14.6, 18, 2.2}, {14.4, 18.4, 16.6, 18.4, 1.8},
    {10.4, 12.4, 11.6, 7, 3.8},    {12.6, 4, 13, 4.2, 4},       {11, 3, 14.6, 3, 1.8},
    {12, 7.8, 16, 9, 1.8},         {11.2, 8.6, 24.6, 7.4, 1.4}, {18, 8.4, 18.4, 10.6, 1.3},
};
constexpr Limb Stand[] = {
    {9.6, 18.4, 11.8, 18.4, 1.8}, {10.2, 18, 11.4, 11.4, 2.3}, {14.6, 18.4, 16.6, 18.4, 1.8},
    {14.8, 18, 12.6, 11.4, 2.3},  {12, 11.6, 12.2, 5.6, 4.2},  {13, 2.2, 13.2, 2.4, 3.8},
    {11.2, 1.2, 15, 1.2, 1.6},    {12.8, 6, 17, 7, 1.7},       {10.6, 6.6, 24.6, 5.4, 1.4},
    {18, 6.4, 18.4, 8.8, 1.3},    {9.6, 7, 11.6, 6.4, 1.8},
};
constexpr Limb Run[] = {
    {2.6, 15.8, 3.4, 17.8, 1.6}, {3.4, 16, 8, 14.4, 2.2},     {8, 14.4, 10.6, 11.2, 2.6},
    {11.4, 11.2, 16.2, 13, 2.6}, {16.2, 13, 16.6, 17.8, 2.2}, {16.6, 18.4, 18.8, 18.4, 1.7},
    {11, 11.2, 13.6, 6, 4},      {15.6, 2.8, 15.8, 3, 3.8},   {13.8, 1.8, 17.6, 1.8, 1.7},
    {14, 6.6, 17.4, 9.4, 1.8},   {10.4, 9.6, 22, 7.2, 1.4},   {12, 7, 9, 9.2, 1.8},
    {17.4, 8.4, 18, 10.4, 1.2},
};
constexpr std::array<std::span<const Limb>, SilhouetteStances> Figures{Prone, Crouch, Stand, Run};

}  // namespace

QPainterPath Silhouette(int stance, double x, double y, double scale) {
    QPainterPath figure;
    for (const Limb& limb : Figures[static_cast<std::size_t>(stance)]) {
        figure.addPath(Widened(Trace({{limb.x, limb.y}, {limb.toX, limb.toY}}), limb.width, Qt::RoundCap,
                               Qt::RoundJoin));
    }
    figure.setFillRule(Qt::WindingFill);
    QTransform place;
    place.translate(x, y).scale(scale, scale);
    return place.map(figure.simplified());
}

QPainterPath MuzzleFlash(double x, double y, double size) {
    return Polygon({{x, y - size * 0.15},
                    {x + size * 0.5, y - size * 0.8},
                    {x + size * 0.5, y - size * 0.25},
                    {x + size * 1.2, y},
                    {x + size * 0.5, y + size * 0.25},
                    {x + size * 0.5, y + size * 0.8},
                    {x, y + size * 0.15}});
}

}  // namespace art
