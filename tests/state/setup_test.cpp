// A new game: who stands where and with what, and how it is left.
#include "state/setup.h"

#include <set>

#include "data/campaign_files.h"
#include "platform/random.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "tools/player/orders.h"
#include "view/field_form.h"

namespace {

class SetupTest : public GameTest {};

TEST_F(SetupTest, TheSquadIsTheRosterAndLandsColumnByColumnFromTheCorner) {
    constexpr std::size_t RecordLength = 882;
    constexpr std::size_t HealthAt = 60;
    std::string roster = folder.Read("dat/save.dat");
    for (std::size_t record : {1U, 2U})
        roster[record * RecordLength + HealthAt] = 33;
    folder.Write("dat/save.dat", roster);
    StartGame();
    EXPECT_EQ(UnitTable[0].health, UnitTable[0].vitality);
    EXPECT_EQ(UnitTable[1].health, 33) << "only the first starts in full health";
    int earlier = -1;
    for (int i = 0; i <= teamLast[RosterTeam]; ++i) {
        const Unit& unit = UnitTable[i];
        EXPECT_EQ(unit.name, UnitTable[60 + i].name);
        EXPECT_EQ(cellGrid[unit.cellY][unit.cellX].occupant, i);
        const int order = unit.cellX * FieldHeight + unit.cellY;
        EXPECT_GT(order, earlier) << "unit " << i;
        earlier = order;
    }
    EXPECT_EQ(UnitTable[60].status, NotLanded) << "the roster itself does not land";
    EXPECT_EQ(frmProgress.imgProgress1.Width, 460) << "ten pixels for each row of the map";
}

TEST_F(SetupTest, EachLandingSpotIsTakenOnceWhoeverStandsThereAndThenAnyFreeCell) {
    ClearField();
    SeedRandom(3);
    teamLast[LandingSpotList] = 40;
    for (int i = 0; i <= 40; ++i) {
        landingSpots[i] = {i, i};
        PutUnit(0, i, i);
    }
    std::set<int> taken;
    for (int i = 0; i <= 40; ++i) {
        const LandingCell spot = FindLandingCell("xxx");
        EXPECT_EQ(spot.x, spot.y);
        taken.insert(spot.x);
    }
    EXPECT_EQ(taken.size(), 41U);
    const LandingCell random = FindLandingCell("xxx");
    ASSERT_GE(random.x, 0);
    EXPECT_EQ(cellGrid[random.y][random.x].occupant, -1);
}

TEST_F(SetupTest, APlaceIsDrawnByItsColumnAndThenItsRowAndASpotLeavesTheList) {
    ClearField();
    SeedRandom(5);
    const int x = RandomInt(75, 0);
    const int y = RandomInt(45, 0);
    const int taken = RandomInt(2, 0);
    SeedRandom(5);
    const LandingCell random = FindLandingCell("random");
    EXPECT_EQ(std::pair(random.x, random.y), std::pair(x, y));
    teamLast[LandingSpotList] = 2;
    for (int i = 0; i <= 2; ++i)
        landingSpots[i] = {i, i + 10};
    EXPECT_EQ(FindLandingCell("xxx").x, taken);
    EXPECT_EQ(landingSpots[0].x + landingSpots[1].x, 3 - taken) << "the others close up";
}

TEST_F(SetupTest, TheMenusExitEndsTheMissionAndSavesTheStore) {
    StartGame();
    storeItems[0].durab = 17;
    EXPECT_THROW(LeaveMission(), ProcessEnded);
    EXPECT_EQ(host.messages, std::vector<std::string>{"Withdrawal. The end."});
    EXPECT_FALSE(frmField.Visible);
    LoadStore();
    EXPECT_EQ(storeItems[0].durab, 17);
}

}  // namespace
