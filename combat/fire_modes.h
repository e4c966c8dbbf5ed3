// The fire modes that the thing in a unit's hand offers, and the working copy of its feed, which depends on
// the chosen one.
#pragma once

#include <string_view>

/// Fills the list of fire modes for the current unit and chooses the first.
void ListActions();

/// Chooses an entry of the list of fire modes, as a click on it does; where the list has no such entry, none
/// is chosen.
void ChooseMode(int index);

/// "real2fake" takes the current unit's feed and rounds from the thing in its hand, "fake2real" puts them
/// back there. Which feed follows from the action family.
void HandSync(std::string_view direction);
