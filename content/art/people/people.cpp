#include "people/people.h"

#include <array>
#include <span>

#include <QTransform>

#include "kit/canvas.h"
#include "kit/palette.h"
#include "kit/relief.h"
#include "kit/shapes.h"

namespace art {
namespace {

enum class Role { Tunic, Trousers, Boots, Pack, Skin, Iron, Wood, Head, Badge };
constexpr std::size_t RoleCount = 9;

// A part of a figure that looks east: a limb from one end to the other, an ellipse where both ends are the
// same.
struct Limb {
    Role role;
    double x, y, toX, toY;
    double width;  // of a limb; of an ellipse its length along the facing
    double depth;  // of an ellipse across the facing; 0 for a limb
    float base, height;
};

constexpr Limb Prone[] = {
    {Role::Trousers, -1.6, -1.1, -7.2, -2.7, 2.3, 0, 0, 1.2f},
    {Role::Trousers, -1.6, 1.1, -7.0, 2.9, 2.3, 0, 0, 1.2f},
    {Role::Boots, -7.0, -2.7, -8.7, -3.3, 2.0, 0, 0, 1.1f},
    {Role::Boots, -6.8, 2.9, -8.5, 3.5, 2.0, 0, 0, 1.1f},
    {Role::Tunic, -1.8, 0, 1.6, 0, 5.0, 0, 0.3f, 1.5f},
    {Role::Pack, -0.9, 0, -0.9, 0, 3.2, 3.6, 1.6f, 0.8f},
    {Role::Tunic, 1.4, -2.6, 4.6, -1.6, 1.9, 0, 0.3f, 1.2f},
    {Role::Tunic, 1.4, 2.6, 3.8, 2.5, 1.9, 0, 0.3f, 1.2f},
    {Role::Wood, 2.6, 1.2, 5.0, 0.7, 1.3, 0, 1.2f, 0.7f},
    {Role::Iron, 4.6, 0.8, 9.6, 0.3, 1.15, 0, 1.2f, 0.7f},
    {Role::Skin, 5.2, -0.7, 5.2, -0.7, 1.6, 1.5, 1.4f, 0.8f},
    {Role::Head, 3.2, 0, 3.2, 0, 4.2, 4.0, 1.3f, 1.8f},
    {Role::Badge, 2.6, 0, 2.6, 0, 2.0, 1.8, 3, 0.5f},
};

constexpr Limb Crouch[] = {
    {Role::Boots, -6.6, 2.6, -5.2, 2.4, 1.9, 0, 0, 1},
    {Role::Trousers, -5.2, 2.3, -0.4, 2.1, 2.4, 0, 0.3f, 1.2f},
    {Role::Trousers, -0.6, -1.9, 2.9, -2.2, 2.9, 0, 0.6f, 1.6f},
    {Role::Boots, 3.0, -2.4, 4.2, -2.4, 1.8, 0, 0, 1},
    {Role::Tunic, -1.2, -1.5, -1.2, 1.5, 4.0, 0, 1.4f, 2},
    {Role::Pack, -2.6, 0, -2.6, 0, 2.2, 3.2, 2, 1},
    {Role::Tunic, -0.6, 2.2, 1.6, 1.9, 1.8, 0, 1.6f, 1.4f},
    {Role::Wood, 0.6, 1.6, 3.0, 1.2, 1.4, 0, 2.6f, 0.7f},
    {Role::Iron, 2.6, 1.3, 7.2, 0.8, 1.2, 0, 2.6f, 0.7f},
    {Role::Tunic, -0.6, -2.2, 2.8, -0.5, 1.8, 0, 2.2f, 1.4f},
    {Role::Skin, 3.8, 0.1, 3.8, 0.1, 1.6, 1.6, 3, 0.8f},
    {Role::Head, 0, 0.1, 0, 0.1, 4.3, 4.2, 3.2f, 2},
    {Role::Badge, -0.4, 0.1, -0.4, 0.1, 2.2, 2.0, 5, 0.5f},
};

constexpr Limb Stand[] = {
    {Role::Boots, 0.4, -2.0, 2.8, -2.3, 2.0, 0, 0, 1.2f},
    {Role::Boots, -1.8, 2.2, 0.4, 2.4, 2.0, 0, 0, 1.2f},
    {Role::Pack, -2.3, 0, -2.3, 0, 2.4, 4.4, 2, 1.6f},
    {Role::Tunic, -0.5, -4.6, -0.5, 4.6, 3.2, 0, 2.4f, 2},
    {Role::Tunic, 0, 4.9, 2.4, 3.4, 1.9, 0, 2.4f, 1.6f},
    {Role::Skin, 3.2, 2.6, 3.2, 2.6, 1.7, 1.7, 2.8f, 1},
    {Role::Wood, 0.6, 2.9, 3.4, 2.1, 1.6, 0, 3.2f, 0.8f},
    {Role::Iron, 3.0, 2.2, 9.4, 0.6, 1.3, 0, 3.2f, 0.8f},
    {Role::Tunic, 0, -4.9, 4.0, -1.4, 1.9, 0, 2.6f, 1.6f},
    {Role::Skin, 5.0, 0.6, 5.0, 0.6, 1.8, 1.7, 3.4f, 1},
    {Role::Head, 0.2, 0, 0.2, 0, 5.2, 4.8, 4.4f, 2.2f},
    {Role::Badge, -0.5, 0, -0.5, 0, 2.5, 2.2, 6.4f, 0.5f},
};

constexpr Limb Run[] = {
    {Role::Trousers, -1.4, 1.5, -5.6, 2.3, 2.4, 0, 0.6f, 1.4f},
    {Role::Boots, -5.8, 2.3, -8.2, 2.7, 2.1, 0, 0, 1.6f},
    {Role::Trousers, 0.6, -1.6, 5.0, -3.0, 2.5, 0, 0.6f, 1.6f},
    {Role::Boots, 5.2, -3.0, 7.4, -3.2, 2.1, 0, 0, 1.2f},
    {Role::Tunic, -2.4, 0.2, 1.6, 0, 4.2, 0, 1.6f, 2},
    {Role::Pack, -2.0, 0.1, -2.0, 0.1, 4.0, 3.8, 3, 1.4f},
    {Role::Tunic, 0.8, -3.4, 2.2, 3.4, 3.2, 0, 2.2f, 1.8f},
    {Role::Tunic, 0.6, -3.8, -2.0, -4.8, 1.9, 0, 2, 1.6f},
    {Role::Skin, -2.6, -5.0, -2.6, -5.0, 1.6, 1.6, 2, 1},
    {Role::Tunic, 2.2, 3.8, 4.6, 3.0, 1.9, 0, 2.2f, 1.6f},
    {Role::Wood, 1.2, 5.4, 3.2, 4.2, 1.5, 0, 3, 0.8f},
    {Role::Iron, 3.0, 4.3, 8.2, 1.0, 1.25, 0, 3, 0.8f},
    {Role::Skin, 5.2, 2.7, 5.2, 2.7, 1.7, 1.7, 3.4f, 0.9f},
    {Role::Head, 3.4, 0, 3.4, 0, 4.9, 4.5, 4, 2.2f},
    {Role::Badge, 2.8, 0, 2.8, 0, 2.3, 2.1, 6, 0.5f},
};

constexpr Limb Dead[] = {
    {Role::Trousers, -1.4, -1.3, -6.0, -4.2, 2.3, 0, 0, 1},
    {Role::Trousers, -1.4, 1.3, -6.8, 2.0, 2.3, 0, 0, 1},
    {Role::Boots, -6.0, -4.2, -7.4, -5.6, 2.0, 0, 0, 0.9f},
    {Role::Boots, -6.8, 2.0, -8.6, 1.6, 2.0, 0, 0, 0.9f},
    {Role::Tunic, -1.8, 0, 1.8, 0, 4.8, 0, 0.2f, 1.3f},
    {Role::Tunic, 1.4, -2.6, 4.4, -5.6, 1.9, 0, 0.2f, 1},
    {Role::Skin, 5.0, -6.2, 5.0, -6.2, 1.7, 1.7, 0.2f, 0.9f},
    {Role::Tunic, 1.4, 2.6, 0.6, 6.2, 1.9, 0, 0.2f, 1},
    {Role::Skin, 0.4, 7.0, 0.4, 7.0, 1.7, 1.7, 0.2f, 0.9f},
    {Role::Skin, 4.6, 0.4, 4.6, 0.4, 3.4, 3.2, 0.5f, 1.4f},
    {Role::Boots, 3.9, 0.4, 3.9, 0.4, 2.6, 2.9, 1.4f, 0.6f},
};

constexpr std::array<std::span<const Limb>, StanceCount> Figures{Prone, Crouch, Stand, Run};

using Uniform = std::array<Ink, RoleCount>;

constexpr std::array<Uniform, TeamCount> Uniforms{{
    // tunic, trousers, boots, pack, skin, iron, wood, head, badge
    {Ink::Sand, Ink::Clay, Ink::Bark, Ink::Khaki, Ink::Skin, Ink::Concrete, Ink::Timber, Ink::Moss,
     Ink::Moss},
    {Ink::Ash, Ink::Slate, Ink::Iron, Ink::Asphalt, Ink::Skin, Ink::Concrete, Ink::Timber, Ink::Crimson,
     Ink::Scarlet},
    {Ink::Snow, Ink::Brook, Ink::Bark, Ink::Foam, Ink::Skin, Ink::Skin, Ink::Skin, Ink::Bark, Ink::Bark},
}};
// The dead of all teams lie alike, grey with dust.
constexpr Uniform DeadUniform{Ink::Canvas, Ink::Khaki,  Ink::Soil, Ink::Olive, Ink::Skin,
                              Ink::Iron,   Ink::Timber, Ink::Soil, Ink::Soil};
constexpr int Computer = 1;
constexpr int Civilians = 2;

// So small a figure would drown in its own shadows: it takes half the light's contrast.
constexpr float FigureGlow = 0.35f;
constexpr double FigureDither = 0.008;

// Length of the shadow on the ground, pixels, by stance.
constexpr std::array<int, StanceCount> Shadows{1, 2, 3, 3};

// Degrees from east, by facing.
constexpr std::array<double, FacingCount> Turns{0, 180, -90, 90, -45, 45, 135, -135};

// Civilians carry nothing; the badge is the computer's.
bool Worn(Role role, int team) {
    if (role == Role::Badge) return team == Computer;
    return team != Civilians || (role != Role::Iron && role != Role::Wood && role != Role::Pack);
}

QPainterPath Outline(const Limb& part) {
    if (part.depth > 0) return Ellipse(part.x, part.y, part.width / 2, part.depth / 2);
    return Widened(Trace({{part.x, part.y}, {part.toX, part.toY}}), part.width, Qt::RoundCap, Qt::RoundJoin);
}

Limb Wider(Limb part, double by) {
    part.width += by;
    if (part.depth > 0) part.depth += by;
    return part;
}

void LayFigure(Relief& relief, const QTransform& place, std::span<const Limb> parts, int team,
               const Uniform& uniform) {
    for (const Limb& part : parts) {
        if (!Worn(part.role, team)) continue;
        if (part.role == Role::Head)
            relief.Stain(place.map(Outline(Wider(part, 1))).translated(0.3, 0.3), Colour(Ink::Peat), 0.8);
        const double thickness = part.depth > 0 ? std::min(part.width, part.depth) : part.width;
        relief.Lay(place.map(Outline(part)), {.colour = Colour(uniform[static_cast<std::size_t>(part.role)]),
                                              .height = part.height,
                                              .base = part.base,
                                              .round = static_cast<float>(thickness) * 0.5f,
                                              .grain = 0.04f,
                                              .grainSize = 0.9f,
                                              .glow = FigureGlow});
    }
}

QTransform Facing(double degrees) {
    QTransform place;
    place.translate(9.8, 9.8).rotate(degrees);
    return place;
}

Relief Blank() {
    return Relief(CellSize, CellSize, 1, 8);
}

}  // namespace

QImage Soldier(int team, int stance, int facing) {
    Relief relief = Blank();
    const QTransform place = Facing(Turns[static_cast<std::size_t>(facing)]);
    const std::span<const Limb> parts = Figures[static_cast<std::size_t>(stance)];
    LayFigure(relief, place, parts, team, Uniforms[static_cast<std::size_t>(team)]);
    return Rimmed(Settle(relief.Render(true), FigureDither), Shadows[static_cast<std::size_t>(stance)]);
}

QImage DeadSoldier() {
    Relief blood = Blank();
    blood.Lay(Lump(12, 11.6, 6, 0.3, 971), {.colour = Colour(Ink::Maroon), .grain = 0.1f});
    blood.Lay(Lump(12.4, 12, 3.8, 0.3, 973), {.colour = Colour(Ink::Brick), .grain = 0.1f});
    Relief body = Blank();
    LayFigure(body, Facing(-28), Dead, Civilians, DeadUniform);
    body.Stain(Ellipse(9.6, 10.4, 1.3, 1.1), Colour(Ink::Brick), 0.9);
    QImage picture = Settle(blood.Render(true), FigureDither);
    Place(picture, 0, 0, Rimmed(Settle(body.Render(true), FigureDither), 0));
    return picture;
}

QImage PeopleSheet() {
    constexpr int Width = 640;
    constexpr int Height = 320;
    constexpr int MaskTop = FacingCount * CellSize;
    QImage sheet = Sheet(Width, Height);
    for (int column = 0; column < Width / CellSize; ++column) {
        for (int facing = 0; facing < FacingCount; ++facing) {
            const bool drawn = column < TeamCount * StanceCount;
            const QImage figure = drawn ? Soldier(column / StanceCount, column % StanceCount, facing)
                                        : Sheet(CellSize, CellSize, 0u);
            const Masked masked = MaskOut(figure);
            Place(sheet, column * CellSize, facing * CellSize, masked.picture);
            Place(sheet, column * CellSize, MaskTop + facing * CellSize, masked.mask);
        }
    }
    return sheet;
}

}  // namespace art
