// How a unit holds itself: its stance, and how all units fire.
#pragma once

constexpr int StanceTime = 4;     // from one stance to the next
constexpr int SwitchingTime = 4;  // from one way of firing to the other

/// Changes the current unit's stance, 0 to 3, at StanceTime for each step between the two.
void SetStance(int newStance);

/// Switches between "stop for fire" and "fire in motion", for all units, at SwitchingTime of the current one.
void SwitchFiring();
