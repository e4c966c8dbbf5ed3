// What lies in the field, what is open, which team a unit belongs to, the vehicle ahead.
#include "field/geometry.h"

#include "data/terrain.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"

namespace {

class GeometryTest : public GameTest {};

TEST_F(GeometryTest, TheFieldEndsBeforeTheGridDoes) {
    EXPECT_TRUE(InField(0, 0));
    EXPECT_TRUE(InField(75, 45));
    EXPECT_FALSE(InField(76, 0));
    EXPECT_FALSE(InField(0, 46));
    EXPECT_FALSE(InField(-1, 0));
}

TEST_F(GeometryTest, EachBlockStopsWhatItSays) {
    struct Case {
        int block;
        bool step, view;
    };
    constexpr Case Cases[] = {
        {0, true, true}, {1, false, true}, {2, true, false}, {3, false, false}, {4, false, false}};
    ClearField();
    for (const Case& c : Cases) {
        cellGrid[5][6].block = c.block;
        EXPECT_EQ(CellOpen("step", 6, 5), c.step) << c.block;
        EXPECT_EQ(CellOpen("view", 6, 5), c.view) << c.block;
        EXPECT_FALSE(CellOpen("walk", 6, 5));
    }
    EXPECT_FALSE(CellOpen("view", 76, 5));
    cellGrid[5][6].block = 0;
    cellGrid[5][6].occupant = 0;
    EXPECT_TRUE(CellOpen("step", 6, 5));
    EXPECT_FALSE(CellFreeToStep(6, 5));
    EXPECT_FALSE(CellFreeToStep(-5, 400));
}

TEST_F(GeometryTest, PixelsFloorToCells) {
    EXPECT_EQ(CellOfPixel(0), 0);
    EXPECT_EQ(CellOfPixel(19), 0);
    EXPECT_EQ(CellOfPixel(20), 1);
    EXPECT_EQ(CellOfPixel(-1), -1);
}

TEST_F(GeometryTest, TheVehicleOpensOnlyStraightAhead) {
    ClearField();
    PutUnit(0, 10, 10);
    for (int tile : {17, 18, 25, 26}) {
        cellGrid[9][11].tileY = Various;
        cellGrid[9][11].tileX = tile;
        UnitTable[0].facing = NorthEast;
        EXPECT_EQ(FacingStoreTile(0), tile == 18 || tile == 25) << tile;
        UnitTable[0].facing = East;
        EXPECT_FALSE(FacingStoreTile(0));
    }
    PutUnit(1, 75, 45);
    EXPECT_FALSE(FacingStoreTile(1)) << "off the field";
    EXPECT_EQ(TeamOfUnit(19), 0);
    EXPECT_EQ(TeamOfUnit(20), 1);
}

}  // namespace
