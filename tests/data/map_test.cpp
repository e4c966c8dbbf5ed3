// Map layers: what a character becomes, what its cell stops and bears, landing spots, broken layers.
#include "data/map.h"

#include "data/terrain.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"

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
        return ErrorOf([] { LoadMap(frmField, "t"); });
    }
};

TEST_F(MapTest, ATileGivesACellItsStrengthAndWhatItStops) {
    struct Case {
        int tileX, tileY, durab, block;
    };
    constexpr Case Cases[] = {
        {31, Surface, 200, 0},  {0, Water, 0, 1},       {12, Water, 0, 0},      {0, Trees, 0, 2},
        {12, Trees, 0, 0},      {13, Trees, 0, 2},      {18, Trees, 0, 0},      {10, Wooden, 80, 3},
        {11, Wooden, 5, 1},     {13, Wooden, 0, 0},     {19, Wooden, 10, 1},    {20, Wooden, 0, 0},
        {10, Concrete, 220, 3}, {12, Concrete, 100, 1}, {15, Concrete, 140, 0}, {17, Concrete, 220, 1},
        {18, Concrete, 220, 3}, {24, Concrete, 0, 0},   {12, Stone, 220, 3},    {14, Stone, 100, 3},
        {16, Stone, 100, 0},    {19, Stone, 220, 0},    {16, Roads, 100, 0},    {17, Roads, 0, 0},
        {0, Trenches, 0, 0},    {14, Prickles, 40, 1},  {17, Ships, 10, 1},     {17, Various, 0, 0},
        {18, Various, 140, 3},  {25, Various, 140, 3},  {10, Highways, 100, 0}, {10, Fence, 30, 3},
        {11, Fence, 0, 0},      {-23, Surface, 200, 0},  // below the blank characters are taken as they stand
    };
    int x = 0;
    for (const Case& c : Cases)
        Put(x++, 7, c.tileX, c.tileY);
    ASSERT_EQ(Load(), "");
    x = 0;
    for (const Case& c : Cases) {
        const Cell& cell = cellGrid[7][x++];
        EXPECT_EQ(cell.tileX, c.tileX);
        EXPECT_EQ(cell.durab, c.durab) << "class " << c.tileY << " tile " << c.tileX;
        EXPECT_EQ(cell.block, c.block) << "class " << c.tileY << " tile " << c.tileX;
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
    rows.erase(78 * 4 + 10, 3);
    EXPECT_EQ(Load(),
              "Run-time error 4: Bad data: map/t2.map:5:74: expected a line of 76 cells, found the end of "
              "the line");
}

}  // namespace
