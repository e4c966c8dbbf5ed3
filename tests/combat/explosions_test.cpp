// Charges, explosions, craters; digging, filling and the medical kit.
#include "combat/explosions.h"

#include "combat/actions.h"
#include "combat/costs.h"
#include "combat/things.h"
#include "combat/tools.h"
#include "data/terrain.h"
#include "data/weapons_file.h"
#include "platform/random.h"
#include "state/state.h"
#include "state/turns.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"

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

TEST_F(ExplosionsTest, OneChargeCountsDownAndIsGone) {
    ChargeAdd(40, 30);
    for (int tick = 0; tick < 9; ++tick)
        ChargeTick();
    EXPECT_EQ(UnitTable[100].time, 10);
    EXPECT_EQ(teamLast[ChargeList], 0);
    frmField.cmbLog.List.clear();
    ChargeTick();
    EXPECT_EQ(Log(), "charge 0 counts 0\ncharge 0 blow\n");
    EXPECT_EQ(teamLast[ChargeList], -1);
    EXPECT_EQ(curUnit, 101);
    // The ground sinks by half the charge's power, from 200.
    const int left = std::max(200 - WeaponInfoByName("c4").power / 2, 0);
    EXPECT_EQ(cellGrid[30][40].durab, left);
}

TEST_F(ExplosionsTest, OfTwoChargesTheFirstBlowsTwiceAndTheSecondNever) {
    ChargeAdd(40, 30);
    ChargeAdd(50, 30);
    for (int tick = 0; tick < 9; ++tick)
        ChargeTick();
    UnitTable[101].time = 20;  // set one turn later
    frmField.cmbLog.List.clear();
    ChargeTick();
    EXPECT_EQ(Log(), "charge 0 counts 0\ncharge 0 blow\ncharge 1 counts 10\n");
    frmField.cmbLog.List.clear();
    ChargeTick();
    EXPECT_EQ(Log(), "charge 0 counts -10\ncharge 0 blow\n");
    frmField.cmbLog.List.clear();
    ChargeTick();
    ChargeTick();
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(cellGrid[30][50].durab, 200) << "never blown";
}

TEST_F(ExplosionsTest, ABlastSharesOneBulletColumnByColumnAndSparesTheThrower) {
    unit.hand = WeaponInfoByName("m67");
    unit.hand.power = 100;
    unit.hand.accur = 500;
    PutUnit(1, 21, 10);
    int index = 21;
    for (const auto& [x, y] : {std::pair{21, 9}, {22, 9}, {23, 9}, {22, 11}, {23, 11}})
        PutUnit(index++, x, y);
    for (int i : {0, 1, 21, 22, 23, 24, 25})
        UnitTable[i].health = 1000;
    ChargeBlow(22, 10);  // columns 21 to 23
    EXPECT_LE(bulletPower, 100 - 6 * 40) << "six units each took 40 or more of it";
    EXPECT_EQ(unit.health, 1000);
    for (int i : {24, 25})
        EXPECT_GE(UnitTable[i].health, 1000) << "the late ones take nothing, or gain";
    EXPECT_EQ(cellGrid[10][22].durab, 150);
}

TEST_F(ExplosionsTest, TheThrowersOwnCellTakesNoPart) {
    unit.hand = WeaponInfoByName("m67");
    unit.health = 50;
    for (int i = 0; i < 20; ++i)
        ChargeBlow(20, 10);
    EXPECT_EQ(unit.health, 50);
}

TEST_F(ExplosionsTest, TheGroundSinksAndRisesThroughItsLooks) {
    struct Case {
        int from, delta, durab, tileX, tileY;
    };
    constexpr Case Cases[] = {
        {200, -20, 180, 0, Surface},  {100, -1, 99, 15, Trenches}, {100, -20, 80, 15, Trenches},
        {20, -20, 0, 16, Trenches},   {0, 200, 200, 0, Surface},   {80, 20, 100, 0, Surface},
        {190, -500, 0, 16, Trenches}, {199, 20, 200, 0, Surface},
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
    cellGrid[30][41].tileY = Roads;
    cellGrid[30][41].durab = 0;
    SurfaceChange(41, 30, 50);
    EXPECT_EQ(cellGrid[30][41].durab, 0) << "only ground and trenches";
    SurfaceChange(-1, 90, 50);
}

TEST_F(ExplosionsTest, ATrenchIsDugAndFilledByTheSpade) {
    unit.items[0].name = "etool";
    unit.items[0].count = 1;
    RefreshHand();
    const int time = unit.hand.time;
    Cell& cell = cellGrid[10][20];
    cell.durab = 100;
    const auto work = [&](const char* mode) {
        frmField.comboMode.Text = mode;
        unit.time = 100;
        ActOnTarget(900, 410);
        EXPECT_EQ(100 - unit.time, time);
    };
    work("Dig");
    EXPECT_EQ(cell.tileX, 15);
    for (int i = 0; i < 4; ++i)
        work("Dig");
    EXPECT_EQ(cell.tileX, 16);
    work("Dig");
    EXPECT_EQ(cell.durab, 0) << "no deeper, for the same time";
    for (int i = 0; i < 5; ++i)
        work("Fill");
    EXPECT_EQ(cell.tileY, Surface);
    EXPECT_EQ(cell.occupant, 0);
}

TEST_F(ExplosionsTest, AKitHealsUpToTheVitalityInItsNarrowField) {
    PutUnit(1, 21, 10);
    UnitTable[1].health = 20;
    UnitTable[1].vitality = 40;
    unit.items[0].name = "med";
    unit.items[0].capMain = 160;
    unit.items[0].roundsMain = 100;
    RefreshHand();
    int told = 0;
    for (int use = 0; use < 60; ++use) {
        unit.time = 100;
        const int before = UnitTable[1].health;
        frmField.cmbLog.List.clear();
        ActOnTarget(21 * 20 + 5, 10 * 20 + 5);
        const int gain = UnitTable[1].health - before;
        EXPECT_GE(gain, 0);
        EXPECT_LE(gain, 9);
        told += Log().find("u0 cured u1 for -") != std::string::npos ? 1 : 0;
    }
    EXPECT_EQ(UnitTable[1].health, 40);
    EXPECT_EQ(UnitTable[1].status, Active);
    EXPECT_EQ(unit.items[0].roundsMain, 40);
    EXPECT_GT(told, 20) << "60 of 101";
    EXPECT_LT(told, 52);
    unit.items[0].roundsMain = 0;
    HandSync("real2fake");
    ActOnTarget(21 * 20 + 5, 10 * 20 + 5);
    EXPECT_EQ(host.sounds.back().fileName, "\\wav\\weapons\\empty.wav");
}

}  // namespace
