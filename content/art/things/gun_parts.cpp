#include "kit/shapes.h"
#include "things/gun_plan.h"

namespace art {

// Blued steel and black plastic are lifted a little, or guns would be holes in the dark boards that they lie
// on.
Solid Metal(Ink ink, float height, float base) {
    return {.colour = Between(ink, Ink::Chalk, 0.2),
            .height = height,
            .base = base,
            .round = 1.6f,
            .grain = 0.05f,
            .grainSize = 1.5f};
}

Solid Furniture(Ink ink, float height, float base) {
    return {.colour = Between(ink, Ink::Sand, 0.12),
            .height = height,
            .base = base,
            .round = 2.2f,
            .grain = 0.1f,
            .grainSize = 1.2f};
}

namespace {

void LayHump(Relief& relief, const Plan& plan) {
    const double x = plan.body;
    const double y = plan.bore;
    relief.Lay(Polygon({{x, y - 1},
                        {x + 1.4, y - 5},
                        {x + plan.gun.body * 0.66, y - 5.4},
                        {x + plan.gun.body * 0.72, y - 3}}),
               Metal(plan.gun.metal, 2.2f));
}

void LayUpperGuard(Relief& relief, const Plan& plan) {
    const double y = plan.bore;
    relief.Lay(Rect(plan.guard, y - 5.4, plan.gun.guard - 2, 3.4, 1.4), Furniture(plan.gun.furniture));
    relief.Lay(Polygon({{plan.barrel - 3, y - 5},
                        {plan.barrel + 3, y - 5},
                        {plan.barrel + 6, y - 1},
                        {plan.barrel - 3, y - 1}}),
               Metal(plan.gun.metal));
}

void LayGasTube(Relief& relief, const Plan& plan) {
    const double y = plan.bore;
    relief.Lay(Rect(plan.guard - 2, y - 5, plan.gun.guard + plan.gun.barrel * 0.4, 2.2, 0.8),
               Metal(plan.gun.metal));
    relief.Lay(Rect(plan.barrel + plan.gun.barrel * 0.4 - 4, y - 5.4, 3, 5), Metal(plan.gun.metal));
}

void LayUnderTube(Relief& relief, const Plan& plan) {
    relief.Lay(Rect(plan.guard - 1, plan.bore + 2, plan.gun.guard + plan.gun.barrel * 0.5, 2.6, 1),
               Metal(plan.gun.metal));
}

void LayCockingTube(Relief& relief, const Plan& plan) {
    const double y = plan.bore;
    relief.Lay(Rect(plan.guard - 1, y - 5.2, plan.gun.guard + 3, 2.4, 1), Metal(plan.gun.metal));
    relief.LayLine(Ellipse(plan.barrel + 1, y - 5, 2, 2), 1.2, Metal(plan.gun.metal));
    relief.LayLine(Trace({{plan.guard + 4, y - 5}, {plan.guard + 2.6, y - 7.6}}), 1.6, Metal(Ink::Ash));
}

void LayTallPost(Relief& relief, const Plan& plan) {
    const double x = plan.barrel;
    const double y = plan.bore;
    relief.Lay(Polygon({{x, y - 0.6}, {x + 4, y - 7.4}, {x + 5.8, y - 7.4}, {x + 7.4, y - 0.6}}),
               Metal(plan.gun.metal));
    relief.Stain(Polygon({{x + 3, y - 2}, {x + 4.6, y - 4.4}, {x + 5.4, y - 2}}), Colour(Ink::Soot));
}

void LaySlabGuard(Relief& relief, const Plan& plan) {
    const double y = plan.bore;
    relief.Lay(
        Polygon({{plan.guard, y - 3.6}, {plan.barrel, y - 2.6}, {plan.barrel, y + 3}, {plan.guard, y + 5.6}}),
        Furniture(plan.gun.furniture, 2.6f));
    for (const double at : Steps(plan.guard + 3, plan.barrel - 2, 3))
        relief.StainLine(Trace({{at, y - 1.6}, {at, y - 0.6}}), 1, Colour(Ink::Soot), 0.8);
}

void LayBolt(Relief& relief, const Plan& plan) {
    const double x = plan.body + 5;
    const double y = plan.bore;
    relief.LayLine(Trace({{x, y - 2}, {x - 3, y + 4}}), 1.6, Metal(Ink::Cement, 1.4f, 2));
    relief.Lay(Ellipse(x - 3.2, y + 4.6, 1.8, 1.8), Metal(Ink::Cement, 1.6f, 2));
}

void LayCarry(Relief& relief, const Plan& plan) {
    const double x = plan.guard - 6;
    const double y = plan.bore;
    relief.LayLine(Trace({{x, y - 3}, {x + 2, y - 8}, {x + 12, y - 8}}), 1.6, Metal(plan.gun.metal));
    relief.LayLine(Trace({{x + 3, y - 8}, {x + 11, y - 8}}), 2.8, Furniture(Ink::Asphalt));
}

void LayRail(Relief& relief, const Plan& plan) {
    const double y = plan.bore;
    for (const double at : Steps(plan.body + 3, plan.barrel - 1, 2.8))
        relief.Lay(Rect(at, y - 5, 1.7, 2.2, 0.2), Metal(plan.gun.metal));
}

void LayCheek(Relief& relief, const Plan& plan) {
    relief.Lay(Rect(plan.buttEnd + 7, plan.bore - 5.2, 15, 4.6, 1.6), Furniture(Ink::Asphalt, 2.6f));
}

void LayHeavy(Relief& relief, const Plan& plan) {
    relief.Lay(Rect(plan.barrel - 1, plan.bore - 2, plan.gun.barrel - 4, 4, 1), Metal(plan.gun.metal, 2));
}

void LayNose(Relief& relief, const Plan& plan) {
    const double y = plan.bore;
    relief.Lay(Rect(plan.barrel - 3, y - 3.4, plan.gun.barrel, 7.4, 0.6), Metal(Ink::Iron, 2.4f));
    relief.Lay(Rect(plan.barrel + plan.gun.barrel - 7, y - 5.8, 3, 3, 0.4), Metal(Ink::Iron));
}

void LaySpike(Relief& relief, const Plan& plan) {
    const double y = plan.bore;
    relief.LayLine(Trace({{plan.end - 5, y + 1}, {plan.end - 6, y + 3.4}, {plan.guard + 2, y + 4.6}}), 1.3,
                   Metal(Ink::Cement));
}

void LayFins(Relief& relief, const Plan& plan) {
    for (const double at : Steps(plan.barrel + 1, plan.end - 10, 2.6))
        relief.Lay(Rect(at, plan.bore - 2.8, 1.4, 5.6), Metal(plan.gun.metal));
}

struct PartRow {
    Part part;
    void (*lay)(Relief&, const Plan&);
};

constexpr PartRow PartRows[] = {
    {Hump, LayHump},
    {UpperGuard, LayUpperGuard},
    {GasTube, LayGasTube},
    {UnderTube, LayUnderTube},
    {CockingTube, LayCockingTube},
    {TallPost, LayTallPost},
    {SlabGuard, LaySlabGuard},
    {Bolt, LayBolt},
    {Carry, LayCarry},
    {Rail, LayRail},
    {Cheek, LayCheek},
    {Heavy, LayHeavy},
    {Nose, LayNose},
    {Spike, LaySpike},
    {Fins, LayFins},
};

}  // namespace

void LayParts(Relief& relief, const Plan& plan) {
    for (const PartRow& row : PartRows) {
        if (plan.Has(row.part)) row.lay(relief, plan);
    }
}

}  // namespace art
