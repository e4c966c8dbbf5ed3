#include "map_source.h"

#include <algorithm>
#include <cstdint>

#include "edges.h"
#include "map_files.h"
#include "platform/quoted.h"

namespace {

struct WayRule {
    const char* word;
    Way way;
    int columnLists;  // words with columns that follow
    bool links;
};

constexpr WayRule WayRules[] = {
    {"tile", Way::Tile, 1, false},   {"pick", Way::Pick, 1, false}, {"join", Way::Join, 0, true},
    {"line", Way::Line, 0, true},    {"axis", Way::Axis, 2, true},  {"banks", Way::Banks, 1, false},
    {"block", Way::Block, 1, false}, {"lay", Way::Lay, 1, false},
};

constexpr int MaxRepeat = 99;

// The words of one line of the legend, taken one after another.
class LegendLine {
  public:
    LegendLine(std::vector<SourceWord> all, SourcePlace end) : words(std::move(all)), endPlace(end) {}

    bool Empty() const { return next == words.size(); }

    const SourceWord& Take(const std::string& expected) {
        if (Empty()) throw SourceError(endPlace, "the line ends too early", expected);
        return words[next++];
    }

  private:
    std::vector<SourceWord> words;
    SourcePlace endPlace;
    std::size_t next = 0;
};

std::vector<SourceWord> SplitAt(const SourceWord& word, char mark) {
    std::vector<SourceWord> parts;
    std::size_t begin = 0;
    while (begin <= word.text.size()) {
        const std::size_t end = std::min(word.text.find(mark, begin), word.text.size());
        parts.push_back({word.text.substr(begin, end - begin),
                         {word.place.line, word.place.column + static_cast<int>(begin)}});
        begin = end + 1;
    }
    return parts;
}

// "0x8,1-7": column 0 eight times and the columns 1 to 7 once each. With `own`, "_" is OwnColumn.
std::vector<int> ColumnsOf(const SourceWord& word, Terrain terrain, bool own = false) {
    const int lastKnown = KnownColumns(terrain) - 1;
    std::vector<int> columns;
    for (const SourceWord& part : SplitAt(word, ',')) {
        const std::vector<SourceWord> repeat = SplitAt(part, 'x');
        const int times = repeat.size() > 1 ? NumberOf(repeat.back(), 1, MaxRepeat, "repeat") : 1;
        const auto count = static_cast<std::size_t>(times);
        if (own && repeat.front().text == "_") {
            columns.insert(columns.end(), count, OwnColumn);
            continue;
        }
        const std::vector<SourceWord> range = SplitAt(repeat.front(), '-');
        const int first = NumberOf(range.front(), 0, lastKnown, "column");
        const int last = NumberOf(range.back(), first, lastKnown, "column");
        for (int column = first; column <= last; ++column)
            columns.insert(columns.end(), count, column);
    }
    return columns;
}

// The columns of every kind of edge, once or several times.
std::vector<int> EdgesOf(const SourceWord& word, Terrain terrain, int kinds) {
    std::vector<int> columns = ColumnsOf(word, terrain, true);
    if (columns.size() % static_cast<std::size_t>(kinds) != 0) {
        throw SourceError(word.place, std::to_string(columns.size()) + " columns of edges",
                          std::to_string(kinds) + ", or several times as many");
    }
    return columns;
}

std::vector<std::string> TerrainWords() {
    std::vector<std::string> words;
    words.reserve(TerrainCount);
    for (int terrain = 0; terrain < TerrainCount; ++terrain)
        words.emplace_back(TerrainName(terrain));
    return words;
}

Terrain TerrainOf(const SourceWord& word) {
    return static_cast<Terrain>(IndexOf(word, TerrainWords(), "terrain class"));
}

const WayRule& WayRuleOf(const SourceWord& word) {
    std::vector<std::string> names;
    for (const WayRule& rule : WayRules)
        names.emplace_back(rule.word);
    return WayRules[IndexOf(word, names, "way to choose a tile")];
}

std::vector<Terrain> TerrainsOf(const SourceWord& word) {
    std::vector<Terrain> terrains;
    for (const SourceWord& part : SplitAt(word, ','))
        terrains.push_back(TerrainOf(part));
    return terrains;
}

Fringe ReadFringe(LegendLine& line, Terrain terrain, bool toward) {
    const std::string glyphs = line.Take("glyphs, with nothing between them").text;
    return {glyphs, toward, EdgesOf(line.Take("columns of edges"), terrain, EdgeKinds)};
}

Surroundings ReadSurroundings(LegendLine& line, Terrain terrain) {
    constexpr int AllAround = 8;
    Surroundings rule;
    rule.terrains = TerrainsOf(line.Take("a list of terrain classes"));
    rule.neighbours = NumberOf(line.Take("a number of neighbours"), 1, AllAround, "number of neighbours");
    rule.column = NumberOf(line.Take("a column"), 0, KnownColumns(terrain) - 1, "column");
    return rule;
}

void ReadOption(const SourceWord& word, LegendLine& line, Glyph& glyph) {
    enum Option : std::uint8_t { Also, Link, Steep, Toward, Except, Amid };
    switch (IndexOf(word, {"also", "link", "steep", "toward", "except", "amid"}, "option")) {
        case Also:
            for (const Terrain terrain : TerrainsOf(line.Take("a list of terrain classes")))
                glyph.joins.push_back(terrain);
            break;
        case Link:
            glyph.links = true;
            break;
        case Steep:
            glyph.steep = true;
            break;
        case Toward:
            glyph.fringes.push_back(ReadFringe(line, glyph.terrain, true));
            break;
        case Except:
            glyph.fringes.push_back(ReadFringe(line, glyph.terrain, false));
            break;
        default:
            glyph.surroundings.push_back(ReadSurroundings(line, glyph.terrain));
            break;
    }
}

// The words after the columns, then ": description" or the end.
void ReadOptions(LegendLine& line, Glyph& glyph) {
    while (!line.Empty()) {
        const SourceWord& word = line.Take("an option");
        if (word.text == ":") return;
        ReadOption(word, line, glyph);
    }
}

// A cell that looks different must not be different: all columns by which a glyph's cell may be drawn have
// the same rules.
void CheckColumns(const Glyph& glyph, SourcePlace place) {
    std::vector<int> columns = glyph.columns;
    for (const Fringe& fringe : glyph.fringes)
        columns.insert(columns.end(), fringe.columns.begin(), fringe.columns.end());
    for (const Surroundings& rule : glyph.surroundings)
        columns.push_back(rule.column);
    const int first = columns.front();
    for (const int column : columns) {
        if (column == OwnColumn || (TileBlock(column, glyph.terrain) == TileBlock(first, glyph.terrain) &&
                                    CellDurab(column, glyph.terrain) == CellDurab(first, glyph.terrain)))
            continue;
        throw SourceError(place,
                          "columns " + std::to_string(first) + " and " + std::to_string(column) +
                              " differ in strength or in what they stop",
                          "columns that the rules take for the same");
    }
}

Glyph ReadGlyph(LegendLine& line, SourcePlace place) {
    Glyph glyph;
    glyph.defined = true;
    glyph.terrain = TerrainOf(line.Take("a terrain class"));
    glyph.joins = {glyph.terrain};
    const WayRule& rule = WayRuleOf(line.Take("a way to choose a tile"));
    glyph.way = rule.way;
    glyph.links = rule.links;
    for (int i = 0; i < rule.columnLists; ++i) {
        const std::vector<int> columns = ColumnsOf(line.Take("columns of the tile sheet"), glyph.terrain);
        glyph.columns.insert(glyph.columns.end(), columns.begin(), columns.end());
    }
    if (glyph.way == Way::Banks)
        glyph.banks = EdgesOf(line.Take("columns of the banks"), glyph.terrain, BankKinds);
    if (glyph.way == Way::Lay) {
        const SourceWord& word = line.Take("the width in cells");
        glyph.width = NumberOf(word, 1, static_cast<int>(glyph.columns.size()), "width");
    }
    if (glyph.way == Way::Block) {
        glyph.width = NumberOf(line.Take("the width in cells"), 1, MapWidth, "width");
        glyph.height = NumberOf(line.Take("the height in cells"), 1, MapHeight, "height");
    }
    ReadOptions(line, glyph);
    if (glyph.way == Way::Tile || glyph.way == Way::Pick || glyph.way == Way::Lay) CheckColumns(glyph, place);
    return glyph;
}

void ReadLegendLine(const std::string& text, int number, MapSource& map) {
    LegendLine line(SplitWords(text, number), {number, static_cast<int>(text.size()) + 1});
    const SourceWord& key = line.Take("a glyph");
    const char glyph = key.text.front();
    if (key.text.size() != 1 || glyph <= ' ' || glyph > '~') {
        throw SourceError(key.place, Quoted(key.text) + " is no glyph", "one printable ASCII character");
    }
    Glyph& entry = map.legend[static_cast<unsigned char>(glyph)];
    if (entry.defined)
        throw SourceError(key.place, "glyph " + Quoted(key.text) + " comes twice", "each glyph once");
    entry.defined = true;  // also when the rest has a fault
    entry = ReadGlyph(line, key.place);
}

void ReadFieldLine(const std::string& text, int number, MapSource& map, std::string& row,
                   SourceFaults& faults) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto code = static_cast<unsigned char>(text[i]);
        if (code >= map.legend.size() || !map.legend[code].defined) {
            faults.Add(
                {{number, static_cast<int>(i) + 1}, "the legend has no such glyph", "a glyph of the legend"});
        }
    }
    if (text.size() != static_cast<std::size_t>(MapWidth)) {
        throw SourceError({number, static_cast<int>(text.size()) + 1},
                          "this row of the field has " + std::to_string(text.size()) + " glyphs",
                          std::to_string(MapWidth));
    }
    row = text;
}

bool IsBlankOrComment(const std::string& text) {
    return text.find_first_not_of(" \t") == std::string::npos || text.front() == '#';
}

int LineNumber(std::size_t index) {
    return static_cast<int>(index) + 1;
}

}  // namespace

char MapSource::GlyphAt(int x, int y) const {
    return rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
}

const Glyph& MapSource::At(int x, int y) const {
    return legend[static_cast<unsigned char>(GlyphAt(x, y))];
}

SourcePlace MapSource::Place(int x, int y) const {
    return {firstLine + y, x + 1};
}

MapSource ReadMapSource(const std::vector<std::string>& lines, SourceFaults& faults) {
    MapSource map;
    std::size_t i = 0;
    for (; i < lines.size() && lines[i] != "field"; ++i) {
        if (!IsBlankOrComment(lines[i]) && lines[i] != "legend")
            faults.Try([&] { ReadLegendLine(lines[i], LineNumber(i), map); });
    }
    map.firstLine = LineNumber(i) + 1;
    for (std::string& row : map.rows) {
        if (++i >= lines.size()) {
            faults.Add({{LineNumber(std::min(i, lines.size())), 1},
                        "the field ends too early",
                        "\"field\" and " + std::to_string(MapHeight) + " rows"});
            return map;
        }
        faults.Try([&] { ReadFieldLine(lines[i], LineNumber(i), map, row, faults); });
    }
    for (++i; i < lines.size(); ++i) {
        if (!IsBlankOrComment(lines[i]))
            faults.Add({{LineNumber(i), 1}, "text after the field", "the end of the file"});
    }
    return map;
}
