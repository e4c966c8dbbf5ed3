#include "panel/navy_steel.h"

#include "kit/glyphs.h"
#include "kit/shapes.h"
#include "panel/slate.h"

namespace art {

void NavyGround(Relief& relief) {
    SteelGround(relief, Ink::Harbour, Ink::Serge);
}

void LayNavyPlate(Relief& relief, double x, double y, double width, double height) {
    relief.Lay(Rect(x - 1, y - 1, width + 2, height + 2, 4),
               {.colour = Colour(Ink::Midnight), .height = -0.8f, .grain = 0.05f});
    relief.Lay(Rect(x, y, width, height, 3), {.colour = Between(Ink::Serge, Ink::Gunmetal, 0.35),
                                              .height = 1.6f,
                                              .round = 2,
                                              .grain = 0.035f,
                                              .grainSize = 1.5f});
}

void LayNavyWell(Relief& relief, double x, double y, double width, double height, Ink floor) {
    relief.Lay(Rect(x - 2, y - 2, width + 4, height + 4, 1.6),
               {.colour = Between(Ink::Serge, Ink::Gunmetal, 0.25),
                .height = -1,
                .base = 1.6f,
                .round = 1.4f,
                .grain = 0.05f});
    relief.Lay(Rect(x, y, width, height),
               {.colour = Colour(floor), .height = -1, .base = 0.8f, .round = 0.6f, .grain = 0.04f});
}

void LayNavyRivet(Relief& relief, double x, double y, double radius) {
    relief.Lay(Ellipse(x, y, radius + 0.7, radius + 0.7),
               {.colour = Colour(Ink::Harbour), .height = -0.5f, .base = 1.6f, .round = 0.6f});
    relief.Lay(Ellipse(x, y, radius, radius), {.colour = Colour(Ink::Denim),
                                               .height = 1,
                                               .base = 1.6f,
                                               .round = static_cast<float>(radius) * 0.8f});
    relief.StainLine(Trace({{x - radius * 0.6, y + radius * 0.5}, {x + radius * 0.6, y - radius * 0.5}}), 0.6,
                     Colour(Ink::Midnight), 0.9);
}

void LayNavyGroove(Relief& relief, double x, double y, double toX, double toY) {
    relief.LayLine(Trace({{x, y}, {toX, toY}}), 1.3,
                   {.colour = Colour(Ink::Midnight), .height = -0.9f, .base = 1.6f, .grain = 0.04f},
                   Qt::FlatCap);
}

void EngraveText(QImage& picture, int x, int y, const char* text) {
    Print(picture, x + 1, y + 1, text, Colour(Ink::Midnight).rgb());
    Print(picture, x, y, text, Colour(Ink::Frost).rgb());
}

}  // namespace art
