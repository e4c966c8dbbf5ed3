// The turn engine: the teams take turns, and within a turn the selection walks from unit to unit. These
// routines call one another and go on after the inner call has returned.
#pragma once

struct Unit;

/// The time that a unit has at the beginning of its turn.
int TimeOfTurn(const Unit& unit);

/// The next team's turn: refills its units and selects the first that can act.
void NewTurn();

/// Moves curUnit to the next unit that can act. A soldier of the player waits then for orders; the computer's
/// units act one after the other in here. Ends the turn when nobody is left, the mission when everybody is
/// dead.
void SelectNextUnit();

/// Shows the current unit as the selected one: its weapon in its hand, the panel, its place in the view, and
/// the enemies that it sees.
void ShowSelection();

/// The current unit gives up its turn: its time is gone, and the next one is selected.
void TimeSpendAll();

/// The current unit gets 200 time more, 800 in all at most.
void TimeGrant();

/// The same two for energy.
void EnergySpendAll();
void EnergyGrant();

/// Hides every enemy again until a soldier sees it.
void ClearSightings();
