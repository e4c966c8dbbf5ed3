// A map goes to the map editor and back without a change; what the editor could bring that the game can't
// hold is refused at its place.
#include <gtest/gtest.h>

#include <algorithm>

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

    // What the reader says to the text of map "49" with the first `from` replaced.
    static std::string Refusal(std::string text, const std::string& from, const std::string& to) {
        const std::size_t at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        text.replace(at, from.size(), to);
        SourceFaults faults;
        ReadTmx(text, faults);
        std::string told;
        for (const SourceError& fault : faults.Sorted())
            told += std::to_string(fault.place.line) + ":" + std::to_string(fault.place.column) + ": " +
                    fault.what() + "\n";
        return told;
    }
};

TEST_F(TiledTest, TheMapComesBackByteForByte) {
    SourceFaults faults;
    const GameMap map = ReadTmx(TmxText(Map()), faults);
    ASSERT_TRUE(faults.Empty());
    WriteGameMap(folder.Path() / "map/50", map);
    for (const char* part : {"1.map", "2.map", "3.map", "g.map"})
        EXPECT_EQ(folder.Read(std::string("map/50") + part), folder.Read(std::string("map/49") + part))
            << part;
}

TEST_F(TiledTest, PlacesAmongTheThirtyAndSpecialCharactersAreKept) {
    GameMap map = Map();
    InvItem item;
    item.name = "a<b&\"c\"";
    item.durab = -7;
    item.capSecond = 255;
    map.places.front().items.assign(CellItemSlots, InvItem());
    map.places.front().items.back() = item;
    SourceFaults faults;
    const GameMap back = ReadTmx(TmxText(map), faults);
    ASSERT_TRUE(faults.Empty());
    ASSERT_EQ(back.places.front().items.size(), std::size_t{CellItemSlots});
    EXPECT_TRUE(back.places.front().items.front().name.empty());
    EXPECT_EQ(back.places.front().items.back().name, item.name);
    EXPECT_EQ(back.places.front().items.back().durab, -7);
    EXPECT_EQ(back.places.front().items.back().capSecond, 255);
}

struct Foreign {
    const char* from;
    const char* to;
    const char* told;  // the beginning of the one message: where and what
};

// Line 2 is the map, 3 the tileset; the terrain begins in line 1602 and its row 0 is line 1604. The first
// thing is line 1653 with its properties from 1655 on, the second 1666; the landing spots are from 2201 on.
// clang-format off
constexpr Foreign Foreigners[] = {
    {"\"orthogonal\"",        "\"isometric\"",        "2:2: orientation is \"isometric\""},
    {"width=\"76\"",          "width=\"77\"",         "2:2: width is \"77\""},
    {"infinite=\"0\"",        "infinite=\"1\"",       "2:2: infinite is \"1\""},
    {"columns=\"32\"",        "columns=\"16\"",       "3:3: columns is \"16\""},
    {"name=\"picMap\"",       "source=\"a.tsx\"",     "3:3: the tileset is a file of its own"},
    {" </tileset>",           " </tileset><tileset/>", "1601:13: a second tileset"},
    {"\"csv\"",               "\"base64\"",           "1603:4: the layer's encoding is \"base64\""},
    {"csv\">\n387,",          "csv\">\n0,",           "1604:1: this cell is empty"},
    {"csv\">\n387,",          "csv\">\n ,",           "1604:2: \"\" is no tile of the sheet, as it stands"},
    {"csv\">\n387,",          "csv\">\n387,1,",       "1603:4: 3497 cells"},
    {"csv\">\n387,",          "csv\">\n2147484035,",  "1604:1: \"2147484035\" is no tile of the sheet, as it stands"},
    {"csv\">\n387,",          "csv\">\n400,",         "1604:1: the sheet has no tile at column 15, row 12"},
    {"csv\">\n387,",          "csv\">\n328,",         "1604:1: a landing spot as a tile"},
    {"<objectgroup",          "<group name=\"x\"/><objectgroup", "1652:3: a layer \"x\""},
    {"name=\"papers\"",       "name=\"sheaf of papers\"", "1653:4: \"sheaf of papers\" is too long for the name of a thing"},
    {"name=\"papers\"",       "",                     "1653:4: the thing has no name"},
    {"x=\"500\"",             "x=\"1520\"",           "1653:4: this object is outside the field"},
    {"x=\"500\"",             "x=\"-1\"",             "1653:4: this object is outside the field"},
    {"value=\"270\"",         "value=\"40000\"",      "1657:6: \"40000\" is no durab"},
    {"value=\"270\"",         "value=\"many\"",       "1657:6: \"many\" is no durab"},
    {"<property name=\"count\"", "<!--no--><p name=\"count\"", "1653:4: the thing has no property \"count\""},
    {"name=\"count\"",        "name=\"coutn\"",       "1656:6: \"coutn\" is no property of a thing"},
    {"name=\"place\" type=\"int\" value=\"1\"", "name=\"place\" value=\"0\"", "1668:6: place 0 of this cell is taken"},
    {"name=\"place\" type=\"int\" value=\"1\"", "name=\"place\" value=\"30\"", "1668:6: \"30\" is no place"},
    {"x=\"900\" y=\"60\"",    "x=\"800\" y=\"80\"",   "2202:4: a second landing spot here"},
    {"x=\"900\" y=\"60\"",    "x=\"0\" y=\"0\"",      "2201:4: a landing spot on tile 2 of fence"},
    {"</layer>",              "</laier>",             "1651:4: no XML: Start-end tags mismatch"},
};
// clang-format on

TEST_F(TiledTest, WhatTheGameCantHoldIsRefusedAtItsPlace) {
    const std::string text = TmxText(Map());
    for (const Foreign& foreign : Foreigners) {
        const std::string told = Refusal(text, foreign.from, foreign.to);
        EXPECT_EQ(told.substr(0, told.find(", expected")), foreign.told) << told;
        EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
    }
}

}  // namespace
