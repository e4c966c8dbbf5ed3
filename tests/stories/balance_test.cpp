// The mission on the map "49" is worth playing: a careful player mostly wins it and pays for it, a careless
// one mostly doesn't, and every quarter of the valley is where some missions are decided.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

#include "mission/setup.h"
#include "platform/files.h"
#include "platform/quiet_host.h"
#include "tools/game_copy.h"
#include "tools/missions/summary.h"
#include "tools/player/squad_player.h"

namespace {

constexpr int Seeds = 100;
constexpr int Turns = 22;

struct Campaign {
    int victories = 0;
    int dead = 0;
    std::vector<int> turns;  // of the victories
    std::array<int, Quarters> decided{};
};

Campaign PlayAll(const char* player) {
    const GameCopy copy(PLAYED_GAME);
    SetProgramFolder(copy.Path());
    const QuietHost host;
    FallWatch watch;
    InstallAudience(&watch);
    Campaign campaign;
    for (std::uint32_t seed = 1; seed <= Seeds; ++seed) {
        BeginGame(seed);
        const PlayedMission mission = {seed, PlayMission(Turns, HabitsNamed(player)), "", watch.Falls()};
        const bool won = mission.result.verdict == "Victory";
        EXPECT_EQ(won, mission.result.enemiesDead == teamLast[EnemyTeam] + 1) << seed;
        campaign.victories += won ? 1 : 0;
        campaign.dead += mission.result.squadDead;
        if (won) campaign.turns.push_back(mission.result.turns);
        if (const std::optional<Spot> cell = DecidingCell(mission))
            ++campaign.decided[static_cast<std::size_t>(QuarterOf(*cell))];
    }
    InstallAudience(nullptr);
    std::sort(campaign.turns.begin(), campaign.turns.end());
    return campaign;
}

// The bounds are wider than what 2000 missions must come to, by the chance of so few.
TEST(BalanceTest, ACarefulSquadMostlyWinsAndACarelessOneDoesNot) {
    const Campaign sensible = PlayAll("sensible");
    EXPECT_GE(sensible.victories, Seeds * 66 / 100);
    EXPECT_LE(sensible.victories, Seeds * 95 / 100);
    EXPECT_GE(sensible.turns[sensible.turns.size() / 10], 7);
    EXPECT_LE(sensible.turns[sensible.turns.size() / 2], 17);
    EXPECT_GE(sensible.dead, Seeds) << "a victory costs";
    for (const int decided : sensible.decided)
        EXPECT_GE(decided, Seeds * 5 / 100);
    const Campaign careless = PlayAll("careless");
    EXPECT_LE(careless.victories, Seeds * 55 / 100);
    EXPECT_GE(careless.dead * 10, sensible.dead * 12);
}

}  // namespace
