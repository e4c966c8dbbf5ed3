// The sight fan: which cells a unit's rays reach, in the order in which they reach them. There is no other
// test of sight in the game.
#pragma once

#include <cstdint>
#include <span>

/// What every look writes into the looker: it sets the width of the fan in degrees and its reach, alike for
/// all units.
constexpr int SightPerception = 150;

/// Cells from the looker's to the farthest that a ray may come to, along either axis.
constexpr int SightReach = 26;

/// A cell relative to the looker's.
struct FanStep {
    std::int8_t dx;
    std::int8_t dy;
};

/// One ray's cells, outward. A sample that falls into the cell of the one before it is left out.
using Ray = std::span<const FanStep>;

/// The 27 rays from the cell (x, y) of the field, for a facing of 0 to 7.
std::span<const Ray> SightFan(int facing, int x, int y);

/// Casts the fan of a unit at (x, y). `examine` is called with each cell that it enters, in order, cells
/// outside the field included, and says whether the ray goes on.
template <typename Examine>
void CastFan(int facing, int x, int y, Examine examine) {
    // ODDITY: the cell last examined is not forgotten between rays, nor at the start. A ray that begins where
    // the one before it ended runs on through that cell, closed or not; and the corner cell isn't examined at
    // first.
    int lastX = 0;
    int lastY = 0;
    for (const Ray& ray : SightFan(facing, x, y)) {
        for (const FanStep& step : ray) {
            const int cellX = x + step.dx;
            const int cellY = y + step.dy;
            if (cellX == lastX && cellY == lastY) continue;
            lastX = cellX;
            lastY = cellY;
            if (!examine(cellX, cellY)) break;
        }
    }
}
