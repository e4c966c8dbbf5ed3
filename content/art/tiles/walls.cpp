#include "tiles/walls.h"

#include <algorithm>

#include "kit/noise.h"
#include "kit/shapes.h"

namespace art {
namespace {

constexpr double Side = 20;
constexpr double Beyond = 9;  // into the hidden margin
constexpr double WindowStub = 3.4;

// Splinters of glass on both sides of an empty frame.
void Shards(Relief& relief, bool westEast, double reach) {
    Dice dice(431);
    for (int i = 0; i < 11; ++i) {
        const auto along = static_cast<double>(dice.Roll(4.5f, 15));
        const double off = static_cast<double>(dice.Roll(0.5f, 1)) * reach * (i % 2 == 0 ? 1 : -1);
        const double x = westEast ? along : 10 + off;
        const double y = westEast ? 10 + off : along;
        const auto size = static_cast<double>(dice.Roll(0.7f, 1.3f));
        relief.Lay(Polygon({{x, y - size}, {x + size, y + size * 0.4}, {x - size * 0.6, y + size * 0.7}}),
                   {.colour = Colour(i % 3 == 0 ? Ink::Snow : Ink::Foam), .height = 0.4f});
    }
}

void Pane(Relief& relief, bool westEast) {
    relief.Lay(Along(westEast, WindowStub, Side - WindowStub, -1.5, 1.5),
               {.colour = Colour(Ink::Shallow), .height = 3.2f, .round = 0.4f, .grain = 0});
    for (const double at : Steps(WindowStub, Side - WindowStub, 3.3)) {
        relief.Stain(Along(westEast, at + 0.6, at + 1.5, -1.4, 1.4), Colour(Ink::Snow), 0.85);
    }
}

}  // namespace

QPainterPath Along(bool westEast, double from, double to, double left, double right) {
    return westEast ? Rect(from, 10 + left, to - from, right - left)
                    : Rect(10 + left, from, right - left, to - from);
}

QPainterPath AlongArm(QPointF outward, double from, double to, double left, double right) {
    const QPointF across(-outward.y(), outward.x());
    const QPointF middle(10, 10);
    return Polygon({middle + outward * from + across * left, middle + outward * to + across * left,
                    middle + outward * to + across * right, middle + outward * from + across * right});
}

void BuildApron(Relief& relief, const Joint& joint, const WallMake& make) {
    if (make.apron <= 0) return;
    const QPainterPath area = Widened(JointLine(joint, false), make.apron, Qt::RoundCap, Qt::RoundJoin);
    LoosePatch(relief, area, make.footing, 0, 1.3f);
}

void BuildWall(Relief& relief, const Joint& joint, const WallMake& make) {
    relief.LayLine(JointLine(joint, false), make.width, make.top, Qt::SquareCap, Qt::MiterJoin);
    EachArm(joint, [&](QPointF outward) { make.dress(relief, outward, make); });
}

void BuildStubs(Relief& relief, bool westEast, double stub, const WallMake& make) {
    const double half = make.width / 2;
    relief.Lay(Along(westEast, -Beyond, stub, -half, half), make.top);
    relief.Lay(Along(westEast, Side - stub, Side + Beyond, -half, half), make.top);
}

void BuildWindow(Relief& relief, bool westEast, const WallMake& make, const Solid& sill, bool broken) {
    const double half = make.width / 2;
    relief.Lay(Along(westEast, 0, Side, -half, half), sill);
    BuildStubs(relief, westEast, WindowStub, make);
    if (broken) {
        Shards(relief, westEast, half + 2.5);
    } else {
        Pane(relief, westEast);
    }
}

}  // namespace art
