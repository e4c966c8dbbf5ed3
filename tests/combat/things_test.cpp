// Things on the ground and in the hand.
#include "combat/things.h"

#include "data/countries_file.h"
#include "data/weapons_file.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"

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
    unit.items[5].roundsSecond = 7;
    unit.items[5].durab = 12;
    DropAll(0);
    EXPECT_EQ(groundItems[20][30][28].name, "med");
    EXPECT_EQ(unit.items[9].name, "");
    EXPECT_EQ(unit.items[10].name, "med");
    EXPECT_EQ(unit.items[5].roundsSecond, 7) << "an emptied slot keeps its second feed";
    EXPECT_EQ(unit.items[5].durab, 12);
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

TEST_F(ThingsTest, ThePanelTakesUpTheEnemysWeaponInHisTurn) {
    LoadCountries();
    PutUnit(20, 60, 40);
    curUnit = 20;
    Hold("spas");
    EXPECT_EQ(frmField.imgInv[0].PictureName, "\\pic\\inv\\spas.gif");
    EXPECT_EQ(frmField.comboMode.List.size(), 3U);
    EXPECT_EQ(frmField.imgFlag.ToolTipText, "Italy");
}

TEST_F(ThingsTest, TheHandIsAsNewAndItsModeKeptForTheSameWeapon) {
    Hold("ak", "Full auto");
    unit.hand.durab = 1;
    RefreshHand();
    EXPECT_EQ(frmField.comboMode.Text, "Full auto");
    EXPECT_EQ(unit.hand.durab, WeaponInfoByName("ak").durab) << "worn no more";
}

TEST_F(ThingsTest, ASmallThingStandsInTheMiddleOfALongPlace) {
    unit.items[0].capMain = 31;
    for (const auto& [name, count, left] :
         {std::tuple{"med", 0, 37}, {"med", 0, 37}, {"ak", 1, 0}}) {  // shifted once
        unit.items[0].name = name;
        unit.items[0].count = count;
        ShowSlot(0, frmField);
        EXPECT_EQ(frmField.imgInv[0].Left, left) << name;
    }
}

TEST_F(ThingsTest, APileBeyondTheTableIsRefusedWithALine) {
    teamLast[PileList] = MaxPiles - 1;
    WeaponAdd(50, 40);
    EXPECT_EQ(teamLast[PileList], MaxPiles - 1);
    EXPECT_EQ(Log(), "no room for another pile of things\n");
}

}  // namespace
