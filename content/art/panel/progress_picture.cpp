#include "panel/progress_picture.h"

#include "kit/canvas.h"
#include "kit/glyphs.h"
#include "kit/palette.h"
#include "kit/relief.h"
#include "kit/shapes.h"
#include "panel/emblem.h"
#include "panel/silhouettes.h"
#include "panel/slate.h"

namespace art {
namespace {

constexpr int Width = 529;
constexpr int Height = 67;

void Scale(Relief& relief) {
    constexpr int Steps = 20;
    for (int i = 0; i <= Steps; ++i) {
        const double x = 19.5 + i * 459.0 / Steps;
        const double foot = i % 5 == 0 ? 51 : 48.5;
        relief.LayLine(Trace({{x, 45.5}, {x, foot}}), 1,
                       {.colour = Colour(Ink::Engraving), .height = -0.8f, .base = 1.6f}, Qt::FlatCap);
    }
}

// A squad on the way: from the run down to the ground.
void Squad(Relief& relief) {
    struct Man {
        int stance;
        double x;
    };
    constexpr Man Men[] = {{3, 292}, {3, 334}, {2, 372}, {1, 406}, {0, 440}};
    for (const Man& man : Men) {
        const QPainterPath figure = Silhouette(man.stance, man.x, 9.4, 1.18);
        relief.Lay(figure.translated(0.9, 0.9), {.colour = Colour(Ink::Edge), .base = 1.6f, .grain = 0});
        relief.Lay(figure, {.colour = Colour(Ink::Engraving), .height = -1, .base = 1.6f, .grain = 0.03f});
    }
}

}  // namespace

QImage ProgressPicture() {
    Relief relief(Width, Height, 2, 4, 1000);
    SteelGround(relief, Ink::Armour, Ink::Plate);
    LayPlate(relief, 3, 3, Width - 6, Height - 6);
    LayWell(relief, 19, 39, 460, 3);
    Scale(relief);
    const QPainterPath name = Title("SARNOTH III", 20, 10, 21, 6.4);
    relief.Lay(name.translated(1, 1), {.colour = Colour(Ink::Engraving), .base = 1.6f, .grain = 0});
    relief.Lay(name,
               {.colour = Colour(Ink::Gold), .height = 1.4f, .base = 1.6f, .round = 1.4f, .grain = 0.04f});
    Squad(relief);
    LayBadge(relief, 503, 32, 40, 1.6f);
    for (const QPointF& corner : {QPointF(9, 9), QPointF(9, 58), QPointF(520, 58), QPointF(520, 9)})
        LayRivet(relief, corner.x(), corner.y(), 2, 1.6f);
    QImage picture = Settle(relief.Render(), 0.018);
    Print(picture, 20, 54, "READING THE MAP - POSTING THE SQUAD", Colour(Ink::Sheen).rgb());
    return picture;
}

}  // namespace art
