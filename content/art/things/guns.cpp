#include "things/guns.h"

#include <algorithm>
#include <cmath>

#include "kit/shapes.h"
#include "things/gun_plan.h"

namespace art {
namespace {

constexpr double Bore = 19;  // height of the barrel's middle in the picture
constexpr double SmallBore = 16;
constexpr double LongWidth = 117;
constexpr double SmallWidth = 42;
constexpr int DrumFrom = 60;  // magazines of so many rounds are drums

Plan Arrange(const Gun& gun) {
    const double total = gun.butt + gun.body + gun.guard + gun.barrel;
    const double left = ((IsSmall(gun) ? SmallWidth : LongWidth) - total) / 2;
    const double body = left + gun.butt;
    return {gun,
            IsSmall(gun) ? SmallBore : Bore,
            left,
            body,
            body + gun.body,
            body + gun.body + gun.guard,
            left + total};
}

// Length of a magazine by its rounds, pixels.
double MagazineLength(int capacity) {
    return 5.4 + 1.6 * std::sqrt(capacity);
}

void LayBelt(Relief& relief, double x, double y) {
    relief.Lay(Rect(x - 4, y + 4.4, 14, 11.6, 1), Furniture(Ink::Olive, 1.6f));
    relief.StainLine(Trace({{x - 3, y + 7.4}, {x + 9, y + 7.4}}), 0.8, Colour(Ink::Jacket));
    for (int i = 0; i < 4; ++i)
        relief.Lay(Rect(x - 5.4 + i * 1.9, y - 0.6 + i * 0.9, 1.3, 5, 0.6), Metal(Ink::Gold, 1, 2.4f));
}

void LayDrum(Relief& relief, double x, double y) {
    relief.Lay(Rect(x, y + 2, 5, 6), Metal(Ink::Asphalt, 1));
    relief.Lay(Ellipse(x + 2.6, y + 11.6, 7.2, 7.2), Metal(Ink::Asphalt, 1.8f));
    relief.Lay(Ellipse(x + 2.6, y + 11.6, 3, 3), Metal(Ink::Slate, 0.8f, 1.8f));
}

void LayMagazine(Relief& relief, const Plan& plan, int capacity) {
    const double x = plan.Well();
    const double y = plan.bore;
    const double length = std::min(MagazineLength(capacity), 38 - y - 4);
    const Ink ink = plan.gun.metal == Ink::Asphalt ? Ink::Slate : Ink::Asphalt;
    if (capacity >= DrumFrom && plan.gun.feed != Feed::Belt && plan.gun.feed != Feed::Top)
        return LayDrum(relief, x, y);
    switch (plan.gun.feed) {
        case Feed::Straight:
            relief.Lay(
                Polygon(
                    {{x, y + 3}, {x + 6.4, y + 3}, {x + 7.2, y + 4 + length}, {x + 0.6, y + 4.8 + length}}),
                Metal(ink));
            return;
        case Feed::Curved: {
            QPainterPath curve(QPointF(x + 3, y + 2));
            curve.quadTo(x + 3.4, y + 4 + length * 0.5, x + 3 + length * 0.42, y + 3.6 + length);
            relief.LayLine(curve, 6.2, Metal(ink), Qt::FlatCap);
            return;
        }
        case Feed::Grip:
            relief.Lay(Rect(x + 0.6, y + 8, 4.4, std::min(4 + length, 24.0), 0.6), Metal(ink));
            return;
        case Feed::Belt:
            return LayBelt(relief, x, y);
        case Feed::Side:
            relief.Lay(Rect(x - 1, y - 2.4, 6.4, 3.4 + length * 0.6, 1), Metal(ink, 1.6f, 1));
            return;
        case Feed::Top:
            relief.Lay(Rect(plan.body - 8, y - 6.4, plan.gun.body + 8, 3.4, 1),
                       {.colour = Colour(Ink::Brook), .height = 1.4f, .round = 1.4f, .grain = 0.08f});
            return;
        default:
            return;
    }
}

// What carries the rounds of guns that take no magazine.
void LayFixedFeed(Relief& relief, const Plan& plan) {
    const double y = plan.bore;
    if (plan.gun.feed == Feed::Tube)
        relief.Lay(Rect(plan.guard - 2, y + 2.2, plan.gun.guard + plan.gun.barrel * 0.75, 2.8, 1.2),
                   Metal(plan.gun.metal));
    if (plan.gun.feed == Feed::Cylinder) {
        const double x = plan.gun.stock == Stock::Bullpup ? plan.buttEnd + 14 : plan.guard - 8;
        relief.Lay(Rect(x, y - 6, 16, 16, 3), Metal(Ink::Asphalt, 2.4f));
        for (const double at : {-2.6, 1.6, 5.8})
            relief.StainLine(Trace({{x + 1.4, y + at}, {x + 14.6, y + at}}), 0.9, Colour(Ink::Iron));
    }
    if (plan.gun.feed == Feed::Top && plan.gun.feedKind[0] == '\0')
        relief.Lay(Ellipse(plan.body + 15, y - 5.4, 9, 2.6), Metal(Ink::Asphalt, 1.8f));
    if (plan.gun.feed == Feed::Straight && plan.gun.feedKind[0] == '\0') LayMagazine(relief, plan, 6);
}

void LayBody(Relief& relief, const Plan& plan) {
    const double y = plan.bore;
    const double x = plan.body;
    const Gun& gun = plan.gun;
    relief.Lay(Rect(x, y - 3.6, gun.body + 1, 6.6, 1.2), Metal(gun.metal, 2));
    if (gun.stock != Stock::Bullpup)
        relief.Lay(Rect(x + 2, y + 1.6, gun.body - 3, 3.4, 1), Metal(gun.metal, 1.8f));
    relief.Stain(Rect(x + gun.body * 0.5, y - 2, gun.body * 0.28, 1.8), Colour(Ink::Soot), 0.9);
    relief.StainLine(Trace({{x + 2, y + 1.6}, {x + gun.body - 2, y + 1.6}}), 0.6, Colour(Ink::Soot), 0.7);
    const double grip = plan.Grip();
    if (!GripInStock(gun.stock)) {
        relief.Lay(Polygon({{grip, y + 3}, {grip + 5.6, y + 3}, {grip + 3, y + 13}, {grip - 2.4, y + 12.2}}),
                   Furniture(gun.furniture));
    }
    QPainterPath bow(QPointF(grip + 5.4, y + 4));
    bow.lineTo(grip + 6.4, y + 7.6);
    bow.lineTo(grip + 11, y + 7.4);
    bow.lineTo(grip + 11.4, y + 4);
    relief.LayLine(bow, 1.1, Metal(gun.metal, 0.8f));
    relief.LayLine(Trace({{grip + 8, y + 4}, {grip + 7.6, y + 6.4}}), 0.9, Metal(Ink::Ash, 0.8f));
}

void LayFront(Relief& relief, const Plan& plan) {
    const Gun& gun = plan.gun;
    const double y = plan.bore;
    const bool quiet = gun.muzzle == Muzzle::Silencer;
    relief.Lay(Rect(plan.guard, y - 1.3, gun.guard + gun.barrel, 2.6, 0.8), Metal(gun.metal));
    if (gun.guard > 0) {
        relief.Lay(Rect(plan.guard, y - 2.4, gun.guard, gun.below == Below::Pump ? 3.6 : 6, 1.4),
                   Furniture(gun.furniture));
        for (const double at : Steps(plan.guard + 3, plan.barrel - 2, 3.2))
            relief.StainLine(Trace({{at, y - 0.6}, {at, y + 2}}), 0.8, Colour(Ink::Soot), 0.55);
    }
    if (quiet)
        relief.Lay(Rect(plan.barrel - 1, y - 2.6, gun.barrel + 1, 5.2, 1.2), Metal(Ink::Asphalt, 2.2f));
    if (gun.muzzle == Muzzle::Hider)
        relief.Lay(Rect(plan.end - 5, y - 1.9, 5, 3.8, 0.8), Metal(Ink::Asphalt, 1.8f));
    if (gun.muzzle == Muzzle::Brake)
        relief.Lay(Rect(plan.end - 6.6, y - 2.5, 6.6, 5, 0.8), Metal(gun.metal, 2));
    if (gun.muzzle == Muzzle::Shroud) {
        relief.Lay(Rect(plan.guard, y - 2.4, gun.guard + gun.barrel * 0.7, 4.8, 1.4), Metal(gun.metal, 2));
        for (const double at : Steps(plan.guard + 3, plan.barrel + gun.barrel * 0.6, 4))
            relief.Stain(Ellipse(at, y, 1, 1), Colour(Ink::Soot));
    }
    const bool post = !plan.Has(TallPost) && !plan.Has(CockingTube) && !plan.Has(NoPost);
    if (!quiet && gun.barrel > 8 && post)
        relief.Lay(Polygon({{plan.end - 9, y - 1},
                            {plan.end - 8.4, y - 5},
                            {plan.end - 7, y - 5},
                            {plan.end - 6.4, y - 1}}),
                   Metal(gun.metal));
}

void LaySight(Relief& relief, const Plan& plan) {
    const double y = plan.bore;
    const double x = plan.body;
    const Gun& gun = plan.gun;
    switch (gun.sight) {
        case Sight::Irons:
            relief.Lay(Rect(x + gun.body - 5, y - 5.2, 4, 2, 0.5), Metal(gun.metal));
            return;
        case Sight::Peep:
            relief.Lay(Polygon({{x + 2, y - 3.4}, {x + 3, y - 6.6}, {x + 6, y - 6.6}, {x + 6.6, y - 3.4}}),
                       Metal(gun.metal));
            return;
        case Sight::Handle:
            relief.LayLine(
                Trace(
                    {{x + 1, y - 3}, {x + 3, y - 7.4}, {x + gun.body - 4, y - 7.4}, {x + gun.body, y - 3.4}}),
                2, Metal(gun.metal));
            return;
        case Sight::Dot:
            relief.Lay(Rect(x + gun.body * 0.3, y - 8, 9, 4.8, 1), Metal(Ink::Asphalt, 2));
            relief.Stain(Rect(x + gun.body * 0.3 + 7.4, y - 7.2, 1.4, 3), Colour(Ink::Scarlet));
            return;
        case Sight::Scope:
            for (const double at : {5.0, 17.0})
                relief.Lay(Rect(x + at, y - 6.4, 2.6, 4, 0.4), Metal(Ink::Iron));
            relief.Lay(Rect(x - 3, y - 9, 29, 3.4, 1.4), Metal(Ink::Asphalt, 2));
            relief.Lay(Polygon({{x + 20, y - 9},
                                {x + 24, y - 10.4},
                                {x + 30, y - 10.4},
                                {x + 30, y - 4.4},
                                {x + 24, y - 4.4},
                                {x + 20, y - 5.6}}),
                       Metal(Ink::Asphalt, 2.2f));
            relief.Lay(Rect(x - 6, y - 9.6, 5, 4.8, 1), Metal(Ink::Asphalt, 2));
            relief.Stain(Rect(x + 29, y - 9.6, 1.2, 4.4), Colour(Ink::Shallow));
            relief.Lay(Rect(x + 10, y - 11, 3.4, 2.4, 0.6), Metal(Ink::Iron));
            return;
    }
}

void LayBelow(Relief& relief, const Plan& plan) {
    const Gun& gun = plan.gun;
    const double y = plan.bore;
    const double x = plan.guard;
    switch (gun.below) {
        case Below::None:
            return;
        case Below::Launcher:
            relief.Lay(Rect(x - 3, y + 3.4, gun.guard + 8, 5.8, 1.8), Metal(Ink::Slate, 2.4f, 0.6f));
            for (const double at : Steps(x + 1, x + gun.guard - 4, 2.4))
                relief.StainLine(Trace({{at, y + 4.2}, {at, y + 8.4}}), 0.8, Colour(Ink::Iron));
            relief.LayLine(Trace({{x - 2, y + 9}, {x - 2.6, y + 12}, {x + 3, y + 12}, {x + 4, y + 9}}), 1,
                           Metal(Ink::Slate));
            return;
        case Below::Shotgun:
            relief.Lay(Rect(x - 1, y + 3.6, gun.guard + 12, 2.4, 1), Metal(Ink::Slate, 1.6f));
            relief.Lay(Rect(x - 1, y + 6.2, gun.guard + 8, 2.4, 1), Metal(Ink::Slate, 1.6f));
            relief.Lay(Rect(x + 7, y + 3.8, 11, 5.6, 1.2), Furniture(Ink::Asphalt, 1.8f, 1));
            return;
        case Below::Bipod:
            relief.LayLine(Trace({{plan.barrel + 3, y + 1}, {plan.barrel - 3, y + 18}}), 1.5,
                           Metal(Ink::Slate, 1.2f));
            relief.LayLine(Trace({{plan.barrel + 5, y + 1}, {plan.barrel + 9, y + 18}}), 1.5,
                           Metal(Ink::Ash, 1.2f));
            return;
        case Below::Pump:
            relief.Lay(Rect(x + 3, y + 1.2, std::max(gun.guard - 4, 8.0), 5, 1.6),
                       Furniture(gun.furniture, 2));
            return;
        case Below::Lever:
            relief.Lay(Polygon({{x + 3, y + 3}, {x + 7, y + 3}, {x + 6.4, y + 10.6}, {x + 3, y + 10.6}}),
                       Furniture(gun.furniture));
            return;
    }
}

}  // namespace

bool IsSmall(const Gun& gun) {
    return gun.butt + gun.body + gun.guard + gun.barrel <= 40;
}

void LayGun(Relief& relief, const Gun& gun, int capacity) {
    const Plan plan = Arrange(gun);
    if (gun.below == Below::Bipod) LayBelow(relief, plan);
    if (capacity > 0) LayMagazine(relief, plan, capacity);
    LayStock(relief, plan);
    LayFront(relief, plan);
    LayFixedFeed(relief, plan);
    if (gun.below != Below::Bipod) LayBelow(relief, plan);
    LayBody(relief, plan);
    LayParts(relief, plan);
    LaySight(relief, plan);
}

}  // namespace art
