// The orders that a player in code gives: straight to the rules, or through a door for input like a person's.
#pragma once

#include "platform/input_event.h"
#include "state/state.h"

/// Orders go as input through `door` from now on; nullptr, as at first, for straight to the rules.
void SendOrdersTo(void (*door)(const InputEvent&));

/// A left or right click on the middle of a cell.
void SelectOrWalkTo(int cellX, int cellY);
void ActOn(int cellX, int cellY);

/// The current soldier turns to `facing` or, if he faces there already, takes one step.
void TurnOrStepTo(Facing facing);

void TakeStance(Stance stance);
void PassToNext();
void EndTurn();
void LeaveMission();
