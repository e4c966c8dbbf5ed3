// The joints of classes that run in lines: which sides each column joins.
#pragma once

#include <array>

namespace art {

struct Joint {
    bool west, east, north, south;
};

inline constexpr std::array<Joint, 15> Joints{{
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

}  // namespace art
