// What lies in the field, what is open, the vehicle ahead.
#include "field/geometry.h"

#include "data/terrain.h"
#include "tests/support/game_test.h"

namespace {

class GeometryTest : public GameTest {
  protected:
    GeometryTest() { ClearField(); }
};

TEST_F(GeometryTest, TheFieldEndsBeforeTheGridDoesAndPixelsFloorToCells) {
    EXPECT_TRUE(InField(75, 45));
    for (const auto& [x, y] : {std::pair{76, 0}, {0, 46}, {-1, 0}})
        EXPECT_FALSE(InField(x, y) || CellFreeToStep(x, y));
    for (const auto& [pixel, cell] : {std::pair{19, 0}, {20, 1}, {-1, -1}})
        EXPECT_EQ(CellOfPixel(pixel), cell);
}

TEST_F(GeometryTest, WhatStopsTheViewAloneCanBeSteppedOn) {
    for (const auto& [block, open] : {std::pair{0, true}, {1, false}, {2, true}, {3, false}}) {
        cellGrid[5][6].block = block;
        EXPECT_EQ(CellFreeToStep(6, 5), open) << block;
    }
}

TEST_F(GeometryTest, TheVehicleOpensOnlyStraightAhead) {
    PutUnit(0, 10, 10);
    for (int tile : {17, 18, 25, 26}) {
        PutTile(11, 9, tile, Various);
        UnitTable[0].facing = NorthEast;
        EXPECT_EQ(FacingStoreTile(0), tile == 18 || tile == 25) << tile;
        UnitTable[0].facing = East;
        EXPECT_FALSE(FacingStoreTile(0));
    }
    PutUnit(1, 75, 45);
    EXPECT_FALSE(FacingStoreTile(1)) << "off the field";
}

}  // namespace
