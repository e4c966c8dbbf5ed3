#include "joints.h"

#include <algorithm>
#include <cstdint>

#include "edges.h"

namespace {

struct Side {
    int dx, dy, bit;
};

enum SideBit { West = 1, East = 2, North = 4, South = 8 };

constexpr Side Sides[] = {{-1, 0, West}, {1, 0, East}, {0, -1, North}, {0, 1, South}};

struct Joint {
    int sides;  // bits of the sides on which the line goes on
    int wall;   // column for a wall: a last piece is a straight one
    int line;   // column for a line that has ends
};

constexpr Joint Joints[] = {
    {West | East, 0, 0},
    {North | South, 1, 1},
    {East | South, 2, 2},
    {West | South, 3, 3},
    {East | North, 4, 4},
    {West | North, 5, 5},
    {West | East | South, 6, 6},
    {West | East | North, 7, 7},
    {North | South | East, 8, 8},
    {North | South | West, 9, 9},
    {West | East | North | South, 10, 10},
    {East, 0, 11},
    {West, 0, 12},
    {South, 1, 13},
    {North, 1, 14},
};

bool GoesOnInto(const MapSource& map, const Glyph& glyph, int x, int y) {
    if (!OnMap(x, y) || !map.At(x, y).links) return false;
    for (const Terrain terrain : glyph.joins) {
        if (terrain == map.At(x, y).terrain) return true;
    }
    return false;
}

int LinkedSides(const MapSource& map, int x, int y) {
    int sides = 0;
    for (const Side& side : Sides) {
        if (GoesOnInto(map, map.At(x, y), x + side.dx, y + side.dy)) sides |= side.bit;
    }
    return sides;
}

// A line that comes straight to the edge of the field goes on beyond it.
int RunOffField(int sides, int x, int y) {
    if (x == 0 && sides == East) return sides | West;
    if (x == MapWidth - 1 && sides == West) return sides | East;
    if (y == 0 && sides == South) return sides | North;
    if (y == MapHeight - 1 && sides == North) return sides | South;
    return sides;
}

int JointColumn(const MapSource& map, int x, int y) {
    const bool isLine = map.At(x, y).way == Way::Line;
    int sides = LinkedSides(map, x, y);
    if (isLine) sides = RunOffField(sides, x, y);
    for (const Joint& joint : Joints) {
        if (joint.sides == sides) return isLine ? joint.line : joint.wall;
    }
    throw SourceError(map.Place(x, y), "this piece of a line stands alone",
                      "a neighbour that the line goes on into");
}

int AxisColumn(const MapSource& map, int x, int y) {
    const int sides = LinkedSides(map, x, y);
    const int westEast = ((sides & West) != 0) + ((sides & East) != 0);
    const int northSouth = ((sides & North) != 0) + ((sides & South) != 0);
    if (westEast == northSouth) {
        throw SourceError(map.Place(x, y), "no telling which way this runs",
                          "its line on to the west and east, or north and south");
    }
    return map.At(x, y).columns[westEast > northSouth ? 0 : 1];
}

bool IsLand(const MapSource& map, int x, int y) {
    return OnMap(x, y) && map.At(x, y).terrain != Water && !map.At(x, y).steep;
}

// Scatters the cells over `count` choices so that neighbours differ; the same cell always gets the same.
std::size_t ChoiceAt(int x, int y, std::size_t count) {
    std::uint32_t hash =
        static_cast<std::uint32_t>(x) * 0x9E3779B1u ^ static_cast<std::uint32_t>(y) * 0x85EBCA77u;
    hash ^= hash >> 15;
    hash *= 0xC2B2AE3Du;
    hash ^= hash >> 13;
    return hash % count;
}

int PickColumn(const Glyph& glyph, int x, int y) {
    return glyph.columns[ChoiceAt(x, y, glyph.columns.size())];
}

// One of the columns of a kind; the list holds those of all kinds, once or several times.
int EdgeColumn(const std::vector<int>& columns, int kinds, EdgeKind kind, int x, int y) {
    const auto each = static_cast<std::size_t>(kinds);
    return columns[ChoiceAt(x, y, columns.size() / each) * each + static_cast<std::size_t>(kind)];
}

EdgeKind BankKindAt(const MapSource& map, int x, int y) {
    return EdgeKindOf([&](int dx, int dy) { return IsLand(map, x + dx, y + dy); });
}

int BankColumn(const MapSource& map, int x, int y) {
    const Glyph& glyph = map.At(x, y);
    const EdgeKind kind = BankKindAt(map, x, y);
    if (kind == EdgeKind::None) return PickColumn(glyph, x, y);
    if (kind == EdgeKind::HemmedIn) {
        throw SourceError(map.Place(x, y), "this water is hemmed in", "land on one side or on two that meet");
    }
    return EdgeColumn(glyph.banks, BankKinds, kind, x, y);
}

int LayColumn(const Glyph& glyph, int x, int y) {
    const int height = static_cast<int>(glyph.columns.size()) / glyph.width;
    const int place = y % height * glyph.width + x % glyph.width;
    return glyph.columns[static_cast<std::size_t>(place)];
}

// What lies beyond the field is like the cell itself.
bool IsForeign(const MapSource& map, const Fringe& fringe, char own, int x, int y) {
    if (!OnMap(x, y)) return false;
    const char glyph = map.GlyphAt(x, y);
    const bool named = fringe.glyphs.find(glyph) != std::string::npos;
    return fringe.toward ? named : !named && glyph != own;
}

// Water keeps the shape of its bank: a fringe of water counts where it has the same shape.
int FringeColumn(const MapSource& map, int x, int y) {
    for (const Fringe& fringe : map.At(x, y).fringes) {
        const EdgeKind kind = EdgeKindOf(
            [&](int dx, int dy) { return IsForeign(map, fringe, map.GlyphAt(x, y), x + dx, y + dy); });
        if (kind == EdgeKind::None || (map.At(x, y).way == Way::Banks && kind != BankKindAt(map, x, y)))
            continue;
        const int column = EdgeColumn(fringe.columns, EdgeKinds, kind, x, y);
        if (column != OwnColumn) return column;
    }
    return OwnColumn;
}

int SurroundedColumn(const MapSource& map, int x, int y) {
    for (const Surroundings& rule : map.At(x, y).surroundings) {
        int count = 0;
        for (int i = 0; i < 9; ++i) {
            const int nx = x + i % 3 - 1, ny = y + i / 3 - 1;
            if (!OnMap(nx, ny) || i == 4) continue;
            count += static_cast<int>(
                std::count(rule.terrains.begin(), rule.terrains.end(), map.At(nx, ny).terrain));
        }
        if (count >= rule.neighbours) return rule.column;
    }
    return OwnColumn;
}

// The drawing starts where neither the west nor the north neighbour has the glyph, and must be whole.
int BlockColumn(const MapSource& map, int x, int y) {
    const Glyph& glyph = map.At(x, y);
    int left = x, top = y;
    while (left > 0 && map.GlyphAt(left - 1, y) == map.GlyphAt(x, y))
        --left;
    while (top > 0 && map.GlyphAt(x, top - 1) == map.GlyphAt(x, y))
        --top;
    for (int j = 0; j < glyph.height; ++j) {
        for (int i = 0; i < glyph.width; ++i) {
            if (!OnMap(left + i, top + j) || map.GlyphAt(left + i, top + j) != map.GlyphAt(x, y)) {
                throw SourceError(
                    map.Place(left, top), "this drawing is not whole",
                    std::to_string(glyph.width) + " by " + std::to_string(glyph.height) + " cells of it");
            }
        }
    }
    if (x - left >= glyph.width || y - top >= glyph.height) {
        throw SourceError(
            map.Place(x, y), "this drawing is too large",
            std::to_string(glyph.width) + " by " + std::to_string(glyph.height) + " cells of it");
    }
    return glyph.columns.front() + (y - top) * glyph.width + (x - left);
}

int ColumnOfWay(const MapSource& map, int x, int y) {
    const Glyph& glyph = map.At(x, y);
    switch (glyph.way) {
        case Way::Join:
        case Way::Line:
            return JointColumn(map, x, y);
        case Way::Axis:
            return AxisColumn(map, x, y);
        case Way::Banks:
            return BankColumn(map, x, y);
        case Way::Block:
            return BlockColumn(map, x, y);
        case Way::Lay:
            return LayColumn(glyph, x, y);
        default:
            return PickColumn(glyph, x, y);
    }
}

int ColumnOf(const MapSource& map, int x, int y) {
    const int fringe = FringeColumn(map, x, y);
    if (fringe != OwnColumn) return fringe;
    const int surrounded = SurroundedColumn(map, x, y);
    return surrounded != OwnColumn ? surrounded : ColumnOfWay(map, x, y);
}

}  // namespace

TileGrid PlaceTiles(const MapSource& map, SourceFaults& faults) {
    TileGrid grid;
    for (int y = 0; y < MapHeight; ++y) {
        for (int x = 0; x < MapWidth; ++x) {
            Tile& tile = grid[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            tile.terrain = map.At(x, y).terrain;
            faults.Try([&] { tile.column = ColumnOf(map, x, y); });
        }
    }
    return grid;
}
