// Map layers: what a character becomes, what its cell stops and bears, landing spots, broken layers.
#include "data/map.h"

#include <map>

#include "data/terrain.h"
#include "tests/support/game_test.h"

namespace {

class MapTest : public GameTest {
  protected:
    // A map "t" of plain surface, to be changed cell by cell before it is loaded.
    std::string columns = Blank();
    std::string rows = Blank();
    std::string third = Blank();

    static std::string Blank() {
        std::string layer;
        for (int y = 0; y < FieldHeight; ++y)
            layer += std::string(FieldWidth, ' ') + "\r\n";
        return layer;
    }

    void Put(int x, int y, int tileX, int tileY) {
        const auto at = static_cast<std::size_t>(y) * (FieldWidth + 2) + static_cast<std::size_t>(x);
        columns[at] = static_cast<char>(tileX + 32);
        rows[at] = static_cast<char>(tileY + 32);
    }

    std::string Load() {
        teamLast[LandingSpotList] = -1;
        folder.Write("map/t1.map", columns);
        folder.Write("map/t2.map", rows);
        folder.Write("map/t3.map", third);
        return ErrorOf([] { ReadMapLayers("t"); });
    }
};

// The tiles of a class from column 0 on. What they stop: a digit, "." for nothing. How strong they are: 5 and
// 1 stand for themselves (1 for 10), and the letters for 30, 40, 80, 100, 140, 200 and 220 in turn.
TEST_F(MapTest, ATileGivesACellItsStrengthAndWhatItStops) {
    struct Case {
        const char* name;
        const char* stops;
        const char* durab;
    };
    constexpr Case Cases[TerrainCount] = {
        {"surface", "...........................", "fffffffffffffffffffffffffff"},
        {"water", "1............1.............", "..........................."},
        {"trees", "2............2222..222.....", "..........................."},
        {"wooden", "3333333333311...1111.......", "ccccccccccc55...1111......."},
        {"concrete", "3333333333311...1133.......", "gggggggggggddeeeggggeeee..."},
        {"stone", "333333333333333..33........", "gggggggggggggddddgggggggggg"},
        {"roads", "...........................", "................d..d......."},
        {"trenches", "...........................", "..........................."},
        {"prickles", "111111111111111............", "bbbbbbbbbbbbbbb............"},
        {"ships", "3333333333311...1111.......", "ccccccccccc55...1111......."},
        {"various", "..................33333333.", "..................eeeeeeee."},
        {"highways", "...........................", "ddddddddddd................"},
        {"fence", "33333333333................", "aaaaaaaaaaa................"},
    };
    constexpr int Tiles = 27;
    const std::map<char, int> strengths = {{'.', 0},  {'5', 5},   {'1', 10},  {'a', 30},  {'b', 40},
                                           {'c', 80}, {'d', 100}, {'e', 140}, {'f', 200}, {'g', 220}};
    for (int tileY = 0; tileY < TerrainCount; ++tileY) {
        EXPECT_STREQ(TerrainName(tileY), Cases[tileY].name);
        for (int x = 0; x < Tiles; ++x)
            Put(x, tileY, x, tileY);
    }
    Put(Tiles, 0, -23, Surface);  // codes under the blank's are taken as they stand
    ASSERT_EQ(Load(), "");
    EXPECT_EQ(cellGrid[0][Tiles].tileX, -23);
    for (int tileY = 0; tileY < TerrainCount; ++tileY) {
        for (int x = 0; x < Tiles; ++x) {
            if (tileY == Various && x == LandingMark) continue;
            const Cell& cell = cellGrid[tileY][x];
            EXPECT_EQ(cell.occupant, -1);
            EXPECT_EQ(cell.durab, strengths.at(Cases[tileY].durab[x])) << Cases[tileY].name << " " << x;
            EXPECT_EQ(cell.block, Cases[tileY].stops[x] == '.' ? 0 : Cases[tileY].stops[x] - '0')
                << Cases[tileY].name << " " << x;
        }
    }
    for (const int outside : {-1, TerrainCount}) {
        EXPECT_EQ(CellDurab(0, outside) + TileBlock(0, outside), 0);
        EXPECT_EQ(TerrainName(outside), nullptr);
        EXPECT_EQ(CellDurab(outside == -1 ? -1 : 99, Stone), 220) << "whatever the tile";
    }
}

TEST_F(MapTest, LandingMarksBecomePlainGroundAndAreRememberedUpTo41) {
    Put(70, 3, 7, Various);
    Put(2, 40, 7, Various);
    Put(9, 9, 7, Roads);
    for (std::string* layer : {&columns, &rows, &third})
        std::erase(*layer, '\r');  // a line feed alone ends a line too
    ASSERT_EQ(Load(), "");
    ASSERT_EQ(teamLast[LandingSpotList], 1);
    EXPECT_EQ(landingSpots[0].x, 70);
    EXPECT_EQ(landingSpots[1].y, 40);
    EXPECT_EQ(cellGrid[3][70].tileY, Surface);
    columns = rows = third = Blank();
    for (int i = 0; i < 42; ++i)
        Put(i, 0, 7, Various);
    EXPECT_EQ(Load(),
              "Run-time error 2: Subscript out of range: map/t1.map:1:42: expected up to 41 landing spots, "
              "found one more");
}

TEST_F(MapTest, ABrokenLayerIsNamedWithItsPlace) {
    struct Case {
        std::string* layer;
        std::size_t at, count;  // what is cut out
        const char* error;
    };
    constexpr std::size_t Line = 78, Size = Line * 46;
    const Case cases[] = {
        {&rows, Line * 4 + 10, 3, "t2.map:5:74: expected a line of 76 cells, found the end of the line"},
        {&columns, Size - 3, 3, "t1.map:46:76: expected a line of 76 cells, found the end of the file"},
        {&third, Size - 2, 2,
         "t3.map:46:77: expected the end of the line after 76 cells, found the end of the file"},
        {&third, Line - 2, 2, "t3.map:1:77: expected the end of the line after 76 cells"},
        {&third, 0, Size, "t3.map:1:1: expected a line of 76 cells, found the end of the file"},
    };
    for (const Case& c : cases) {
        const std::string whole = *c.layer;
        c.layer->erase(c.at, c.count);
        EXPECT_EQ(Load(), std::string("Run-time error 4: Bad data: map/") + c.error);
        *c.layer = whole;
    }
}

}  // namespace
