// Who has sighted whom: each unit's own record of the enemies that it has seen, the counter that shows it,
// and the ways to bring a unit into view.
#pragma once

#include <string_view>

struct Unit;

/// The current unit looks: casts its fan, notes each enemy that the fan reaches for the first time, and has
/// it drawn.
void UnitLookEnemies();

/// Looks, and tells whether the counter shows an enemy.
bool aiSeeCheck();

/// "clear" forgets what the current unit has sighted, "add" counts one more, "show" shows the count when
/// there is one.
void EnemyCounter(std::string_view command);

/// Brings a unit into view and flashes the selection on it. Events run meanwhile; one that begins another
/// flash ends this one.
void ScrollToUnit(int unit);
