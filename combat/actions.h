// What an order to act does: the family of the thing in hand leads to shooting, to a blow, a cure or a tool.
#pragma once

/// Carries out what the current unit's held thing and the chosen fire mode do to the field pixel (x, y). What
/// is refused on the way stays undone, what has been paid stays paid.
void ActOnTarget(int x, int y);
