#include "tools/check/weapon_row.h"

#include <algorithm>

namespace {

constexpr std::size_t MaxTabs = 64;  // the reader makes one of so many

}  // namespace

std::string WeaponRow::Text(std::size_t column) const {
    const std::string& text = cells[column].text;
    return text == "_" || text == "0" ? "" : text;
}

WeaponRow SplitWeaponRow(const std::string& line, int number, SourceFaults& faults) {
    WeaponRow row;
    row.end = {number, static_cast<int>(line.size()) + 1};
    std::size_t begin = 0;
    while (true) {
        const std::size_t end = std::min(line.find('\t', begin), line.size());
        const SourceWord cell{line.substr(begin, end - begin), {number, static_cast<int>(begin) + 1}};
        const std::size_t underscore = cell.text.find('_');
        if (underscore != std::string::npos && cell.text != "_")
            faults.Add({{number, cell.place.column + static_cast<int>(underscore)},
                        "an underscore within a text reads as a zero",
                        "\"_\" alone for nothing"});
        row.cells.push_back(cell);
        if (end == line.size()) break;
        begin = std::min(line.find_first_not_of('\t', end), line.size());
        if (begin - end > MaxTabs)
            faults.Add({{number, static_cast<int>(end) + 1},
                        std::to_string(begin - end) + " tabs in a row",
                        std::to_string(MaxTabs) + " at most"});
    }
    // A column can't be empty: the file was cut here, or nothing is written for nothing.
    if (row.cells.back().text.empty()) row.cells.pop_back();
    if (row.cells.size() != WeaponColumns)
        faults.Add({row.cells.size() < WeaponColumns ? row.end : row.cells[WeaponColumns].place,
                    std::to_string(row.cells.size()) + " columns",
                    std::to_string(WeaponColumns) + " columns"});
    return row;
}
