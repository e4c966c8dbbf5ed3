// Whole missions, played by a script from the first turn to the verdict.
#include <map>

#include "state/state.h"
#include "tests/support/game_test.h"
#include "tools/player/scripted_player.h"

namespace {

using MissionTest = GameTest;

TEST_F(MissionTest, FiftySeedsEndInAVerdictOrByExit) {
    std::map<std::string, int> verdicts;
    for (unsigned seed = 1; seed <= 50; ++seed) {
        host.messages.clear();
        StartGame(seed);
        const MissionResult result = PlayMission(30);
        EXPECT_EQ(host.messages, std::vector<std::string>{result.verdict + ". The end."}) << "seed " << seed;
        EXPECT_EQ(result.verdict == "Victory", result.enemiesDead == teamLast[EnemyTeam] + 1);
        ++verdicts[result.verdict];
    }
    EXPECT_GT(verdicts["Victory"], 25) << "the enemy is hunted down in most";
}

}  // namespace
