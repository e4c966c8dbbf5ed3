// The status panel: bars, digits and the durability column of the current unit, its stance and its weapon's
// box.
#pragma once

#include <string>
#include <string_view>

/// Shows what changed of the current unit: "stance", "time", "energy", "health", "durab", or "" for the first
/// four.
void ShowFigures(std::string_view what);

/// Shows what the current unit holds and its fire modes, and its figures if it is one of the player's.
void RedrawPanel();

/// Shows how all units fire.
void ShowFiring();

/// Shows how many enemies the current unit has sighted; nothing for none.
void ShowEnemyCount();

/// Adds a line to the list of the log.
void AddToList(const std::string& line);

/// Shows the fire modes that the current unit has, and the chosen one.
void ShowModes();

/// Shows `value`, 0 to 999, in the three digits of bar 0 to 3.
void BarDigits(int bar, int value);

/// Lights the picture of a stance, 0 to 3, and no other.
void ShowStance(int stance);

/// Shows the weapon box with the rounds left in the feed; none for 0.
void ShowWeaponBox(int rounds);
