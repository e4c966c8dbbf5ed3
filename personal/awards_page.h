// The grid of ribbons at the foot of a soldier's file.
#pragma once

/// Fills the grid from the current unit's awards. Throws RunTimeError for a count that has no picture.
void ShowAwards();

/// Sets the tip of a place of the grid: the award's title and, from the second on, how many.
void imgAward_MouseMove(int place);
