// Things on the ground and in the hand.
#include "combat/things.h"

#include "data/countries_file.h"
#include "data/weapons_file.h"
#include "tests/support/game_test.h"

namespace {

class ThingsTest : public GameTest {
  protected:
    ThingsTest() {
        ClearField();
        PutUnit(0, 30, 20);
    }

    Unit& unit = UnitTable[0];
};

TEST_F(ThingsTest, AMarkerServesACellAndIsTakenAwayWhole) {
    for (const auto& [x, y] : {std::pair{5, 6}, {7, 8}, {5, 6}, {9, 9}})
        WeaponAdd(x, y);
    EXPECT_EQ(teamLast[PileList], 2);
    WeaponRemove(5, 6);
    EXPECT_EQ(teamLast[PileList], 1);
    EXPECT_EQ(CountAt(5, 6, PileBase), 0);
    EXPECT_EQ(UnitTable[120].cellX, 7) << "the others close up";
    EXPECT_EQ(UnitTable[122].name, "");
    EXPECT_EQ(Log(), "weapon dropped\nweapon dropped\nweapon dropped\nweapon picked up\n");
}

TEST_F(ThingsTest, ADyingUnitDropsWhatItsFirstTenSlotsHoldAsFarAsThereIsRoom) {
    for (int place = 0; place < 27; ++place)
        groundItems[20][30][place].name = "ak";
    for (int slot : {5, 9, 10})
        unit.items[slot].name = "med";
    DropAll(0);
    EXPECT_EQ(groundItems[20][30][28].name, "med");
    EXPECT_EQ(unit.items[9].name, "");
    EXPECT_EQ(unit.items[10].name, "med");
    EXPECT_EQ(CountAt(30, 20, PileBase), 1);
    unit.items[8].name = unit.items[9].name = "med";
    DropAll(0);
    EXPECT_EQ(unit.items[8].name, "");
    EXPECT_EQ(unit.items[9].name, "med") << "the cell is full";
}

TEST_F(ThingsTest, TheHandIsBareAndFliesNoFlagWithoutAThingToFightWith) {
    LoadCountries();
    for (const auto& [held, hand, country] : {std::tuple{"", "hand", ""},
                                              {"ak", "ak", "Russia"},
                                              {"helmet", "hand", ""},
                                              {"med", "med", "Switzerland"}}) {
        unit.items[0].name = held;
        RefreshHand();
        EXPECT_EQ(unit.hand.name, hand) << held;
        EXPECT_EQ(frmField.imgFlag.ToolTipText, country) << held;
        EXPECT_EQ(frmField.imgFlag.Picture != nullptr, *country != '\0') << "nobody makes bare hands";
    }
}

TEST_F(ThingsTest, APileBeyondTheTableIsRefusedWithALine) {
    teamLast[PileList] = MaxPiles - 1;
    WeaponAdd(50, 40);
    EXPECT_EQ(teamLast[PileList], MaxPiles - 1);
    EXPECT_EQ(Log(), "no room for another pile of things\n");
}

}  // namespace
