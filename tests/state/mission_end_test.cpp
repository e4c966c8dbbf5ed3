// The verdict: which team is wiped out, what the log and the message say.
#include "state/mission_end.h"

#include "state/state.h"
#include "tests/support/game_test.h"

namespace {

class MissionEndTest : public GameTest {
  protected:
    static void MakeTeam(int team, const std::vector<int>& statuses) {
        teamLast[team] = static_cast<int>(statuses.size()) - 1;
        for (std::size_t i = 0; i < statuses.size(); ++i) {
            Unit& unit = UnitTable[FirstOf(team) + static_cast<int>(i)];
            unit.name = "u";
            unit.status = statuses[i];
        }
    }
};

TEST_F(MissionEndTest, EachOutcomeHasItsWordAndTheSquadGoesBackToItsRoster) {
    struct Case {
        std::vector<int> squad, enemies, civilians;
        const char* message;
    };
    const Case cases[] = {
        {{Active}, {Active}, {}, "Withdrawal. The end."},
        {{Wounded, Dead}, {Dead, Dead}, {}, "Victory. The end."},
        {{Dead}, {Dead}, {}, "Defeat. The end."},
        {{Active}, {Active}, {Dead}, "Team #2 exterminated. The end."},
    };
    for (const Case& c : cases) {
        ResetState();
        host.messages.clear();
        teamLast[RosterTeam] = 9;
        MakeTeam(SquadTeam, c.squad);
        MakeTeam(EnemyTeam, c.enemies);
        MakeTeam(2, c.civilians);
        EXPECT_THROW(EndGame(), ProcessEnded);
        EXPECT_EQ(host.messages, std::vector<std::string>{c.message});
        EXPECT_EQ(teamLast[RosterTeam], teamLast[SquadTeam]);
        EXPECT_EQ(UnitTable[60].status, c.squad[0]);
    }
}

}  // namespace
