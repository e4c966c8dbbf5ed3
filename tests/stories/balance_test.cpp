// The mission on the map "49" comes to its end and is worth playing: it lasts, it costs a careful player
// something, and a careless one a lot more.
#include <algorithm>
#include <vector>

#include "platform/files.h"
#include "tests/support/game_test.h"
#include "tools/player/scripted_player.h"
#include "tools/player/squad_player.h"

namespace {

constexpr int Seeds = 24;
constexpr int Turns = 40;

struct Campaign {
    int victories = 0;
    int costly = 0;  // missions with a wounded or dead soldier
    int losses = 0;  // wounded and dead of all missions
    std::vector<int> turns;
};

class BalanceTest : public GameTest {
  protected:
    BalanceTest() { SetProgramFolder(played.Path()); }

    Campaign PlayAll(const char* player) {
        Campaign campaign;
        for (int seed = 1; seed <= Seeds; ++seed) {
            host.messages.clear();
            StartGame(static_cast<unsigned>(seed));
            const MissionResult result = PlayMission(Turns, HabitsNamed(player));
            EXPECT_EQ(host.messages, std::vector<std::string>{result.verdict + ". The end."}) << seed;
            EXPECT_EQ(result.verdict == "Victory", result.enemiesDead == teamLast[EnemyTeam] + 1) << seed;
            const int losses = result.squadWounded + result.squadDead;
            campaign.victories += result.verdict == "Victory" ? 1 : 0;
            campaign.costly += losses > 0 ? 1 : 0;
            campaign.losses += losses;
            campaign.turns.push_back(result.turns);
        }
        std::sort(campaign.turns.begin(), campaign.turns.end());
        return campaign;
    }

    GameCopy played{PLAYED_GAME};
};

TEST_F(BalanceTest, TheMissionLastsAndCarelessnessCosts) {
    const Campaign sensible = PlayAll("sensible");
    const Campaign careless = PlayAll("careless");
    EXPECT_GE(sensible.victories, Seeds * 9 / 10);
    EXPECT_GE(sensible.turns[Seeds / 2], 8);
    EXPECT_LE(sensible.turns[Seeds / 2], 25);
    EXPECT_GE(sensible.costly * 3, Seeds) << "at least every third costs somebody";
    EXPECT_LE(sensible.losses, Seeds * 3 / 2) << "it stays fair";
    EXPECT_GE(careless.losses, sensible.losses * 2);
}

}  // namespace
