// An award that was just granted, shown in the file of the unit that got it.
#pragma once

/// Shows the current unit's file with a border around a row of the awards.
void ShowAward(int row);

/// Takes the border away and closes the file.
void PutAwardAway();
