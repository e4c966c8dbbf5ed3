// What several benchmarks set up alike, on the built game's own map.
#pragma once

#include <vector>

#include "state/state.h"

/// Starts the game of seed 1 before the quiet audience, or on its windows.
void StartGame();
void StartShownGame();

/// Makes the quiet audience the one that the rules report to.
void LookAway();

/// Cells that a unit can stand on, the same for every run.
std::vector<Spot> Standings(int count);

/// Makes `percent` of the field's inner cells walls, the same for every run, and the rest open ground with
/// nobody on it.
void WallOff(int percent);

/// Makes the cells of a rectangle open ground with nobody on them.
void ClearGround(int left, int top, int width, int height);

/// Puts a unit on a cell, whole and with a turn's time.
void PutUnit(int index, Spot cell, int facing);
