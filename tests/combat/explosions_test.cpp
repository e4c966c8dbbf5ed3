// Craters; digging, filling and the medical kit.
#include "combat/explosions.h"

#include <set>

#include "combat/actions.h"
#include "combat/tools.h"
#include "data/terrain.h"
#include "state/chance.h"
#include "tests/support/game_test.h"

namespace {

class ExplosionsTest : public GameTest {
  protected:
    ExplosionsTest() {
        ClearField();
        PutUnit(0, 20, 10);
        PutUnit(20, 70, 40);
        SeedRandom(4);
    }

    Unit& unit = UnitTable[0];
};

TEST_F(ExplosionsTest, TheGroundSinksAndRisesThroughItsLooks) {
    struct Case {
        int from, delta, durab, tileX, tileY;
    };
    constexpr Case Cases[] = {
        {120, -20, 100, 0, Surface}, {100, -1, 99, 15, Trenches}, {20, -20, 0, 16, Trenches},
        {0, 200, 200, 0, Surface},   {0, 1, 1, 15, Trenches},     {190, -500, 0, 16, Trenches},
    };
    for (const Case& c : Cases) {
        Cell& cell = cellGrid[30][40];
        cell.durab = c.from;
        cell.tileY = c.from >= 100 ? Surface : Trenches;
        SurfaceChange(40, 30, c.delta);
        EXPECT_EQ(cell.durab, c.durab);
        EXPECT_EQ(cell.tileX, c.tileX);
        EXPECT_EQ(cell.tileY, c.tileY);
    }
    PutTile(41, 30, 0, Roads);
    SurfaceChange(41, 30, 50);
    EXPECT_EQ(cellGrid[30][41].durab, 0) << "only ground and trenches";
}

TEST_F(ExplosionsTest, ATrenchIsDugAndFilledByTheSpade) {
    Cell& cell = cellGrid[10][20];
    cell.durab = 110;
    for (const auto& [mode, durab] : {std::pair{"Dig", 90}, {"Dig", 70}, {"Fill", 90}, {"Fill", 110}}) {
        Hold("etool", mode);
        unit.time = 100;
        ActOnTarget(900, 410);
        EXPECT_EQ(100 - unit.time, unit.hand.time);
        EXPECT_EQ(cell.durab, durab);
    }
}

TEST_F(ExplosionsTest, ACureWorksForSixtyOfAHundredAndOneDraws) {
    PutUnit(1, 21, 10);
    bulletPower = -10;
    std::set<int> working;
    for (unsigned seed = 1; seed <= 3000; ++seed) {
        SeedRandom(seed);
        const int drawn = RandomInt(100, 0);
        SeedRandom(seed);
        frmField.cmbLog.List.clear();
        CureUnit(0, 1);
        if (Log().find("u0 cured u1 for -") != std::string::npos) working.insert(drawn);
    }
    EXPECT_EQ(working.size(), 60U);
    EXPECT_EQ(*working.rbegin(), 59);
}

TEST_F(ExplosionsTest, ACureWithoutTheTimeForItKeepsItsCharge) {
    Hold("med", "Cure", 5);
    unit.time = 9;
    ActOnTarget(410, 210);
    EXPECT_EQ(unit.items[0].roundsMain, 5);
}

TEST_F(ExplosionsTest, AKitHealsUpToTheVitalityInItsNarrowField) {
    struct Case {
        int x, y;
        bool heals;
    };
    constexpr Case Cases[] = {{34, 10, true}, {35, 10, false}, {20, 15, true}, {20, 16, false}};
    for (const Case& c : Cases) {
        ClearField();
        PutUnit(0, c.x - 1, c.y);
        PutUnit(1, c.x, c.y);
        UnitTable[1].health = 20;
        UnitTable[1].vitality = 40;
        Hold("med", "Cure", 60);
        for (int use = 0; use < 60; ++use) {
            unit.time = 100;
            ActOnTarget(c.x * 20 + 5, c.y * 20 + 5);
            EXPECT_EQ(unit.time, 90);
        }
        EXPECT_EQ(UnitTable[1].health, c.heals ? 40 : 20);
        EXPECT_EQ(unit.items[0].roundsMain, 0) << "each use costs";
        ActOnTarget(c.x * 20 + 5, c.y * 20 + 5);
        EXPECT_EQ(host.sounds.back().fileName, "\\wav\\weapons\\empty.wav");
    }
}

}  // namespace
