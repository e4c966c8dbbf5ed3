// Charges, explosions, craters; digging, filling and the medical kit.
#include "combat/explosions.h"

#include <algorithm>
#include <set>

#include "combat/actions.h"
#include "combat/tools.h"
#include "data/terrain.h"
#include "data/weapons_file.h"
#include "platform/random.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"
#include "view/log.h"

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

TEST_F(ExplosionsTest, OfTwoChargesTheFirstBlowsTwiceAndTheSecondNever) {
    ChargeAdd(40, 30);
    ChargeAdd(50, 30);
    EXPECT_EQ(Log(), "charge 0 set\ncharge 0 set\n");
    for (int tick = 0; tick < 9; ++tick)
        ChargeTick();
    EXPECT_EQ(UnitTable[100].time, 10);
    EXPECT_EQ(UnitTable[100].hand.power, WeaponInfoByName("c4").power);
    UnitTable[100].hand.power = 61;
    UnitTable[101].time = 20;  // set one turn later
    const char* told[] = {"charge 0 counts 0\ncharge 0 blow\ncharge 1 counts 10\n",
                          "charge 0 counts -10\ncharge 0 blow\n", ""};
    for (const char* log : told) {
        frmField.cmbLog.List.clear();
        ChargeTick();
        EXPECT_EQ(Log(), log);
    }
    EXPECT_EQ(cellGrid[30][40].durab, 200 - 30 * 2) << "the ground sinks by half the power, 30.5, each time";
}

TEST_F(ExplosionsTest, ABlastSharesOneBulletColumnByColumnAndSparesTheThrower) {
    PutUnit(0, 22, 11);
    int index = 21;
    for (const auto& [x, y] : {std::pair{21, 9}, {21, 11}, {23, 9}, {23, 10}})
        PutUnit(index++, x, y);
    int most[4] = {};
    for (int blast = 0; blast < 100; ++blast) {
        unit.hand.power = 100;
        for (int i = 0; i < 4; ++i)
            UnitTable[21 + i].health = 1000;
        ChargeBlow(22, 10);
        for (int i = 0; i < 4; ++i)
            most[i] = std::max(most[i], 1000 - UnitTable[21 + i].health);
    }
    // Each takes 40 to 55 of the bullet: 100, 60 at the most, 20, and less than nothing.
    EXPECT_GT(most[0], 60);
    EXPECT_GT(most[1], 20);
    EXPECT_LE(most[1], 60);
    EXPECT_LE(most[2], 20);
    EXPECT_EQ(most[3], 0);
    EXPECT_EQ(unit.health, 50);
}

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
    frmField.cmbLog.List.clear();
    unit.time = unit.hand.time - 1;
    ActOnTarget(900, 410);
    EXPECT_EQ(cell.durab, 110);
    AddToLog("next", 1);
    EXPECT_EQ(Log(), "dig it: next\n") << "a refused one leaves its line open";
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
