#include "kit/shapes.h"
#include "things/gun_plan.h"

namespace art {
namespace {

void LayThumbhole(Relief& relief, const Plan& plan) {
    const double x = plan.buttEnd;
    const double y = plan.bore;
    const double to = plan.body + 2;
    const Ink wood = plan.gun.furniture;
    relief.Lay(Polygon({{x, y - 3.4},
                        {to, y - 2.8},
                        {to + 4, y + 4},
                        {to - 2, y + 10},
                        {to - 6, y + 9},
                        {x + 1, y + 9.6}}),
               Furniture(wood));
    relief.Lay(Polygon({{x + 9, y + 2.4}, {to - 5, y + 2}, {to - 7.6, y + 6.2}, {x + 9, y + 6.6}}),
               {.colour = Colour(Ink::Soot), .height = -1, .base = 1});
    relief.Lay(Rect(x + 6, y - 4.6, 12, 2.4, 1), Furniture(wood, 1, 1));
}

void LayBullpup(Relief& relief, const Plan& plan) {
    const double x = plan.buttEnd;
    const double y = plan.bore;
    const Ink wood = plan.gun.furniture;
    relief.Lay(Polygon({{x, y - 3.6},
                        {plan.guard + 2, y - 3.2},
                        {plan.guard + 4, y + 2.6},
                        {plan.Grip() + 10, y + 4.2},
                        {plan.body + 2, y + 5},
                        {x + 3, y + 8.6},
                        {x, y + 8.6}}),
               Furniture(wood));
    relief.Lay(Rect(x - 0.8, y - 3.4, 2.2, 12, 0.8), Metal(Ink::Iron, 1.8f));
}

void LaySporter(Relief& relief, const Plan& plan) {
    const double x = plan.buttEnd;
    const double y = plan.bore;
    const double body = plan.body;
    const double to = plan.guard + 1;
    relief.Lay(Polygon({{x, y + 0.2},
                        {body - 9, y - 0.6},
                        {body - 4, y + 1},
                        {body + 1, y - 1.6},
                        {to, y - 1},
                        {to, y + 4.4},
                        {body + 7, y + 5},
                        {body - 1, y + 7.4},
                        {body - 6, y + 7},
                        {x + 1.4, y + 11}}),
               Furniture(plan.gun.furniture));
    relief.Lay(Polygon({{x - 0.6, y}, {x + 1.2, y}, {x + 2.4, y + 10.8}, {x + 0.8, y + 11.4}}),
               Metal(Ink::Iron, 1.6f));
}

// Two rods that slide in, with a butt plate.
void LayRods(Relief& relief, const Plan& plan) {
    const double x = plan.buttEnd;
    const double y = plan.bore;
    relief.LayLine(Trace({{plan.body + 2, y - 1.6}, {x + 1, y - 1.6}}), 1.6, Metal(plan.gun.metal));
    relief.LayLine(Trace({{x + 1.6, y - 2.4}, {x + 2.2, y + 9}}), 3, Furniture(Ink::Asphalt, 1.8f));
}

// One bent wire.
void LayWire(Relief& relief, const Plan& plan) {
    const double x = plan.buttEnd;
    const double y = plan.bore;
    relief.LayLine(
        Trace({{plan.body + 2, y + 0.6}, {x + 5, y + 3}, {x + 1, y - 3}, {x + 1, y + 10}, {x + 5, y + 3}}),
        1.7, Metal(plan.gun.metal));
}

void LaySkeleton(Relief& relief, const Plan& plan) {
    const double x = plan.buttEnd;
    const double y = plan.bore;
    const double to = plan.body + 2;
    relief.Lay(Polygon({{x, y - 2.6}, {to, y - 2.2}, {to, y + 2.8}, {x + 8, y + 8.6}, {x, y + 9.4}}),
               Furniture(plan.gun.furniture));
    relief.Cut(Polygon({{x + 4, y + 0.6}, {to - 6, y + 0.8}, {x + 7.6, y + 5.8}, {x + 4, y + 6.2}}));
}

}  // namespace

bool GripInStock(Stock stock) {
    return stock == Stock::Thumbhole || stock == Stock::Sporter;
}

void LayStock(Relief& relief, const Plan& plan) {
    const double x = plan.buttEnd;
    const double to = plan.body + 2;
    const double y = plan.bore;
    const Ink wood = plan.gun.furniture;
    switch (plan.gun.stock) {
        case Stock::None:
            return;
        case Stock::Solid:
            relief.Lay(Polygon({{x, y - 2}, {to, y - 2.6}, {to, y + 3.6}, {to - 8, y + 4}, {x + 1, y + 9.4}}),
                       Furniture(wood));
            relief.Lay(
                Polygon({{x - 0.6, y - 2.2}, {x + 1.4, y - 2.2}, {x + 2.2, y + 9.2}, {x + 0.4, y + 9.8}}),
                Metal(Ink::Iron, 1.6f));
            return;
        case Stock::Folded:
            for (const auto& [from, low] : {std::pair{-1.2, 7.0}, {3.2, 8.6}}) {
                relief.LayLine(Trace({{to, y + from}, {x + 1, y + (from < 0 ? from : low)}}), 1.7,
                               Metal(plan.gun.metal));
            }
            relief.LayLine(Trace({{x + 1, y - 2}, {x + 1, y + 9}}), 2, Metal(plan.gun.metal));
            return;
        case Stock::Tube:
            relief.LayLine(Trace({{x + 2, y + 0.4}, {to, y + 0.4}}), 3.4, Metal(plan.gun.metal));
            relief.Lay(
                Polygon(
                    {{x, y - 2.6}, {x + 13, y - 2.2}, {x + 12, y + 3.4}, {x + 2.4, y + 8.4}, {x, y + 8.4}}),
                Furniture(wood));
            return;
        case Stock::Thumbhole:
            return LayThumbhole(relief, plan);
        case Stock::Bullpup:
            return LayBullpup(relief, plan);
        case Stock::Sporter:
            return LaySporter(relief, plan);
        case Stock::Rods:
            return LayRods(relief, plan);
        case Stock::Wire:
            return LayWire(relief, plan);
        case Stock::Skeleton:
            return LaySkeleton(relief, plan);
    }
}

}  // namespace art
