// A new game: who stands where and with what, and how it is left.
#include "mission/setup.h"

#include <set>

#include "data/campaign_files.h"
#include "state/chance.h"
#include "tests/support/game_test.h"
#include "tools/player/orders.h"
#include "view/field_form.h"

namespace {

class SetupTest : public GameTest {};

TEST_F(SetupTest, OnlyTheFirstSoldierStartsInFullHealth) {
    constexpr std::size_t RecordLength = 882;
    constexpr std::size_t HealthAt = 60;
    std::string roster = folder.Read("dat/save.dat");
    for (std::size_t record : {1U, 2U})
        roster[record * RecordLength + HealthAt] = 33;
    folder.Write("dat/save.dat", roster);
    StartGame();
    EXPECT_EQ(UnitTable[0].health, UnitTable[0].vitality);
    EXPECT_EQ(UnitTable[1].health, 33);
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
    SeedRandom(5);
    const int x = RandomInt(75, 0);
    const int y = RandomInt(45, 0);
    const auto drawn = [](const char* place) {
        SeedRandom(5);
        const LandingCell cell = FindLandingCell(place);
        return std::pair(cell.x, cell.y);
    };
    EXPECT_EQ(drawn("xxx"), std::pair(x, y));
    EXPECT_EQ(drawn("random"), std::pair(x, y));
    PutUnit(1, x, y);
    EXPECT_NE(drawn("random"), std::pair(x, y)) << "somebody stands there";
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
