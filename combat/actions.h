// What the thing in a unit's hand can do: its fire modes, and the family of action that it and the chosen
// mode make.
#pragma once

#include <string_view>

/// The family of the current unit's held thing under the chosen fire mode, as "fire" or "cure"; empty when no
/// rule applies.
std::string_view ActionFamily();

/// Carries out what the current unit's held thing and the chosen fire mode do to the field pixel (x, y). What
/// is refused on the way stays undone, what has been paid stays paid.
void ActOnTarget(int x, int y);

/// Fills the list of fire modes for the current unit and chooses the first.
void ListActions();

/// Chooses an entry of the list of fire modes, as a click on it does; where the list has no such entry, none
/// is chosen.
void ChooseMode(int index);
