// The turn engine: refill, status by health, the selection with its passes and its log.
#include "state/turns.h"

#include "data/tables.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

class TurnsTest : public GameTest {
  protected:
    TurnsTest() { InitTables(); }

    // Teams of healthy units named a, b, c, ... with time for a turn.
    void MakeTeams(int squad, int enemies) {
        MakeTeam(SquadTeam, squad);
        MakeTeam(EnemyTeam, enemies);
    }

    static void MakeTeam(int team, int count) {
        teamLast[team] = count - 1;
        for (int i = 0; i < count; ++i) {
            Unit& unit = UnitTable[FirstOf(team) + i];
            unit.name = std::string(1, static_cast<char>('a' + i));
            unit.team = team;
            unit.enemyTeam = team == EnemyTeam ? SquadTeam : EnemyTeam;
            unit.health = 50;
            unit.status = Active;
            unit.agility = 40;
            unit.strength = 40;
            unit.time = 80;
        }
    }

    static void SetHealth(int index, int status, int health) {
        UnitTable[index].status = status;
        UnitTable[index].health = health;
    }

    // Farther away from the computer's units than anybody sees.
    static void PutSquadOutOfSight() {
        for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
            UnitTable[i].cellX = 70;
            UnitTable[i].cellY = 40;
        }
    }
};

TEST_F(TurnsTest, ANewTurnRefillsTimeAndEnergy) {
    struct Case {
        int strength, energy, refilled;
    };
    constexpr Case Cases[] = {
        {60, 121, 180},  // 151 is above 120 and jumps to 180
        {60, 90, 120},   // exactly twice the strength stays
        {60, 91, 180},   //
        {5, 2, 4},       // 4.5 to the even neighbour
        {5, 3, 6},       // 5.5
        {40, 0, 20},
    };
    for (const Case& c : Cases) {
        MakeTeams(1, 1);
        curTeam = EnemyTeam;
        UnitTable[0].strength = c.strength;
        UnitTable[0].energy = c.energy;
        UnitTable[0].time = 3;
        NewTurn();
        EXPECT_EQ(UnitTable[0].energy, c.refilled) << c.strength << " " << c.energy;
        EXPECT_EQ(UnitTable[0].time, 80);
        EXPECT_EQ(curUnit, 0);
    }
}

TEST_F(TurnsTest, StatusFollowsFromHealth) {
    struct Case {
        int health, status, wasWounded, left;
    };
    constexpr Case Cases[] = {{31, Active, False, 31},  {30, Wounded, True, 30}, {16, Wounded, True, 16},
                              {15, Immobile, True, 15}, {1, Immobile, True, 1},  {0, Dead, True, 0},
                              {-7, Dead, True, 0}};
    for (const Case& c : Cases) {
        ResetState();
        UnitTable[0].health = c.health;
        UnitTable[0].time = 80;
        CheckStatus();
        EXPECT_EQ(UnitTable[0].status, c.status) << c.health;
        EXPECT_EQ(UnitTable[0].wasWounded, c.wasWounded) << c.health;
        EXPECT_EQ(UnitTable[0].health, c.left) << c.health;
    }
    UnitTable[0].health = 31;
    CheckStatus();
    EXPECT_EQ(UnitTable[0].status, Active) << "a healed soldier acts again";
}

TEST_F(TurnsTest, TheSelectionPassesOverTheDeadTheInvalidAndTheTimeless) {
    MakeTeams(5, 1);
    UnitTable[1].status = Dead;
    UnitTable[1].health = 0;
    UnitTable[2].status = Immobile;
    UnitTable[2].health = 10;
    UnitTable[3].status = Wounded;
    UnitTable[3].health = 30;
    UnitTable[4].time = 3;
    curTeam = SquadTeam;
    curUnit = 0;
    walkOn = 1;
    SelectNextUnit();
    EXPECT_EQ(curUnit, 0) << "all others are passed over, and the selection comes back";
    EXPECT_EQ(walkOn, 0);
    EXPECT_EQ(Log(),
              "b (#1) is dead. Selecting the next one.\n"
              "c (#2) is immobile and now -1\n"
              "Selected c [immobile]\n"
              "d (#3) is wounded and now +1\n"
              "Selected d [active]\n"
              "0 time for e (#4)\n"
              "Selected a [active]\n"
              "Selected a [active]\n");
    EXPECT_EQ(UnitTable[2].health, 9);
    EXPECT_EQ(UnitTable[3].health, 31);
    EXPECT_EQ(UnitTable[3].status, Active) << "healed by the pass";
}

TEST_F(TurnsTest, FourTimeIsEnoughToAct) {
    MakeTeams(2, 1);
    UnitTable[1].time = 4;
    curTeam = SquadTeam;
    SelectNextUnit();
    EXPECT_EQ(curUnit, 1);
}

TEST_F(TurnsTest, ATeamWithoutTimePassesTheTurnThroughTheEnemyAndBack) {
    MakeTeams(2, 3);
    curTeam = SquadTeam;
    curUnit = 0;
    UnitTable[0].time = UnitTable[1].time = 0;
    SelectNextUnit();
    EXPECT_EQ(curTeam, SquadTeam);
    EXPECT_EQ(curUnit, 0);
    EXPECT_EQ(Log(),
              "0 time for b (#1)\n"
              "0 time for a (#0)\n"
              "New turn for team #1\n"
              "New turn for team #0\n"
              "Selected a [active]\n"
              "Selected a [active]\n");
    EXPECT_EQ(UnitTable[0].time, 80);
}

TEST_F(TurnsTest, OneDeadAndTheRestTimelessLetTheCountRunOnUntilAllAreCounted) {
    MakeTeams(3, 1);
    UnitTable[0].status = Dead;
    UnitTable[1].time = UnitTable[2].time = 0;
    curTeam = SquadTeam;
    curUnit = 0;
    SelectNextUnit();
    // b, c; then a is dead, b again: three are done.
    EXPECT_EQ(Log(),
              "0 time for b (#1)\n"
              "0 time for c (#2)\n"
              "a (#0) is dead. Selecting the next one.\n"
              "0 time for b (#1)\n"
              "New turn for team #1\n"
              "New turn for team #0\n"
              "a (#0) is dead. Selecting the next one.\n"
              "Selected b [active]\n"
              "Selected b [active]\n");
    EXPECT_EQ(curUnit, 1);
}

TEST_F(TurnsTest, ADeadTeamEndsTheMissionOnlyWhenEveryMemberIsDead) {
    MakeTeams(2, 2);
    for (int i : {20, 21})
        UnitTable[i].status = Dead;
    curTeam = SquadTeam;
    EXPECT_THROW(NewTurn(), ProcessEnded);
    EXPECT_EQ(host.messages, std::vector<std::string>{"Victory. The end."});
}

TEST_F(TurnsTest, ASquadOfTheDeadAndTheDyingBleedsToDefeat) {
    MakeTeams(2, 1);
    UnitTable[0].status = Dead;
    UnitTable[1].status = Immobile;
    UnitTable[1].health = 15;
    curTeam = SquadTeam;
    curUnit = 0;
    // The immobile one is bled once a pass until both are dead; the enemy's turns lie between.
    EXPECT_THROW(SelectNextUnit(), ProcessEnded);
    EXPECT_EQ(host.messages, std::vector<std::string>{"Defeat. The end."});
    EXPECT_EQ(UnitTable[1].health, 0);
}

TEST_F(TurnsTest, AWholeTurnGoesThroughMixedTeams) {
    MakeTeams(4, 4);
    PutSquadOutOfSight();
    SetHealth(0, Dead, 0);
    SetHealth(1, Wounded, 20);
    UnitTable[2].agility = 0;
    SetHealth(20, Immobile, 10);
    SetHealth(21, Dead, 0);
    SetHealth(22, Wounded, 20);
    curTeam = SquadTeam;
    curUnit = 3;
    Dispatch({EventKind::Click, "frmField.cmdNextTurn"});
    // The dead keep the computer's count of those done below its members, so its selection steps past its end
    // and finds the soldier that the squad's has selected meanwhile: he is selected twice.
    EXPECT_EQ(Log(),
              "New turn for team #1\n"
              "a (#20) is immobile and now -1\n"
              "b (#21) is dead. Selecting the next one.\n"
              "c (#22) is wounded and now +1\n"
              "New turn for team #0\n"
              "a (#0) is dead. Selecting the next one.\n"
              "b (#1) is wounded and now +1\n"
              "Selected b [wounded]\n"
              "0 time for c (#2)\n"
              "Selected d [active]\n"
              "Selected d [active]\n"
              "Selected d [active]\n"
              "Selected d [active]\n");
    EXPECT_EQ(curUnit, 3);
    EXPECT_EQ(UnitTable[20].health, 9);
    EXPECT_EQ(UnitTable[22].health, 21);
    EXPECT_EQ(UnitTable[23].stance, Stance::Run) << "the computer's last one has acted";
}

TEST_F(TurnsTest, ASquadOfTheWoundedIsPassedOverUntilOneHasHealed) {
    MakeTeams(2, 1);
    SetHealth(0, Wounded, 29);
    SetHealth(1, Wounded, 30);
    UnitTable[20].agility = UnitTable[20].time = 0;
    curTeam = EnemyTeam;
    NewTurn();
    EXPECT_EQ(Log(),
              "New turn for team #0\n"
              "a (#0) is wounded and now +1\n"
              "Selected a [wounded]\n"
              "b (#1) is wounded and now +1\n"
              "Selected b [active]\n"  // too late for this turn
              "New turn for team #1\n"
              "0 time for a (#20)\n"
              "New turn for team #0\n"
              "a (#0) is wounded and now +1\n"
              "Selected a [active]\n"
              "Selected b [active]\n"
              "Selected b [active]\n");
    EXPECT_EQ(curUnit, 1);
}

TEST_F(TurnsTest, ASoldierHealedByThePassesOfOneTurnActsInIt) {
    MakeTeams(2, 1);
    PutSquadOutOfSight();
    SetHealth(1, Wounded, 29);
    curTeam = SquadTeam;
    curUnit = 0;
    for (int space = 0; space < 3; ++space)
        Dispatch({EventKind::KeyDown, "frmField", -1, 32});
    EXPECT_EQ(Log(),
              "b (#1) is wounded and now +1\n"
              "Selected b [wounded]\n"
              "Selected a [active]\n"
              "Selected a [active]\n"
              "b (#1) is wounded and now +1\n"
              "Selected b [active]\n"
              "Selected a [active]\n"
              "Selected a [active]\n"
              "Selected b [active]\n"
              "Selected b [active]\n");
    EXPECT_EQ(curUnit, 1);
}

TEST_F(TurnsTest, AWoundedSoldierWithoutTimeIsPassedOverLikeAnyOther) {
    MakeTeams(3, 1);
    PutSquadOutOfSight();
    SetHealth(1, Wounded, 20);
    UnitTable[1].time = 3;
    curTeam = SquadTeam;
    curUnit = 0;
    SelectNextUnit();
    EXPECT_EQ(Log(),
              "b (#1) is wounded and now +1\n"
              "Selected b [wounded]\n"
              "Selected c [active]\n"
              "Selected c [active]\n");
    EXPECT_EQ(curUnit, 2);
}

TEST_F(TurnsTest, TheComputersLastUnitBleedsInItsOwnTurnAndTheMissionEndsWithTheNext) {
    MakeTeams(1, 2);
    PutSquadOutOfSight();
    SetHealth(20, Dead, 0);
    SetHealth(21, Immobile, 1);
    curTeam = SquadTeam;
    NewTurn();
    EXPECT_EQ(UnitTable[21].status, Dead);
    EXPECT_THROW(NewTurn(), ProcessEnded);
    EXPECT_EQ(Log(),
              "New turn for team #1\n"
              "a (#20) is dead. Selecting the next one.\n"
              "b (#21) is immobile and now -1\n"
              "New turn for team #0\n"
              "Selected a [active]\n"
              "Selected a [active]\n"
              "Selected a [active]\n"
              "Selected a [active]\n"
              "New turn for team #1\n"
              "a (#20) is dead. Selecting the next one.\n"
              "b (#21) is dead. Selecting the next one.\n"
              "a (#0) from team #0 alive.\n"
              "a (#20) from team #1 dead.\n"
              "b (#21) from team #1 dead.\n"
              "All 2 fighters of team #1 eliminated\n"
              "Victory. The end.\n");
}

TEST_F(TurnsTest, TheSquadsTurnEndHidesTheEnemyAgain) {
    MakeTeams(2, 2);
    UnitTable[20].agility = UnitTable[21].agility = 0;  // they stay where they are
    UnitTable[0].seen[1] = 1;
    UnitTable[1].seen[1] = 1;
    UnitTable[21].cellX = 30;
    UnitTable[21].cellY = 20;
    UnitTable[0].cellX = UnitTable[1].cellX = 5;
    curTeam = SquadTeam;
    NewTurn();
    EXPECT_EQ(UnitTable[0].seen[1] + UnitTable[1].seen[1], 0);
}

TEST_F(TurnsTest, EndTurnGoesThroughTheDoor) {
    StartGame();
    const std::size_t before = frmField.cmbLog.List.size();
    Dispatch({EventKind::Click, "frmField.cmdNextTurn"});
    const std::string selected = "Selected " + UnitTable[0].name + " [active]\n";
    EXPECT_EQ(Log(before), "New turn for team #1\nNew turn for team #0\n" + selected + selected);
    EXPECT_EQ(curTeam, SquadTeam);
    EXPECT_EQ(frmField.cmbLog.Text + "\n", selected);
}

}  // namespace
