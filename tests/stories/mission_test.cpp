// Whole missions, played by a script from the first turn to the verdict.
#include <map>

#include "tests/support/game_test.h"
#include "tests/support/scripted_player.h"
#include "view/field_form.h"

namespace {

class MissionTest : public GameTest {};

TEST_F(MissionTest, FiftySeedsEndInAVerdictOrByExit) {
    std::map<std::string, int> outcomes;
    for (unsigned seed = 1; seed <= 50; ++seed) {
        host.messages.clear();
        StartGame(seed);
        try {
            PlayMission(30);
        } catch (const ProcessEnded& end) {
            EXPECT_EQ(end.exitCode, 0) << "seed " << seed;
        } catch (const RunTimeError& error) {
            ADD_FAILURE() << "seed " << seed << ": " << error.what() << "\n" << frmField.cmbLog.Text;
            continue;
        }
        ASSERT_EQ(host.messages.size(), 1U);
        ++outcomes[host.messages[0]];
    }
    EXPECT_GT(outcomes["Victory. The end."], 25) << "the enemy is hunted down in most";
    for (const auto& [message, count] : outcomes)
        EXPECT_TRUE(message == "Victory. The end." || message == "Withdrawal. The end." ||
                    message == "Defeat. The end.")
            << message << " in " << count;
}

}  // namespace
