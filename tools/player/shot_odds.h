// What a shot may come to, as an old soldier would judge it before he fires.
#pragma once

#include "state/state.h"

/// Cells between a unit and a cell, along a straight line.
double DistanceBetween(const Unit& unit, Spot cell);

/// The chance, 0 to 1, that a round of the unit passes through the cell aimed at.
double OddsOf(const Unit& unit, Spot target);

/// Whether a round of the unit for the target may hit a comrade in front of it.
bool EndangersComrade(const Unit& unit, Spot target);

/// Whether nothing between the two cells stops the view.
bool ViewIsClear(Spot from, Spot to);
