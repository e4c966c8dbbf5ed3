// One line of weapons.dat as its reader splits it, with the place of each column.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "data/weapon_columns.h"
#include "source_text.h"

/// The columns' names as the head of the file has them.
constexpr std::array<const char*, WeaponColumns> ColumnNames = {
    "group", "kind",  "name",   "sound", "power", "accur", "time", "range",   "durab", "9",
    "modes", "class", "second", "13",    "14",    "long",  "16",   "country", "title", "full"};

struct WeaponRow {
    std::vector<SourceWord> cells;  // an underscore alone, or a zero, is an empty text in text columns
    SourcePlace end;

    const SourceWord& Cell(std::size_t column) const { return cells[column]; }
    std::string Text(std::size_t column) const;
    const std::string& Key() const { return cells[KeyColumn].text; }
    bool IsWeapon() const { return cells[KindColumn].text == "m" || cells[KindColumn].text == "w"; }
};

/// Faults: more tabs in a row than the reader joins, an underscore within a text, too few or too many
/// columns. Without a fault of the last sort the row has WeaponColumns cells.
WeaponRow SplitWeaponRow(const std::string& line, int number, SourceFaults& faults);
