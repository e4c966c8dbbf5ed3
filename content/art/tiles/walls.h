// Walls seen from above: a band along the joint line with light on its north-west rims and a shadow to the
// south-east.
#pragma once

#include "kit/joints.h"
#include "kit/relief.h"
#include "tiles/grounds.h"

namespace art {

struct WallMake {
    Solid top;
    double width;                                              // of the band, pixels
    Loose footing;                                             // worn ground along its foot
    double apron;                                              // width of that ground, pixels; 0 for none
    void (*dress)(Relief&, QPointF outward, const WallMake&);  // boards, joints or blocks along one arm
};

// The wall of a joint, over whatever ground is there.
void BuildWall(Relief& relief, const Joint& joint, const WallMake& make);

// Worn ground along a joint, without the wall.
void BuildApron(Relief& relief, const Joint& joint, const WallMake& make);

// A wall whose middle is open: stubs at both sides of the cell, `stub` pixels long each.
void BuildStubs(Relief& relief, bool westEast, double stub, const WallMake& make);

// A rectangle given along and across a line through the middle of the cell, as a path on the tile. `from` and
// `to` run along the line from the cell's west or north side, `left` and `right` across it from the line.
QPainterPath Along(bool westEast, double from, double to, double left, double right);

// The same for an arm that leaves the middle in a direction; along counts from the middle outward.
QPainterPath AlongArm(QPointF outward, double from, double to, double left, double right);

// A pane between stubs, whole or with its glass broken out.
void BuildWindow(Relief& relief, bool westEast, const WallMake& make, const Solid& sill, bool broken);

}  // namespace art
