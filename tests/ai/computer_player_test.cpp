// The computer player's routine, branch by branch.
#include "ai/computer_player.h"

#include "combat/costs.h"
#include "combat/things.h"
#include "data/weapons_file.h"
#include "field/sightings.h"
#include "platform/random.h"
#include "state/state.h"
#include "state/turns.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

class ComputerPlayerTest : public GameTest {
  protected:
    ComputerPlayerTest() {
        ClearField();
        PutUnit(0, 40, 20);
        PutUnit(20, 50, 20);
        UnitTable[0].health = 1000;
        self.facing = West;
        self.time = 100;
        self.marksmanship = 50;
        self.items[0].name = "ak";
        self.items[0].count = 1;
        self.items[0].ammoMain = "7ak";
        self.items[0].capMain = 31;
        self.items[0].roundsMain = 29;
        curUnit = 20;
        curTeam = EnemyTeam;
        RefreshHand();
        SeedRandom(2);
    }

    Unit& self = UnitTable[20];
};

TEST_F(ComputerPlayerTest, TheReloadReadsAsIfInverted) {
    struct Case {
        const char* what;
        int rounds, capacity, time, roundsAfter, timeAfter;
    };
    constexpr Case Cases[] = {
        {"empty", 0, 31, 100, 20, 80},
        {"empty without time", 0, 31, 5, 20, -15},
        {"in the lower third", 10, 31, 10, 10, 10},
        {"exactly a third", 10, 30, 10, 10, 10},
        {"over a third with time", 11, 31, 41, 11, 41},
        {"over a third, short of time", 11, 31, 40, 20, 20},
        {"full and short of time", 30, 30, 30, 20, 10},
    };
    for (const Case& c : Cases) {
        self.items[0].roundsMain = c.rounds;
        self.items[0].capMain = c.capacity;
        self.time = c.time;
        AiReload();
        EXPECT_EQ(self.items[0].roundsMain, c.roundsAfter) << c.what;
        EXPECT_EQ(self.time, c.timeAfter) << c.what;
    }
}

TEST_F(ComputerPlayerTest, TheReserveIsTheDropAndTheShot) {
    self.stance = Stance::Run;
    AiReserveTime();
    EXPECT_EQ(self.aiReserve, 12 + WeaponInfoByName("ak").time);
    self.aiWary = True;
    AiReserveTime();
    EXPECT_EQ(self.aiReserve, 24 + WeaponInfoByName("ak").time);
}

TEST_F(ComputerPlayerTest, WithAnEnemyInSightItRunsUpDropsAndFires) {
    const int shot = WeaponInfoByName("ak").time;
    AiAct();
    EXPECT_EQ(self.cellX, 46) << "four steps";
    EXPECT_EQ(self.stance, Prone);
    EXPECT_EQ(self.items[0].roundsMain, 28);
    // Up from standing for 4, four running steps for 8, down for 12, the shot.
    EXPECT_EQ(self.time, 100 - 4 - 8 - 12 - shot);
}

TEST_F(ComputerPlayerTest, TheReserveStopsTheAdvance) {
    self.time = 4 + 12 + WeaponInfoByName("ak").time + 4;
    self.items[0].roundsMain = 5;  // in the lower third: no reload
    HandSync("real2fake");
    AiAct();
    EXPECT_EQ(self.cellX, 48) << "time for two steps beside the reserve";
    EXPECT_EQ(self.items[0].roundsMain, 4);
    EXPECT_EQ(self.time, 0);
}

TEST_F(ComputerPlayerTest, WithoutTimeAnEmptyClipLeavesItStanding) {
    self.items[0].roundsMain = 0;
    self.time = 5;
    AiAct();
    EXPECT_EQ(self.cellX, 50);
    EXPECT_EQ(self.items[0].roundsMain, 20);
    EXPECT_EQ(self.time, -15);
}

TEST_F(ComputerPlayerTest, WithNobodyInSightItWandersAndLooksAllRound) {
    PutUnit(0, 5, 40);
    cellGrid[20][40].occupant = -1;
    AiAct();
    EXPECT_EQ(self.facing, NorthWest) << "where the sweep ends";
    EXPECT_EQ(self.stance, Stance::Run);
    EXPECT_EQ(self.items[0].roundsMain, 29);
    EXPECT_EQ(self.time, 100 - 4 - 5 * 2);
    EXPECT_EQ(std::max(std::abs(self.cellX - 50), std::abs(self.cellY - 20)), 5);
}

TEST_F(ComputerPlayerTest, WhatTheSweepFindsIsAnsweredWithAShotAtTheFirstSoldier) {
    PutUnit(0, 5, 40);
    cellGrid[20][40].occupant = -1;
    // Walls keep it in its cell; the other soldier stands to the east, behind its back.
    DrawField(49, 19, {"###", "#a.", "###"});
    self.facing = West;
    PutUnit(1, 55, 20);
    AiAct();
    EXPECT_EQ(self.stance, Prone);
    EXPECT_EQ(self.facing, West) << "toward the first soldier: 45 cells west and 20 south";
}

TEST_F(ComputerPlayerTest, ADeadTargetIsStillTheTarget) {
    UnitTable[0].status = Dead;
    cellGrid[20][40].occupant = -1;
    PutUnit(1, 44, 22);
    AiAct();
    EXPECT_EQ(self.cellX, 46);
    EXPECT_EQ(self.items[0].roundsMain, 28);
}

TEST_F(ComputerPlayerTest, AnEmptyClipIsFilledForTheNextTurnAlone) {
    self.items[0].roundsMain = 0;
    HandSync("real2fake");
    AiAct();
    // 20 for the clip, 4 to run, 8 for the steps, 12 to drop, 15 for the empty click.
    EXPECT_EQ(self.time, 100 - 20 - 4 - 8 - 12 - 33);
    EXPECT_EQ(self.items[0].roundsMain, 20) << "the hand doesn't know of it";
    self.time = 100;
    RefreshHand();
    AiAct();
    EXPECT_EQ(self.items[0].roundsMain, 19);
}

TEST_F(ComputerPlayerTest, ShortOfTimeItSpoilsAFullClipAndNeitherWalksNorFires) {
    self.time = 30;
    self.items[0].roundsMain = 31;
    HandSync("real2fake");
    AiAct();
    EXPECT_EQ(self.items[0].roundsMain, 20);
    EXPECT_EQ(self.time, 30 - 20 - 4);
    EXPECT_EQ(self.cellX, 50);
    EXPECT_EQ(self.energy, 60 - 3) << "a refused step keeps the energy";
    EXPECT_EQ(self.stance, Stance::Run) << "6 don't buy the drop for 12";
}

TEST_F(ComputerPlayerTest, HavingLostSightOnTheWayItFiresAllTheSame) {
    PutUnit(0, 58, 5);
    cellGrid[20][40].occupant = -1;
    PutUnit(1, 45, 20);  // the one who is seen
    // The only way to the target is an alley to the north.
    DrawField(0, 19, {std::string(50, '#') + "." + std::string(25, '#')});
    DrawField(49, 10, {"#.#", "#.#", "#.#", "#.#", "#.#", "#.#", "#.#", "#.#", "#.#"});
    AiAct();
    EXPECT_EQ(self.cellX, 50);
    EXPECT_EQ(self.cellY, 16);
    EXPECT_EQ(self.facing, NorthEast) << "through the wall toward the target: 8 cells east and 11 north";
    EXPECT_EQ(self.items[0].roundsMain, 28);
    // Up 4, two eighths of a turn, four steps, down 12, an eighth, the shot.
    EXPECT_EQ(self.time, 100 - 4 - 2 - 8 - 12 - 1 - 33);
    for (const int facing : {North, NorthEast}) {
        self.facing = facing;
        EnemyCounter("clear");
        EXPECT_FALSE(aiSeeCheck()) << "nobody is in sight from there";
    }
}

TEST_F(ComputerPlayerTest, ItEndsBesideALivingTargetAndOnTheCellOfADeadOne) {
    struct Case {
        int status, occupant, column, time;
    };
    constexpr Case Cases[] = {
        {Active, 0, 41, 100 - 4 - 2 * 2 - 12 - 33},  // the third step is refused, for nothing
        {Dead, -1, 40, 100 - 4 - 3 * 2 - 12 - 33},
    };
    PutUnit(1, 38, 20);
    for (const Case& c : Cases) {
        UnitTable[0].status = c.status;
        cellGrid[20][40].occupant = c.occupant;
        cellGrid[20][self.cellX].occupant = -1;
        PutUnit(20, 43, 20);
        self.facing = West;
        self.time = 100;
        self.items[0].roundsMain = 29;
        HandSync("real2fake");
        AiAct();
        EXPECT_EQ(self.cellX, c.column);
        EXPECT_EQ(self.time, c.time);
        EXPECT_EQ(self.items[0].roundsMain, 28);
        EXPECT_EQ(self.health, 50);
    }
}

TEST_F(ComputerPlayerTest, OrdersInItsTurnAreDropped) {
    host.Queue({EventKind::MouseDown, "frmField.area", -1, 1, 0, 1010, 900});
    host.Queue({EventKind::KeyDown, "frmField", -1, 32});
    AiAct();
    EXPECT_EQ(curUnit, 20);
    EXPECT_EQ(self.cellX, 46);
    EXPECT_EQ(lastClickX, 0);
}

TEST_F(ComputerPlayerTest, ItsWholeTeamActsInOneTurn) {
    PutUnit(21, 60, 20);
    PutUnit(1, 10, 10);
    curTeam = SquadTeam;
    for (int i : {20, 21})
        UnitTable[i].agility = 50;
    NewTurn();
    EXPECT_EQ(curTeam, SquadTeam);
    EXPECT_NE(UnitTable[20].time, 100);
    EXPECT_NE(UnitTable[21].time, 100);
}

}  // namespace
