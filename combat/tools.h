// What a unit does at arm's length, without firing: the blow at a neighbour, the medical kit, digging and
// filling.
#pragma once

// Blows and cures reach nobody beyond these.
constexpr int LastColumnInReach = 34;
constexpr int LastRowInReach = 15;

constexpr int HighestGround = 200;  // level of ground that is full; 0 is the deepest trench

/// The current unit's blow at cell (x, y).
void MeleeHit(int x, int y);

/// The current unit uses its medical kit on cell (x, y).
void CureAt(int x, int y);

/// The roll of a cure and its effect.
void CureUnit(int healer, int target);

/// Raises or lowers the ground of a cell by `delta` and shows it. Only plain ground and trenches change;
/// outside the field nothing does.
void SurfaceChange(int x, int y, int delta);
