// The wave search of a walk: a wave spreads from the destination over the free cells until it reaches the
// walker, and the plan is traced back along it. Diagonals count as one step, and corners aren't tested. A
// plan that needs no detour is found without a wave, and is the same.
#pragma once

#include <functional>
#include <vector>

/// One step of a plan: the offset of the cell that the walker means to go to.
struct PlanStep {
    int dx;
    int dy;
};

/// The plan from the walker's cell to a destination, at most `maxSteps` long. The field is looked at first;
/// then `afterWave` is called once for each whole wave but the last. Where no path exists the plan is
/// `maxSteps` entries of (0, 0), 251 at the most. Throws RunTimeError (Subscript) where the trace leaves the
/// field, which it does from row 0 or column 0, and at once for a destination outside the field.
std::vector<PlanStep> SearchPath(int walkerX, int walkerY, int x, int y, int maxSteps,
                                 const std::function<void()>& afterWave);
