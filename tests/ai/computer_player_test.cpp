// What of the computer player's routine no recording shows to the digit.
#include "ai/computer_player.h"

#include "combat/things.h"
#include "tests/support/game_test.h"

namespace {

class ComputerPlayerTest : public GameTest {
  protected:
    ComputerPlayerTest() {
        ClearField();
        PutUnit(20, 50, 20);
        curUnit = 20;
        self.items[0].name = "ak";
        RefreshHand();
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
    EXPECT_EQ(self.aiReserve, 2 * 12 + 33) << "of the rifle's time";
}

}  // namespace
