// The weapons file: one line a row, columns parted by tabs. Everything that can be held, worn, thrown or
// loaded has a row here.
#pragma once

#include <string_view>

#include "state/state.h"

/// Reads "\dat\weapons.dat" into weaponTable. Throws RunTimeError with line and column for a row with too few
/// columns, a column that isn't the number it should be, or when no row is named "hand". The last line may
/// lack its end when it is whole, that is, when something stands in its last column.
void ReadWeapons();

/// A copy of the first row with this key, so that it outlives the table; an empty row when there is none.
WeaponInfo WeaponInfoByName(std::string_view key);

/// Its index, -1 when there is none.
int WeaponIndex(std::string_view key);

/// "Weapon" for a row of kind "m" or "w", "Thing" for any other row, empty when no row has this key.
std::string_view ItemClass(std::string_view key);
