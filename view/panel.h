// The status panel: bars, digits and the durability column of the current unit, its stance and its weapon's
// box.
#pragma once

#include <string_view>

/// Refreshes what changed: "stance", "time", "energy", "health", "durab", or "" for the first four. Only for
/// a unit of the player; one with too little time left then hands over to the next.
void ShowStatus(std::string_view what);

/// Shows the four bars and the condition of the current unit as they are, if it is one of the player's.
void RedrawPanel();

/// Shows the fire modes that the current unit has, and the chosen one.
void ShowModes();

/// Shows `value`, 0 to 999, in the three digits of bar 0 to 3.
void BarDigits(int bar, int value);

/// Lights the picture of a stance, 0 to 3, and no other.
void ShowStance(int stance);

/// Shows the weapon box with the rounds left in the feed; none for 0.
void ShowWeaponBox(int rounds);
