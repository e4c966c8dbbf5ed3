// A new game: who stands where, with what, and what the log says.
#include "state/setup.h"

#include <set>

#include "data/campaign_files.h"
#include "data/map.h"
#include "data/tables.h"
#include "data/weapons_file.h"
#include "platform/random.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

class SetupTest : public GameTest {
  protected:
    // Open ground with nobody on it.
    static void ClearField() {
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x)
                cellGrid[y][x].occupant = -1;
    }
};

TEST_F(SetupTest, TheSquadLandsColumnByColumnFromTheTopLeftCorner) {
    StartGame();
    ASSERT_GE(teamLast[SquadTeam], 0);
    int earlier = -1;
    for (int i = 0; i <= teamLast[SquadTeam]; ++i) {
        const Unit& unit = UnitTable[i];
        EXPECT_EQ(unit.status, Active);
        EXPECT_EQ(cellGrid[unit.cellY][unit.cellX].occupant, i);
        EXPECT_EQ(unit.pixelX, unit.cellX * 20);
        EXPECT_EQ(unit.pixelY, unit.cellY * 20);
        EXPECT_EQ(unit.hand.name == "hand", i > 0)
            << "a weapon is taken up when its soldier is first selected";
        EXPECT_EQ(unit.enemyTeam, EnemyTeam);
        const int order = unit.cellX * FieldHeight + unit.cellY;
        EXPECT_GT(order, earlier) << "unit " << i;
        earlier = order;
    }
    EXPECT_LT(UnitTable[teamLast[SquadTeam]].cellX, 8) << "a compact block";
}

TEST_F(SetupTest, ThreeComputerSoldiersLandOnTheMapsSpots) {
    StartGame();
    ASSERT_EQ(teamLast[EnemyTeam], 2);
    for (int i = 20; i <= 22; ++i) {
        const Unit& enemy = UnitTable[i];
        EXPECT_EQ(enemy.name, "zombie");
        EXPECT_EQ(enemy.team, EnemyTeam);
        EXPECT_EQ(enemy.enemyTeam, SquadTeam);
        EXPECT_EQ(enemy.health, 41);
        EXPECT_EQ(enemy.facing, North);
        EXPECT_EQ(enemy.stance, Stand);
        EXPECT_EQ(enemy.agility, 50);
        EXPECT_EQ(enemy.melee, 0);
        EXPECT_EQ(enemy.items[0].name, "ak");
        EXPECT_EQ(enemy.items[0].ammoMain, "7ak");
        EXPECT_EQ(enemy.items[0].capMain, 31);
        EXPECT_EQ(enemy.items[0].roundsMain, 29);
        EXPECT_EQ(cellGrid[enemy.cellY][enemy.cellX].occupant, i);
    }
    EXPECT_EQ(UnitTable[0].health, UnitTable[0].vitality);
}

TEST_F(SetupTest, TheSquadIsTheRosterAndBringsItsMedals) {
    StartGame();
    EXPECT_EQ(teamLast[SquadTeam], teamLast[RosterTeam]);
    for (int i = 0; i <= teamLast[SquadTeam]; ++i)
        EXPECT_EQ(UnitTable[i].name, UnitTable[60 + i].name);
    EXPECT_EQ(UnitTable[60].status, NotLanded) << "the roster itself does not land";
    EXPECT_EQ(UnitTable[0].awards[16], 2);
    EXPECT_EQ(UnitTable[1].awards[8], 2);
    EXPECT_EQ(UnitTable[1].awards[11], 0);
    EXPECT_EQ(money, 148000);
    EXPECT_EQ(weaponPage, 1);
}

TEST_F(SetupTest, TheLogTellsTheLandingAndTheFirstTurn) {
    StartGame();
    const std::string log = Log();
    EXPECT_EQ(log.find("New Game\n"), 0U);
    EXPECT_NE(log.find("\n" + UnitTable[0].name + " (#0) from team #0. Jump!\n"), std::string::npos);
    EXPECT_NE(log.find("\nzombie (#22) from team #1. Jump!\nNew turn for team #0\n"), std::string::npos);
    EXPECT_TRUE(frmField.area.Visible);
    EXPECT_TRUE(frmField.Visible);
    EXPECT_FALSE(frmProgress.Visible);
}

TEST_F(SetupTest, TheSameSeedGivesTheSameGame) {
    const auto place = [] { return std::pair<int, int>(UnitTable[20].cellX, UnitTable[20].cellY); };
    StartGame(5);
    const auto first = place();
    const std::string log = Log();
    std::set<std::pair<int, int>> others;
    for (unsigned seed = 6; seed < 16; ++seed) {
        StartGame(seed);
        others.insert(place());
    }
    EXPECT_GT(others.size(), 3U);
    StartGame(5);
    EXPECT_EQ(place(), first);
    EXPECT_EQ(Log(), log);
}

TEST_F(SetupTest, MoreEnemiesThanSpotsLandOnRandomFreeCells) {
    ClearField();
    SeedRandom(1);
    teamLast[LandingSpotList] = 0;
    landingSpots[0] = {12, 34};
    const LandingCell marked = FindLandingCell("xxx");
    EXPECT_EQ(marked.x, 12);
    EXPECT_EQ(marked.y, 34);
    EXPECT_EQ(teamLast[LandingSpotList], -1);
    const LandingCell random = FindLandingCell("xxx");
    EXPECT_GE(random.x, 0);
    EXPECT_EQ(FindLandingCell("elsewhere").x, -1);
}

TEST_F(SetupTest, ATakenSpotIsNotOfferedAgain) {
    SeedRandom(3);
    teamLast[LandingSpotList] = 40;
    for (int i = 0; i <= 40; ++i)
        landingSpots[i] = {i, i};
    std::set<int> taken;
    for (int i = 0; i <= 40; ++i)
        taken.insert(FindLandingCell("xxx").x);
    EXPECT_EQ(taken.size(), 41U);
}

TEST_F(SetupTest, WithNoFreeCellAUnitStaysOffTheField) {
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            cellGrid[y][x].occupant = 5;
    LandUnit(0);
    EXPECT_EQ(UnitTable[0].status, NotLanded);
}

TEST_F(SetupTest, TheMenusExitEndsTheMissionAndClosingTheWindowDoesNot) {
    StartGame();
    const std::string store = folder.Read("dat/apc.dat");
    storeItems[0].durab = 17;
    Dispatch({EventKind::CloseRequest, "frmField"});
    EXPECT_EQ(folder.Read("dat/apc.dat"), store);
    EXPECT_THROW(Dispatch({EventKind::Click, "frmField.mnuExit"}), ProcessEnded);
    EXPECT_EQ(host.messages, std::vector<std::string>{"Withdrawal. The end."});
    EXPECT_NE(folder.Read("dat/apc.dat"), store);
    storeItems[0].durab = 0;
    LoadStore();
    EXPECT_EQ(storeItems[0].durab, 17);
}

}  // namespace
