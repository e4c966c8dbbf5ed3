// The text source of a map: a legend that gives each glyph its terrain class and its way of choosing a tile,
// and a field of 46 lines of 76 glyphs. The head of 49.txt tells the format.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "source_text.h"
#include "tile_grid.h"

/// How a glyph's cell chooses its tile.
enum class Way {
    Tile,   // always the same column
    Pick,   // one of several columns, by the place of the cell
    Lay,    // a drawing over several cells, laid over the field again and again
    Join,   // a wall: joints 0 to 10
    Line,   // a line with ends: joints 0 to 14
    Axis,   // one of two columns: the line runs west-east or north-south
    Banks,  // water: open columns, or a bank where land is near
    Block,  // a drawing over several cells
};

constexpr int OwnColumn = -1;  // in a list of edges: the column that the way gives

/// The columns of a glyph where other glyphs lie beside it.
struct Fringe {
    std::string glyphs;
    bool toward = true;  // where one of the glyphs lies; else where none of them does, nor the glyph itself
    std::vector<int> columns;  // EdgeKinds of them, or several times as many to pick from
};

/// The column of a glyph with so many of its eight neighbours of some classes.
struct Surroundings {
    std::vector<Terrain> terrains;
    int neighbours = 0;
    int column = 0;
};

struct Glyph {
    bool defined = false;
    Terrain terrain = Surface;
    Way way = Way::Tile;
    std::vector<int> columns;
    std::vector<int> banks;      // BankKinds of them, or several times as many to pick from
    int width = 1, height = 1;   // of a Block, in cells; a Lay has a width alone
    bool links = false;          // the lines of its class go on into it
    bool steep = false;          // water beside it has no bank
    std::vector<Terrain> joins;  // the classes that its line goes on into
    std::vector<Fringe> fringes;
    std::vector<Surroundings> surroundings;
};

struct MapSource {
    std::array<Glyph, 128> legend;
    std::array<std::string, MapHeight> rows;
    int firstLine = 1;  // line of the file that holds row 0 of the field

    char GlyphAt(int x, int y) const;
    const Glyph& At(int x, int y) const;
    SourcePlace Place(int x, int y) const;
};

/// With faults the map isn't fit for use.
MapSource ReadMapSource(const std::vector<std::string>& lines, SourceFaults& faults);
