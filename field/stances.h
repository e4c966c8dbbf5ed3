// How a unit holds itself: its stance, and how all units fire.
#pragma once

/// Changes the current unit's stance, 0 to 3, at 4 time for each step between the two.
void SetStance(int newStance);

/// Switches between "stop for fire" and "fire in motion", for all units, at 4 time of the current one.
void SwitchFiring();
