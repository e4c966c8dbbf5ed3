// The orders that a player gives to the squad's soldiers, be it a person at the windows or a player in code.
// Each acts on the current unit, and but for BeginOrder each ends the walk that runs.
#pragma once

/// Whether the squad awaits orders: not in the computer's turn, nor while a charge blows. A current soldier
/// who has died has then handed over to the next. Comes before every order.
bool BeginOrder();

/// An order by a key finds a current unit that isn't active passed over.
void PassOverUnfit();

/// Selects the soldier of the current unit's team on a cell; false when there is none. For anybody else a
/// line of the log says that he waits.
bool SelectAt(int cellX, int cellY);

/// Where SelectAt found nobody: the first order for a cell turns to a pixel of it, the second walks there.
void GoTo(int cellX, int cellY, float x, float y);

/// Turns to a pixel of the field and acts there, one order of one soldier.
void ActAt(float x, float y);

/// Turns to a facing or, when the unit faces it already, takes one step.
void StepTo(int facing);
