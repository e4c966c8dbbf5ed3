#include "map_files.h"

#include <algorithm>
#include <vector>

namespace {

// Columns that the tile sheet draws, by class.
constexpr std::array<int, TerrainCount> SheetTiles = {
    32,  // surface
    32,  // water
    22,  // trees
    27,  // wooden
    24,  // concrete
    24,  // stone
    32,  // roads
    17,  // trenches
    17,  // prickles
    28,  // ships
    31,  // various
    32,  // highways
    16,  // fence
};

constexpr int BadValue = -1;

using Values = std::array<std::array<int, MapWidth>, MapHeight>;

// One line of a layer, without its end.
void ReadLine(const std::string& text, int number, std::array<int, MapWidth>& values, SourceFaults& faults) {
    for (std::size_t x = 0; x < text.size() && x < values.size(); ++x) {
        const int code = static_cast<unsigned char>(text[x]);
        const SourcePlace place{number, static_cast<int>(x) + 1};
        if (code >= FirstCode)
            values[x] = code - FirstCode;
        else if (!faults.Full())
            faults.Add({place, "a control character", "a cell: a character from the blank on"});
    }
    if (text.size() != values.size())
        faults.Add({{number, static_cast<int>(std::min(text.size(), values.size())) + 1},
                    "a line of " + std::to_string(text.size()) + " cells",
                    std::to_string(MapWidth) + " cells"});
}

Values ReadValues(const std::string& layer, SourceFaults& faults) {
    Values values;
    for (auto& row : values)
        row.fill(BadValue);
    std::size_t begin = 0;
    int number = 1;
    for (; begin < layer.size(); ++number) {
        const std::size_t end = std::min(layer.find('\n', begin), layer.size());
        std::string text = layer.substr(begin, end - begin);
        if (text.ends_with('\r')) text.pop_back();
        if (number > MapHeight)
            faults.Add({{number, 1}, "a line too many", std::to_string(MapHeight) + " lines"});
        else
            ReadLine(text, number, values[static_cast<std::size_t>(number) - 1], faults);
        if (end == layer.size())
            faults.Add({{number, static_cast<int>(text.size()) + 1},
                        "the file ends within a line",
                        "the end of the line"});
        begin = end + 1;
    }
    if (number <= MapHeight)
        faults.Add({{number, 1}, "the layer ends too early", std::to_string(MapHeight) + " lines"});
    return values;
}

const std::string& ClassList() {
    static const std::string list = [] {
        std::vector<std::string> classes;
        classes.reserve(TerrainCount);
        for (int terrain = 0; terrain < TerrainCount; ++terrain)
            classes.push_back(std::to_string(terrain) + " " + TerrainName(terrain));
        return JoinWords(classes);
    }();
    return list;
}

Tile TileOf(int column, int terrain, SourcePlace place, SourceFaults& columnFaults,
            SourceFaults& classFaults) {
    const Tile grass;
    if (terrain >= TerrainCount && !classFaults.Full())
        classFaults.Add(
            {place, "there is no terrain class " + std::to_string(terrain), "one of " + ClassList()});
    if (column == BadValue || terrain == BadValue || terrain >= TerrainCount) return grass;
    const auto known = static_cast<Terrain>(terrain);
    if (column >= KnownColumns(known)) {
        if (!columnFaults.Full())
            columnFaults.Add({place,
                              "there is no tile " + std::to_string(column) + " of " + TerrainName(terrain),
                              "0 to " + std::to_string(KnownColumns(known) - 1)});
        return grass;
    }
    return {column, known};
}

template <typename ValueOf>
std::string LayerText(const TileGrid& grid, ValueOf valueOf) {
    std::string text;
    for (const auto& row : grid) {
        for (const Tile& tile : row)
            text.push_back(static_cast<char>(FirstCode + valueOf(tile)));
        text += "\r\n";
    }
    return text;
}

}  // namespace

LayerTexts LayersOf(const TileGrid& grid) {
    return {LayerText(grid, [](const Tile& tile) { return tile.column; }),
            LayerText(grid, [](const Tile& tile) { return static_cast<int>(tile.terrain); }),
            LayerText(grid, [](const Tile&) { return 0; })};
}

int KnownColumns(Terrain terrain) {
    return SheetTiles[static_cast<std::size_t>(terrain)];
}

TileGrid ReadLayers(const std::string& columns, const std::string& classes, SourceFaults& columnFaults,
                    SourceFaults& classFaults) {
    const Values columnValues = ReadValues(columns, columnFaults);
    const Values classValues = ReadValues(classes, classFaults);
    TileGrid grid;
    for (std::size_t y = 0; y < grid.size(); ++y) {
        for (std::size_t x = 0; x < grid[y].size(); ++x)
            grid[y][x] =
                TileOf(columnValues[y][x], classValues[y][x],
                       {static_cast<int>(y) + 1, static_cast<int>(x) + 1}, columnFaults, classFaults);
    }
    return grid;
}

void CheckStrengths(const std::string& strengths, SourceFaults& faults) {
    ReadValues(strengths, faults);
}
