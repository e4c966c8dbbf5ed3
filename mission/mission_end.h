// The end of a mission: its verdict, and the end of the process.
#pragma once

/// Writes the vehicle store, names the outcome in a message box and ends the process. Does not return.
void EndGame();

/// Ends the game when a team has no one alive.
void EndIfEliminated();

/// The first team with no one alive, -1 for none. Writes the roll of the teams that it looks through to the
/// log.
int TeamEliminated();

/// Copies the squad onto the roster's places.
void SaveRosterBack();
