// The computer player's routine, branch by branch.
#include "ai/computer_player.h"

#include <algorithm>
#include <cstdlib>

#include "combat/things.h"
#include "platform/random.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"

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
        self.items[0].capMain = 31;
        curUnit = 20;
        curTeam = EnemyTeam;
        Load(29);
        SeedRandom(2);
    }

    void Load(int rounds) {
        self.items[0].roundsMain = rounds;
        RefreshHand();
    }

    // The first soldier is far off, and another one at (x, y).
    void PutAnotherAt(int x, int y) {
        cellGrid[20][40].occupant = -1;
        PutUnit(0, 5, 40);
        PutUnit(1, x, y);
    }

    Unit& self = UnitTable[20];
};

constexpr int Shot = 33;  // time of the rifle

TEST_F(ComputerPlayerTest, TheReloadReadsAsIfInverted) {
    struct Case {
        const char* what;
        int rounds, capacity, time, roundsAfter, timeAfter;
    };
    constexpr Case Cases[] = {
        {"empty", 0, 31, 100, 20, 80},
        {"empty without time", 0, 31, 5, 20, -15},
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

TEST_F(ComputerPlayerTest, TheWaryReserveTwiceTheDrop) {
    self.stance = Stance::Run;
    self.aiWary = True;
    AiReserveTime();
    EXPECT_EQ(self.aiReserve, 2 * 12 + Shot);
}

TEST_F(ComputerPlayerTest, WithAnEnemyInSightItRunsUpDropsAndFiresAsFarAsItsTimeGoes) {
    struct Case {
        const char* what;
        int time, rounds, column, stance, roundsAfter, timeAfter;
    };
    // Up from standing for 4, running steps for 2, down for 12, the shot.
    constexpr Case Cases[] = {
        {"four steps", 100, 29, 46, Prone, 28, 100 - 4 - 8 - 12 - Shot},
        {"two beside the reserve, no reload", 4 + 12 + Shot + 4, 5, 48, Prone, 4, 0},
        {"an empty clip: 20 for it and 33 for a click", 100, 0, 46, Prone, 20, 100 - 20 - 4 - 8 - 12 - Shot},
        {"short of time a full clip is spoiled", 30, 31, 50, Stance::Run, 20, 30 - 20 - 4},
        {"an empty clip without time", 5, 0, 50, Stand, 20, -15},
    };
    for (const Case& c : Cases) {
        cellGrid[20][self.cellX].occupant = -1;
        PutUnit(20, 50, 20);
        self.facing = West;
        self.time = c.time;
        Load(c.rounds);
        AiAct();
        EXPECT_EQ(self.cellX, c.column) << c.what;
        EXPECT_EQ(self.stance, c.stance) << c.what;
        EXPECT_EQ(self.items[0].roundsMain, c.roundsAfter) << c.what;
        EXPECT_EQ(self.time, c.timeAfter) << c.what;
    }
}

TEST_F(ComputerPlayerTest, WithNobodyInSightItWandersAndLooksAllRound) {
    PutAnotherAt(5, 41);
    AiAct();
    EXPECT_EQ(self.facing, NorthWest) << "where the sweep ends";
    EXPECT_EQ(self.time, 100 - 4 - 5 * 2);
    EXPECT_EQ(std::max(std::abs(self.cellX - 50), std::abs(self.cellY - 20)), 5);
}

TEST_F(ComputerPlayerTest, WhatTheSweepFindsIsAnsweredWithAShotAtTheFirstSoldier) {
    // Walls keep it in its cell; the other soldier stands to the east, behind its back.
    DrawField(49, 19, {"###", "#a.", "###"});
    PutAnotherAt(55, 20);
    self.facing = West;
    AiAct();
    EXPECT_EQ(self.stance, Prone);
    EXPECT_EQ(self.facing, West) << "toward the first soldier: 45 cells west and 20 south";
    EXPECT_EQ(self.time, 80 - 4 - 12 - 4 - Shot)
        << "up, down, and round from the east, where the sweep ended";
}

TEST_F(ComputerPlayerTest, ItEndsBesideALivingTargetAndOnTheCellOfADeadOne) {
    struct Case {
        int status, occupant, column, time;
    };
    constexpr Case Cases[] = {
        {Active, 0, 41, 100 - 4 - 2 * 2 - 12 - Shot},  // the third step is refused, for nothing
        {Dead, -1, 40, 100 - 4 - 3 * 2 - 12 - Shot},
    };
    PutUnit(1, 38, 20);
    for (const Case& c : Cases) {
        UnitTable[0].status = c.status;
        cellGrid[20][40].occupant = c.occupant;
        cellGrid[20][self.cellX].occupant = -1;
        PutUnit(20, 43, 20);
        self.facing = West;
        self.time = 100;
        Load(29);
        AiAct();
        EXPECT_EQ(self.cellX, c.column);
        EXPECT_EQ(self.time, c.time);
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

}  // namespace
