#include "panel/stance_buttons.h"

#include "kit/canvas.h"
#include "kit/palette.h"
#include "kit/relief.h"
#include "kit/shapes.h"
#include "panel/silhouettes.h"
#include "panel/slate.h"

namespace art {
namespace {

constexpr int Width = 32;
constexpr int Height = 25;

void Cap(Relief& relief, bool lit) {
    SteelGround(relief, Ink::Engraving, Ink::Armour);
    const Solid cap =
        lit ? Solid{.colour = Colour(Ink::Armour), .height = -1, .round = 1.6f, .grain = 0.08f}
            : Solid{.colour = Colour(Ink::Steel), .height = 1.6f, .round = 1.8f, .grain = 0.06f};
    relief.Lay(Rect(1, 1, Width - 2, Height - 2, 2), cap);
    if (lit) relief.StainLine(Rect(1.5, 1.5, Width - 3, Height - 3, 2), 1, Colour(Ink::Amber), 0.9);
}

void Figure(Relief& relief, const QPainterPath& figure, bool lit) {
    if (!lit) relief.Stain(figure.translated(0.8, 0.8), Colour(Ink::Armour), 0.9);
    relief.Lay(figure, {.colour = Colour(lit ? Ink::Gold : Ink::Foam),
                        .height = 0.5f,
                        .base = lit ? -1.0f : 1.6f,
                        .round = 0.8f,
                        .grain = 0});
}

// Standing shot with a bar in front of the feet, or a shot from the run with lines of speed.
void FirePicture(Relief& relief, bool moving) {
    const double left = moving ? 3.6 : 1;
    Figure(relief, Silhouette(moving ? 3 : 2, left, 2.6, 0.98), moving);
    const double muzzleX = moving ? left + 22.4 : left + 24.8;
    relief.Lay(MuzzleFlash(muzzleX, moving ? 9.6 : 7.8, 4),
               {.colour = Colour(moving ? Ink::Glow : Ink::Straw), .base = 3, .grain = 0});
    if (moving) {
        for (const double y : {7.0, 10.4, 13.6})
            relief.StainLine(Trace({{3, y}, {7.4 - (y - 7) * 0.3, y}}), 1, Colour(Ink::Amber), 0.9);
    } else {
        for (const double x : {22.6, 26.0})
            relief.Lay(Rect(x, 13.6, 2, 7.4), {.colour = Colour(Ink::Scarlet), .base = 3, .grain = 0});
    }
}

}  // namespace

QImage StanceButton(int button, bool lit) {
    Relief relief(Width, Height, 2, 6, 40);
    Cap(relief, lit);
    if (button == FireSwitch) {
        FirePicture(relief, lit);
    } else {
        Figure(relief, Silhouette(button, 2.8, 2.6, 1), lit);
    }
    return Settle(relief.Render(), 0.012);
}

}  // namespace art
