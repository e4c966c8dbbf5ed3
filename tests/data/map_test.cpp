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
    // The ends of each range of the rules, and the tiles on both sides of it.
    constexpr Case Cases[] = {
        {0, Surface, 200, 0},   {31, Surface, 200, 0},  {0, Water, 0, 1},       {1, Water, 0, 0},
        {12, Water, 0, 0},      {13, Water, 0, 1},      {14, Water, 0, 0},      {0, Trees, 0, 2},
        {1, Trees, 0, 0},       {12, Trees, 0, 0},      {13, Trees, 0, 2},      {16, Trees, 0, 2},
        {17, Trees, 0, 0},      {18, Trees, 0, 0},      {19, Trees, 0, 2},      {21, Trees, 0, 2},
        {22, Trees, 0, 0},      {0, Wooden, 80, 3},     {10, Wooden, 80, 3},    {11, Wooden, 5, 1},
        {12, Wooden, 5, 1},     {13, Wooden, 0, 0},     {15, Wooden, 0, 0},     {16, Wooden, 10, 1},
        {19, Wooden, 10, 1},    {20, Wooden, 0, 0},     {23, Wooden, 0, 0},     {10, Concrete, 220, 3},
        {11, Concrete, 100, 1}, {12, Concrete, 100, 1}, {13, Concrete, 140, 0}, {15, Concrete, 140, 0},
        {16, Concrete, 220, 1}, {17, Concrete, 220, 1}, {18, Concrete, 220, 3}, {19, Concrete, 220, 3},
        {20, Concrete, 140, 0}, {23, Concrete, 140, 0}, {24, Concrete, 0, 0},   {12, Stone, 220, 3},
        {13, Stone, 100, 3},    {14, Stone, 100, 3},    {15, Stone, 100, 0},    {16, Stone, 100, 0},
        {17, Stone, 220, 3},    {18, Stone, 220, 3},    {19, Stone, 220, 0},    {15, Roads, 0, 0},
        {16, Roads, 100, 0},    {17, Roads, 0, 0},      {19, Roads, 100, 0},    {0, Trenches, 0, 0},
        {16, Trenches, 0, 0},   {0, Prickles, 40, 1},   {14, Prickles, 40, 1},  {15, Prickles, 0, 0},
        {10, Ships, 80, 3},     {11, Ships, 5, 1},      {13, Ships, 0, 0},      {16, Ships, 10, 1},
        {19, Ships, 10, 1},     {20, Ships, 0, 0},      {6, Various, 0, 0},     {17, Various, 0, 0},
        {18, Various, 140, 3},  {25, Various, 140, 3},  {26, Various, 0, 0},    {10, Highways, 100, 0},
        {11, Highways, 0, 0},   {10, Fence, 30, 3},     {11, Fence, 0, 0},      {0, 13, 0, 0},
    };
    int x = 0;
    for (const Case& c : Cases)
        Put(x++, 7, c.tileX, c.tileY);
    ASSERT_EQ(Load(), "");
    x = 0;
    for (const Case& c : Cases) {
        const Cell& cell = cellGrid[7][x++];
        EXPECT_EQ(cell.tileX, c.tileX);
        EXPECT_EQ(cell.tileY, c.tileY);
        EXPECT_EQ(cell.durab, c.durab) << "class " << c.tileY << " tile " << c.tileX;
        EXPECT_EQ(cell.block, c.block) << "class " << c.tileY << " tile " << c.tileX;
        EXPECT_EQ(cell.occupant, -1);
    }
    EXPECT_EQ(cellGrid[FieldHeight][0].occupant, 0) << "the row beyond the field is never filled";
}

TEST_F(MapTest, LandingMarksBecomePlainGroundAndAreRemembered) {
    Put(70, 3, 7, Various);
    Put(2, 40, 7, Various);
    Put(9, 9, 7, Roads);
    ASSERT_EQ(Load(), "");
    ASSERT_EQ(teamLast[LandingSpotList], 1);
    EXPECT_EQ(landingSpots[0].x, 70);
    EXPECT_EQ(landingSpots[1].y, 40);
    EXPECT_EQ(cellGrid[3][70].tileY, Surface);
    EXPECT_EQ(cellGrid[3][70].tileX, 0);
    EXPECT_EQ(cellGrid[3][70].durab, 200);
}

TEST_F(MapTest, ThereIsRoomFor41LandingSpots) {
    for (int i = 0; i < 41; ++i)
        Put(i, 0, 7, Various);
    EXPECT_EQ(Load(), "");
    Put(41, 0, 7, Various);
    EXPECT_EQ(Load(), "Run-time error 2: Subscript out of range: index 41 is not within -20 to 40");
}

TEST_F(MapTest, CharactersBelowTheBlankAreTakenAsTheyStand) {
    Put(1, 1, -23, 0);
    ASSERT_EQ(Load(), "");
    EXPECT_EQ(cellGrid[1][1].tileX, -23);
}

TEST_F(MapTest, LinesMayEndInALineFeedAlone) {
    for (std::string* layer : {&columns, &rows, &third})
        std::erase(*layer, '\r');
    EXPECT_EQ(Load(), "");
}

TEST_F(MapTest, ABrokenLayerIsNamedWithItsPlace) {
    const std::string whole = rows;
    rows.erase(78 * 4 + 10, 3);
    EXPECT_EQ(Load(),
              "Run-time error 4: Bad data: map/t2.map:5:74: expected a line of 76 cells, found the end of "
              "the line");
    rows = whole;
    rows.insert(78 * 4 + 10, "x");
    EXPECT_EQ(Load(),
              "Run-time error 4: Bad data: map/t2.map:5:77: expected the end of the line after 76 cells");
    rows = whole;
    third.resize(78 * 45 + 75);
    EXPECT_EQ(Load(),
              "Run-time error 4: Bad data: map/t3.map:46:76: expected a line of 76 cells, found the end of "
              "the file");
}

TEST_F(MapTest, TheFieldIsPaintedWholeAndTheMiniMapWithIt) {
    ASSERT_EQ(Load(), "");
    const Picture& area = frmField.area.canvas;
    bool tiled = true;
    for (int y = 0; y < 920; ++y)
        for (int x = 0; x < 1520; ++x)
            tiled = tiled && area.Pixel(x, y) == area.Pixel(x % 20, y % 20);
    EXPECT_TRUE(tiled) << "every cell shows the same tile";
    EXPECT_NE(frmField.picAreaMap.canvas.Pixel(151, 91), frmField.picAreaMap.BackColor);
    EXPECT_EQ(fieldBusy, False);
    EXPECT_EQ(frmProgress.imgProgress1.Width, 460);
    EXPECT_FALSE(frmProgress.imgProgress1.Visible);
}

TEST(Terrain, ClassesHaveTheirWords) {
    EXPECT_STREQ(TerrainName(0), "surface");
    EXPECT_STREQ(TerrainName(7), "trenches");
    EXPECT_STREQ(TerrainName(12), "fence");
    EXPECT_EQ(TerrainName(-1), nullptr);
    EXPECT_EQ(TerrainName(13), nullptr);
}

}  // namespace
