// What the rules report to whoever watches: the order of it, and that it makes no difference who does.
#include "state/audience.h"

#include "combat/actions.h"
#include "data/terrain.h"
#include "field/sightings.h"
#include "field/walking.h"
#include "mission/setup.h"
#include "shell/companion.h"
#include "state/quiet_audience.h"
#include "tests/support/game_test.h"
#include "tests/support/writing_audience.h"
#include "tools/player/orders.h"
#include "tools/player/scripted_player.h"
#include "view/start.h"

namespace {

class AudienceTest : public GameTest {
  protected:
    AudienceTest() {
        StartGame();
        ClearField();
        teamLast[SquadTeam] = teamLast[EnemyTeam] = 0;
        PutUnit(20, 40, 20);
        PutUnit(0, 30, 20);
        curTeam = SquadTeam;
        curUnit = 0;
    }

    WritingAudience audience;
};

TEST_F(AudienceTest, AStepIsReportedPixelByPixelWhereThePlayerSeesIt) {
    InstallAudience(&audience);
    TurnOrStep(true, East);
    EXPECT_EQ(audience.Take(),
              "figures energy\n"
              "figures time\n"
              "step to 31,20\n"
              "sound bump/step1\n"
              "sound bump/step2\n"
              "20 pixels\n"
              "stepped from 30,20\n"
              "sighted at 40,20\n"
              "enemies: 1\n");
    UnitTable[0].seen = {};
    curUnit = 20;
    UnitTable[20].facing = East;
    TurnOrStep(true, East);
    EXPECT_EQ(audience.Take(), "moved unseen by 1,0\n");
}

TEST_F(AudienceTest, AShotReportsItsTrailAndItsSufferer) {
    Hold("m4", "Aimed", 1);
    UnitTable[0].hand.accur = 200;  // no scatter
    UnitTable[0].marksmanship = 100;
    UnitTable[20].stance = Stand;
    PutTile(35, 20, 11, Wooden);
    UnitTable[0].health = UnitTable[20].health = 90;
    InstallAudience(&audience);
    ActOnTarget(UnitTable[20].pixelX + HalfCell, UnitTable[20].pixelY + HalfCell);
    const std::string reported = audience.Take();
    const std::size_t glass =
        reported.find("pixels\nsound bump\\glass2 at 35\ntrail return\ncell 35,20\ntrail store\n");
    EXPECT_NE(glass, std::string::npos) << reported;
    EXPECT_NE(reported.find("trail finalize\n", glass), std::string::npos) << reported;
}

// A mission is the same before the windows, through whose door its orders come and with somebody who goes
// along, and before nobody.
TEST_F(AudienceTest, AMissionIsTheSameWhoeverWatches) {
    for (const char* player : {"simple", "sensible", "careless"}) {
        constexpr unsigned Seed = 3;
        constexpr int Turns = 12;
        {
            const Companion companion;
            SendOrdersTo(Dispatch);
            Main(Seed);
            PlayMission(Turns, HabitsNamed(player));
            SendOrdersTo(nullptr);
        }
        const auto shown = std::make_unique<GameState>(game);
        QuietAudience nobody;
        InstallAudience(&nobody);
        BeginGame(Seed);
        PlayMission(Turns, HabitsNamed(player));
        EXPECT_TRUE(game == *shown) << player;
    }
}

}  // namespace
