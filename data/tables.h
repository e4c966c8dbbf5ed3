// The built-in tables: kinds of ammunition and equipment, ranks, awards. Everything finds things by short
// text keys.
#pragma once

#include <string_view>

#include "state/state.h"

constexpr int LongNames = 24;  // rankNames has the long names from there on

/// Fills itemKinds, reads the weapons file, fills rankNames and awardTable. Throws RunTimeError for the file.
void InitTables();

/// The row of itemKinds with this key; an empty row when there is none.
const ItemKind& ItemKindByName(std::string_view key);
