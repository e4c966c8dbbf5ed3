// An operation keeps its unit: a turn, a step, a change of stance or an action works to its end on the unit
// that it began with, with that unit's fire modes and its own flights, whatever events select, order or kill
// meanwhile.
#pragma once

#include <functional>

#include "state/state.h"

/// Runs `body` as an operation. While one runs, the hand-over of a spent soldier waits; when the outermost
/// has ended and the current unit asked for it, the next one is selected, once. What events selected in the
/// middle stays selected.
void RunOperation(const std::function<void()>& body);

/// Runs `body` with `unit` current, and then puts back the unit and the team that were.
template <typename Body>
void AsCurrentUnit(int unit, Body body) {
    const i16 keptUnit = curUnit;
    const i16 keptTeam = curTeam;
    curUnit = unit;
    body();
    curUnit = keptUnit;
    curTeam = keptTeam;
}

/// A soldier of the player has too little time to act: selects the next one, now or when the running
/// operation has ended.
void AskHandOver();

/// Runs `body`, in which nobody hands over: the selection itself goes on to the next.
void HoldHandOver(const std::function<void()>& body);

/// Lets events run in the middle of whatever goes on, through `pump`. They act on the unit that was selected
/// last; a running operation then goes on with its own unit, fire modes and flight.
void PumpKeepingOrder(const std::function<void()>& pump);
