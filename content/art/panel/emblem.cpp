#include "panel/emblem.h"

#include "kit/canvas.h"
#include "kit/palette.h"
#include "kit/shapes.h"

namespace art {

QPainterPath Shield(double x, double y, double size) {
    const double half = size * 0.42;
    const double top = y - size / 2;
    QPainterPath path(QPointF(x - half, top));
    path.lineTo(x + half, top);
    path.lineTo(x + half, y + size * 0.08);
    path.quadTo(x + half * 0.9, y + size * 0.34, x, y + size / 2);
    path.quadTo(x - half * 0.9, y + size * 0.34, x - half, y + size * 0.08);
    path.closeSubpath();
    return path;
}

void LayBadge(Relief& relief, double x, double y, double size, float base) {
    const auto unit = static_cast<float>(size / 32);
    relief.Lay(Shield(x, y, size), {.colour = Colour(Ink::Sheen),
                                    .height = 2 * unit,
                                    .base = base,
                                    .round = 1.6f * unit,
                                    .grain = 0.05f});
    relief.Lay(Shield(x, y - size * 0.01, size * 0.84), {.colour = Colour(Ink::Armour),
                                                         .height = -0.8f * unit,
                                                         .base = base + 2 * unit,
                                                         .round = 0.8f * unit,
                                                         .grain = 0.05f});
    const double barWidth = size * 0.125;
    constexpr double Lengths[] = {0.36, 0.46, 0.36};
    for (int i = 0; i < 3; ++i) {
        const double left = x + (i - 1) * size * 0.2 - barWidth / 2;
        relief.Lay(Rect(left, y - size * 0.1, barWidth, size * Lengths[i], barWidth * 0.1),
                   {.colour = Colour(Ink::Gold),
                    .height = 1.4f * unit,
                    .base = base + 1.2f * unit,
                    .round = 1.2f * unit,
                    .grain = 0.04f});
    }
    relief.Lay(Star(x, y - size * 0.26, size * 0.15, size * 0.064, 5, -1.5708),
               {.colour = Colour(Ink::Scarlet),
                .height = 1.2f * unit,
                .base = base + 1.2f * unit,
                .round = 1.2f * unit,
                .grain = 0.04f});
}

void LayRivet(Relief& relief, double x, double y, double radius, float base) {
    relief.Lay(Ellipse(x, y, radius + 0.7, radius + 0.7),
               {.colour = Colour(Ink::Armour), .height = -0.5f, .base = base, .round = 0.6f});
    relief.Lay(
        Ellipse(x, y, radius, radius),
        {.colour = Colour(Ink::Edge), .height = 1, .base = base, .round = static_cast<float>(radius) * 0.8f});
    relief.StainLine(Trace({{x - radius * 0.6, y + radius * 0.5}, {x + radius * 0.6, y - radius * 0.5}}), 0.6,
                     Colour(Ink::Engraving), 0.9);
}

QImage Icon(int size) {
    Relief relief(size, size, 1, size < 48 ? 8 : 4, static_cast<float>(size));
    LayBadge(relief, size * 0.5, size * 0.5, size * 0.98, 0);
    return Settle(relief.Render(true), 0.02);
}

}  // namespace art
