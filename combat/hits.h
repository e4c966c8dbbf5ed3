// Whether a bullet, a blow or a blast that reaches a unit's cell takes effect, and what follows when it does.
#pragma once

/// Rolls the chance of `shooter` (a unit or a charge) against the unit `target` with the shared bullet, and
/// takes the damage from its health. On a death its things fall, its cell is free and the mission may end.
void UnitHit(int shooter, int target);

/// Distance of two units' cells, floored.
int UnitDistance(int a, int b);

/// How much of the target lies open to the shooter by stance and facings: 1, 2 or 3; 0 for a stance or facing
/// that isn't one.
int HitAngle(int shooter, int target);
