#include "edges.h"

namespace {

struct Neighbour {
    int dx, dy;
    int mark;  // the bit of a side, the kind of a corner
};

enum SideBit { North = 1, South = 2, West = 4, East = 8 };

constexpr Neighbour Sides[] = {{0, -1, North}, {0, 1, South}, {-1, 0, West}, {1, 0, East}};

// Bits of the sides by kind, from EdgeKind::North on.
constexpr int SidesOfKind[] = {North,        South,        West,         East,
                               North | West, North | East, South | West, South | East};

constexpr Neighbour Corners[] = {{-1, -1, 8}, {1, -1, 9}, {-1, 1, 10}, {1, 1, 11}};

}  // namespace

EdgeKind EdgeKindOf(const std::function<bool(int dx, int dy)>& foreign) {
    int sides = 0;
    for (const Neighbour& side : Sides) {
        if (foreign(side.dx, side.dy)) sides |= side.mark;
    }
    for (int kind = 0; kind <= static_cast<int>(EdgeKind::SouthEast); ++kind) {
        if (SidesOfKind[kind] == sides) return static_cast<EdgeKind>(kind);
    }
    if (sides != 0) return EdgeKind::HemmedIn;
    for (const Neighbour& corner : Corners) {
        if (foreign(corner.dx, corner.dy)) return static_cast<EdgeKind>(corner.mark);
    }
    return EdgeKind::None;
}
