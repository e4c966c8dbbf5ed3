// The joints of classes that run in lines: which sides each column joins, and the line through the cell.
#pragma once

#include <array>

#include <QPainterPath>

namespace art {

struct Joint {
    bool west, east, north, south;
};

constexpr int FullJoints = 11;  // columns 0 to 10
constexpr int AllJoints = 15;   // with the ends, columns 11 to 14

inline constexpr std::array<Joint, AllJoints> Joints{{
    // west  east  north  south
    {true, true, false, false},   // 0 west-east
    {false, false, true, true},   // 1 north-south
    {false, true, false, true},   // 2 corners
    {true, false, false, true},   // 3
    {false, true, true, false},   // 4
    {true, false, true, false},   // 5
    {true, true, false, true},    // 6 tees
    {true, true, true, false},    // 7
    {false, true, true, true},    // 8
    {true, false, true, true},    // 9
    {true, true, true, true},     // 10 cross
    {false, true, false, false},  // 11 ends
    {true, false, false, false},  // 12
    {false, false, false, true},  // 13
    {false, false, true, false},  // 14
}};

// The middle line, going on beyond the cell so that light and shadow join too. Bent corners curve, others are
// square.
QPainterPath JointLine(const Joint& joint, bool bent);

// Calls visit(outward) with the unit vector of each joined side.
template <typename Visitor>
void EachArm(const Joint& joint, Visitor visit) {
    if (joint.west) visit(QPointF(-1, 0));
    if (joint.east) visit(QPointF(1, 0));
    if (joint.north) visit(QPointF(0, -1));
    if (joint.south) visit(QPointF(0, 1));
}

}  // namespace art
