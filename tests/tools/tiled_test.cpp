// What a map holds is kept on its way through the map editor; what the editor could bring that the game can't
// hold is refused at its place. The script beside it takes the whole map there and back.
#include <gtest/gtest.h>

#include "tests/support/game_test.h"
#include "tools/tiled/tmx_reader.h"
#include "tools/tiled/tmx_writer.h"

namespace {

class TiledTest : public GameTest {
  protected:
    GameMap Map() const {
        Findings findings;
        GameMap map = ReadGameMap(folder.Path() / "map/49", findings);
        EXPECT_EQ(FindingsText(findings), "");
        return map;
    }
};

TEST_F(TiledTest, PlacesAmongTheThirtyAndSpecialCharactersAreKept) {
    GameMap map = Map();
    map.places.front().items.assign(CellItemSlots, InvItem());
    InvItem& item = map.places.front().items.back();
    item.name = "a<b&\"c\"";
    item.durab = -7;
    item.capSecond = 255;
    SourceFaults faults;
    const GameMap back = ReadTmx(TmxText(map), faults);
    ASSERT_TRUE(faults.Empty());
    EXPECT_TRUE(back.places.front().items == map.places.front().items);
}

struct Foreign {
    const char* from;
    const char* to;
    const char* told;  // the beginning of the one message: where and what
};

// Line 2 is the map, 3 the tileset; the terrain begins in line 2010 and its row 0 is line 2012. The first
// thing is line 2061 with its properties from 2063 on, the second 2074; the landing spots are from 2609 on.
#define SIXTY "sixty letters, or as many as anybody would want to read here"
constexpr const char* Long = "value=\"" SIXTY SIXTY SIXTY "\"";
constexpr const char* Cut = "2065:6: \"" SIXTY "...\" is no durab";
// clang-format off
constexpr Foreign Foreigners[] = {
    {"name=\"picMap\"",       "source=\"a.tsx\"",     "3:3: the tileset is a file of its own"},
    {"\"csv\"",               "\"base64\"",           "2011:4: the layer's encoding is \"base64\""},
    {"csv\">\n387,",          "csv\">\n0,",           "2012:1: this cell is empty"},
    {"csv\">\n387,",          "csv\">\n401,",         "2012:1: the sheet has no tile at column 16, row 12"},
    {"<objectgroup",          "<group name=\"x\"/><objectgroup", "2060:3: a layer \"x\""},
    {"name=\"papers\"",       "",                     "2061:4: the thing has no name"},
    {"x=\"500\"",             "x=\"1520\"",           "2061:4: this object is outside the field"},
    {"value=\"270\"",         "value=\"many\"",       "2065:6: \"many\" is no durab"},
    {"value=\"270\"",         Long,                   Cut},
    {"name=\"count\"",        "name=\"coutn\"",       "2064:6: \"coutn\" is no property of a thing"},
    {"name=\"place\" type=\"int\" value=\"1\"", "name=\"place\" value=\"0\"", "2076:6: place 0 of this cell is taken"},
    {"x=\"900\" y=\"60\"",    "x=\"800\" y=\"80\"",   "2610:4: a second landing spot here"},
    {"x=\"900\" y=\"60\"",    "x=\"0\" y=\"0\"",      "2609:4: a landing spot on tile 2 of fence"},
    {"</layer>",              "</laier>",             "2059:4: no XML: Start-end tags mismatch"},
};
// clang-format on

TEST_F(TiledTest, WhatTheGameCantHoldIsRefusedAtItsPlace) {
    const std::string whole = TmxText(Map());
    for (const Foreign& foreign : Foreigners) {
        std::string text = whole;
        text.replace(text.find(foreign.from), std::string(foreign.from).size(), foreign.to);
        SourceFaults faults;
        ReadTmx(text, faults);
        const std::vector<SourceError> found = faults.Sorted();
        ASSERT_EQ(found.size(), 1U) << foreign.told;
        const std::string told = std::to_string(found[0].place.line) + ":" +
                                 std::to_string(found[0].place.column) + ": " + found[0].what();
        EXPECT_EQ(told.substr(0, told.find(", expected")), foreign.told);
    }
}

}  // namespace
