// The figures that many missions come to.
#include "tools/missions/summary.h"

#include <gtest/gtest.h>

namespace {

// Ten victories of 1 to 10 turns, two withdrawals of 30 and 7, and one mission that failed.
PlayedMission Played(const char* verdict, int turns, int squadWounded, int squadDead, int enemiesDead,
                     Spot last) {
    PlayedMission mission;
    mission.seed = 100;
    mission.result = {verdict, turns, squadWounded, squadDead, enemiesDead};
    mission.falls = {{0, {75, 0}}, {20, last}};
    return mission;
}

std::vector<PlayedMission> Missions() {
    std::vector<PlayedMission> missions;
    for (const int turns : {10, 1, 9, 2, 8, 3, 7, 4, 6, 5})
        missions.push_back(Played("Victory", turns, turns % 2, 0, 3, {37, static_cast<i16>(22 + turns % 2)}));
    missions.push_back(Played("Withdrawal", 30, 4, 2, 1, {75, 45}));
    missions.push_back(Played("Withdrawal", 7, 1, 1, 0, {75, 45}));
    missions.emplace_back().seed = 113;
    missions.back().error = "x";
    return missions;
}

TEST(MissionSummaryTest, TheTableLeavesOutWhatFailed) {
    EXPECT_EQ(
        MissionTable(Missions()),
        "                              turns                      mean of a mission\n"
        "            missions   share    min  median   90%   max  wounded   dead  enemies dead  costly\n"
        "Victory           10   83.3%      1       5     9    10     0.50   0.00          3.00   50.0%\n"
        "Defeat             0\n"
        "Withdrawal         2   16.7%      7       7    30    30     2.50   1.50          0.50  100.0%\n"
        // Of twelve the sixth and the eleventh; ten wounded, three dead and 31 enemies; seven were costly.
        "All               12  100.0%      1       6    10    30     0.83   0.25          2.58   58.3%\n"
        "costly: cost the squad a wounded or dead soldier\n"
        "decided in the NW 41.7% NE 0.0% SW 41.7% SE 0.0%\n");
}

}  // namespace
