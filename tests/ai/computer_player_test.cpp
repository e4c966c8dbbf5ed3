// The computer player's routine, branch by branch.
#include "ai/computer_player.h"

#include <algorithm>
#include <cstdlib>

#include "combat/things.h"
#include "platform/random.h"
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

}  // namespace
