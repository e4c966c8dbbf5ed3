// Whole missions, played by a script from the first turn to the verdict.
#include <map>

#include "state/state.h"
#include "tests/support/game_test.h"
#include "tools/scripted_player.h"
#include "view/field_form.h"

namespace {

class MissionTest : public GameTest {};

TEST_F(MissionTest, FiftySeedsEndInAVerdictOrByExit) {
    std::map<std::string, int> verdicts;
    for (unsigned seed = 1; seed <= 50; ++seed) {
        host.messages.clear();
        StartGame(seed);
        MissionResult result;
        try {
            result = PlayMission(30);
        } catch (const RunTimeError& error) {
            ADD_FAILURE() << "seed " << seed << ": " << error.what() << "\n" << frmField.cmbLog.Text;
            continue;
        }
        EXPECT_EQ(host.messages, std::vector<std::string>{result.verdict + ". The end."}) << "seed " << seed;
        EXPECT_EQ(result.verdict == "Victory", result.enemiesDead == teamLast[EnemyTeam] + 1);
        ++verdicts[result.verdict];
    }
    EXPECT_GT(verdicts["Victory"], 25) << "the enemy is hunted down in most";
    EXPECT_EQ(verdicts["Victory"] + verdicts["Withdrawal"] + verdicts["Defeat"], 50);
}

TEST_F(MissionTest, ThePlayerLeavesAfterHisLastTurn) {
    StartGame(1);
    for (int i = 0; i <= teamLast[EnemyTeam]; ++i)
        UnitTable[FirstOf(EnemyTeam) + i].health = 9000;
    UnitTable[1].status = Dead;
    UnitTable[2].wasWounded = True;
    const MissionResult result = PlayMission(1);
    EXPECT_EQ(result.verdict, "Withdrawal");
    EXPECT_EQ(result.turns, 1);
    EXPECT_EQ(result.enemiesDead, 0);
    EXPECT_GE(result.squadDead, 1);
    EXPECT_GE(result.squadWounded, 1);
}

}  // namespace
