// The turn engine: refill, status by health, the selection with its passes and its log, the verdict.
#include "mission/turns.h"

#include "data/tables.h"
#include "mission/mission_end.h"
#include "state/status.h"
#include "tests/support/game_test.h"
#include "view/forms.h"

namespace {

struct Member {
    int status = Active;
    int health = 50;
    int time = 80;
    int agility = 40;
};

class TurnsTest : public GameTest {
  protected:
    TurnsTest() { InitTables(); }

    // Members are named a, b, c, ...; the squad is out of the enemy's sight and has its turn.
    void MakeTeams(const std::vector<Member>& squad, const std::vector<Member>& enemies) {
        MakeTeam(SquadTeam, squad);
        MakeTeam(EnemyTeam, enemies);
        curTeam = SquadTeam;
        curUnit = 0;
    }

    static void MakeTeam(int team, const std::vector<Member>& members) {
        teamLast[team] = static_cast<int>(members.size()) - 1;
        char name = 'a';
        for (const Member& member : members) {
            Unit& unit = UnitTable[FirstOf(team) + name - 'a'];
            unit.name = std::string(1, name++);
            unit.team = team;
            unit.enemyTeam = team == EnemyTeam ? SquadTeam : EnemyTeam;
            unit.health = member.health;
            unit.status = member.status;
            unit.agility = member.agility;
            unit.strength = 40;
            unit.time = member.time;
            if (team == SquadTeam) unit.cellX = unit.cellY = 44;
        }
    }
};

TEST_F(TurnsTest, ANewTurnRefillsTimeAndEnergy) {
    struct Case {
        int strength, energy, refilled;
    };
    constexpr Case Cases[] = {
        {60, 121, 180},              // 151 is above 120 and jumps to 180
        {60, 90, 120},               // exactly twice the strength stays
        {60, 91, 180},  {5, 2, 4},   // 4.5 to the even neighbour
        {5, 3, 6},      {40, 0, 20}  // 5.5
    };
    for (const Case& c : Cases) {
        MakeTeams({{}}, {{}});
        curTeam = EnemyTeam;
        UnitTable[0].strength = c.strength;
        UnitTable[0].energy = c.energy;
        UnitTable[0].time = 3;
        NewTurn();
        EXPECT_EQ(UnitTable[0].energy, c.refilled) << c.strength << " " << c.energy;
        EXPECT_EQ(UnitTable[0].time, 80);
    }
}

TEST_F(TurnsTest, AGrantIsTwoHundredUpToEightHundred) {
    MakeTeams({{}}, {{}});
    for (const auto& [had, granted] : {std::pair{600, 800}, {601, 800}, {80, 280}}) {
        UnitTable[0].time = UnitTable[0].energy = had;
        TimeGrant();
        EnergyGrant();
        EXPECT_EQ(UnitTable[0].time, granted);
        EXPECT_EQ(UnitTable[0].energy, granted);
    }
}

TEST_F(TurnsTest, StatusFollowsFromHealth) {
    struct Case {
        int health, status, wasWounded, left;
    };
    constexpr Case Cases[] = {{31, Active, False, 31},  {30, Wounded, True, 30}, {16, Wounded, True, 16},
                              {15, Immobile, True, 15}, {1, Immobile, True, 1},  {-7, Dead, True, 0}};
    for (const Case& c : Cases) {
        ResetState();
        UnitTable[0].health = c.health;
        UnitTable[0].time = 80;
        CheckStatus();
        EXPECT_EQ(UnitTable[0].status, c.status) << c.health;
        EXPECT_EQ(UnitTable[0].wasWounded, c.wasWounded) << c.health;
        EXPECT_EQ(UnitTable[0].health, c.left) << c.health;
    }
}

TEST_F(TurnsTest, TheSelectionPassesOverWhoCanNotAct) {
    struct Case {
        std::vector<Member> squad;
        int selected;
        const char* log;
    };
    const Member dead = {Dead, 0};
    const Member spent = {Active, 50, 3};
    const Case cases[] = {
        {{{}, dead, {Immobile, 10}, {Wounded, 30}, spent},
         0,  // it comes back
         "b (#1) is dead. Selecting the next one.\n"
         "c (#2) is immobile and now -1\n"
         "Selected c [immobile]\n"
         "d (#3) is wounded and now +1\n"
         "Selected d [active]\n"  // healed by the pass, too late to act
         "0 time for e (#4)\n"
         "Selected a [active]\n"
         "Selected a [active]\n"},
        {{{}, {Active, 50, 4}}, 1, "Selected b [active]\nSelected b [active]\n"},
        {{{}, {Wounded, 20, 3}, {}},  // the wounded one's spent time hands nothing over
         2,
         "b (#1) is wounded and now +1\n"
         "Selected b [wounded]\n"
         "Selected c [active]\n"
         "Selected c [active]\n"},
        {{spent, spent},  // the turn goes through the enemy and back
         0,
         "0 time for b (#1)\n"
         "0 time for a (#0)\n"
         "New turn for team #1\n"
         "New turn for team #0\n"
         "Selected a [active]\n"
         "Selected a [active]\n"},
        {{dead, spent, spent},  // b, c; then a is dead, b again: three are done
         1,
         "0 time for b (#1)\n"
         "0 time for c (#2)\n"
         "a (#0) is dead. Selecting the next one.\n"
         "0 time for b (#1)\n"
         "New turn for team #1\n"
         "New turn for team #0\n"
         "a (#0) is dead. Selecting the next one.\n"
         "Selected b [active]\n"
         "Selected b [active]\n"},
    };
    for (const Case& c : cases) {
        ResetState();
        ResetForms();
        InitTables();
        MakeTeams(c.squad, {{}});
        walkOn = 1;
        SelectNextUnit();
        EXPECT_EQ(Log(), c.log);
        EXPECT_EQ(curUnit, c.selected);
        EXPECT_EQ(walkOn, 0);
    }
}

TEST_F(TurnsTest, EachOutcomeHasItsWordAndTheSquadGoesBackToItsRoster) {
    struct Case {
        std::vector<Member> squad, enemies, civilians;
        const char* message;
    };
    const Member alive;
    const Member dead = {Dead, 0};
    const Case cases[] = {
        {{alive}, {alive}, {}, "Withdrawal. The end."},
        {{{Wounded}, dead}, {dead, dead}, {}, "Victory. The end."},
        {{dead}, {dead}, {}, "Defeat. The end."},
        {{alive}, {alive}, {dead}, "Team #2 exterminated. The end."},
    };
    for (const Case& c : cases) {
        ResetState();
        host.messages.clear();
        teamLast[RosterTeam] = 9;
        MakeTeams(c.squad, c.enemies);
        MakeTeam(2, c.civilians);
        EXPECT_THROW(EndGame(), ProcessEnded);
        EXPECT_EQ(host.messages, std::vector<std::string>{c.message});
        EXPECT_EQ(teamLast[RosterTeam], teamLast[SquadTeam]);
        EXPECT_EQ(UnitTable[60].status, c.squad[0].status);
    }
}

TEST_F(TurnsTest, OnlyATeamThatIsDeadToTheLastEndsTheMission) {
    MakeTeams({{Dead, 0}, {Immobile, 15}}, {{}});
    // The immobile one is bled once a pass until both are dead; the enemy's turns lie between.
    EXPECT_THROW(SelectNextUnit(), ProcessEnded);
    EXPECT_EQ(UnitTable[1].health, 0);
    MakeTeams({{}}, {{Dead, 0}, {Dead, 0}});
    EXPECT_THROW(NewTurn(), ProcessEnded);
    EXPECT_EQ(host.messages, (std::vector<std::string>{"Defeat. The end.", "Victory. The end."}));
}

}  // namespace
