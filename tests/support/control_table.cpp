#include "tests/support/control_table.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace {

std::vector<std::string> Columns(const std::string& line) {
    std::vector<std::string> columns;
    std::istringstream text(line);
    for (std::string column; std::getline(text, column, '\t');)
        columns.push_back(column == "-" ? "" : column);
    return columns;
}

std::optional<int> Number(const std::string& column, int base = 10) {
    if (column.empty()) return std::nullopt;
    return std::stoi(column, nullptr, base);
}

std::optional<Colour> ColourOf(const std::string& column) {
    const std::optional<int> rgb = Number(column, 16);
    if (!rgb) return std::nullopt;
    return Rgb(*rgb >> 16, *rgb >> 8 & 255, *rgb & 255);
}

}  // namespace

std::vector<ControlRow> ControlTable() {
    constexpr std::size_t ColumnCount = 15;
    std::ifstream file(CONTROL_TABLE);
    std::vector<ControlRow> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#')) continue;
        const std::vector<std::string> c = Columns(line);
        if (c.size() != ColumnCount) throw std::runtime_error("controls.txt: " + line);
        rows.push_back({c[0], c[1], std::stoi(c[2]), c[3], c[4], Number(c[5]), Number(c[6]), std::stoi(c[7]),
                        std::stoi(c[8]), c[9] == "shown", ColourOf(c[10]), ColourOf(c[11]), c[12], c[13],
                        c[14]});
    }
    return rows;
}

std::string KindName(ControlKind kind) {
    static constexpr const char* Names[] = {"Form",  "PictureBox", "Image",  "HScrollBar", "VScrollBar",
                                            "Combo", "List",       "Button", "Label",      "Text",
                                            "Timer", "Shape",      "Line",   "Menu"};
    return Names[static_cast<int>(kind)];
}
