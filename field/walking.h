// Orders that move a unit: turning on the spot, one step, and a walk along a found path. A unit never moves
// by any other route; the computer player uses the same three.
#pragma once

#include <array>

/// What one step costs; the energy is doubled for who carries more than his strength.
struct StepCost {
    int time;
    int energy;
};

// clang-format off
/// By stance.
constexpr std::array<StepCost, 4> StepCosts = {{
    // time  energy
    {    8,     6 },  // prone
    {    6,     5 },  // crouch
    {    4,     1 },  // stand
    {    2,     3 },  // run
}};
// clang-format on

constexpr int TurnTime = 1;  // for 45 degrees

/// Turns the current unit to the one of eight directions that is nearest to a pixel of the field.
void TurnTowards(float px, float py);

/// Turns the current unit to `dir`, or, when it faces it already and `doStep` is set, takes one step. Whether
/// it did what was asked, as far as it could pay for it.
bool TurnOrStep(bool doStep, int dir);

/// Finds a path to cell (x, y) and walks at most `maxSteps` of it. Whether the whole plan was gone through.
/// Events run during the search, and for a soldier of the squad between steps; a newer order ends the walk.
bool WalkTo(int x, int y, int maxSteps);
