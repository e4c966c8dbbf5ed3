// The geometry of the field: what lies inside it, what can be entered or seen through, how a facing maps to
// an offset. Pure rules over the map and the units.
#pragma once

#include <array>
#include <string_view>

#include "data/terrain.h"
#include "platform/rounding.h"
#include "state/state.h"

/// The way a facing leads: one cell's offset, and its angle in steps of 45 degrees clockwise from east on the
/// screen.
struct FacingWay {
    int dx;
    int dy;
    int angleStep;
};

inline constexpr int FacingCount = 8;

// clang-format off
/// By facing.
inline constexpr std::array<FacingWay, FacingCount> FacingWays = {{
    { 1,  0, 0},  // east
    {-1,  0, 4},  // west
    { 0, -1, 6},  // north
    { 0,  1, 2},  // south
    { 1, -1, 7},  // north-east
    { 1,  1, 1},  // south-east
    {-1,  1, 3},  // south-west
    {-1, -1, 5},  // north-west
}};
// clang-format on

/// The offset of a facing; (0, 0) for anything else than 0 to 7.
FacingWay WayOf(int facing);

/// The cell of a pixel coordinate of the field.
constexpr int CellOfPixel(int pixel) {
    return FloorDivide(pixel, CellSize);
}

/// Whether a cell's block lets a step, or the view, through.
inline bool LetsStepThrough(const Cell& cell) {
    return cell.block == BlocksNothing || cell.block == BlocksView;
}
inline bool LetsViewThrough(const Cell& cell) {
    return cell.block == BlocksNothing || cell.block == BlocksSteps;
}

/// Whether the cell lets through a "step" or the "view"; false outside the field and for any other word.
bool CellOpen(std::string_view kind, int x, int y);

/// Whether a unit can step on the cell, any coordinates may be asked for: in the field, nobody there, open to
/// a step.
bool CellFreeToStep(int x, int y);

/// Whether the cell is one of the eight tiles of the squad's vehicle.
bool IsStoreTile(int x, int y);

/// Whether the unit looks at a tile of the vehicle right ahead, so that its store can be opened.
bool FacingStoreTile(int unit);
