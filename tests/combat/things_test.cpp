// Things on the ground and in the hand.
#include "combat/things.h"

#include "combat/actions.h"
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
    WeaponAdd(5, 6);
    WeaponAdd(7, 8);
    WeaponAdd(5, 6);
    WeaponAdd(9, 9);
    EXPECT_EQ(teamLast[PileList], 2);
    EXPECT_EQ(CountAt(5, 6, PileBase), 1);
    WeaponRemove(5, 6);
    EXPECT_EQ(teamLast[PileList], 1);
    EXPECT_EQ(CountAt(5, 6, PileBase), 0);
    EXPECT_EQ(UnitTable[120].cellX, 7) << "the others close up";
    EXPECT_EQ(UnitTable[122].name, "");
    EXPECT_EQ(Log(), "weapon dropped\nweapon dropped\nweapon dropped\nweapon picked up\n");
}

TEST_F(ThingsTest, ADyingUnitDropsWhatItsFirstTenSlotsHold) {
    for (int slot : {0, 5, 9, 10})
        unit.items[slot].name = "med";
    unit.items[5].roundsSecond = 7;
    DropAll(0);
    int lying = 0;
    for (const InvItem& item : groundItems[20][30])
        lying += item.name.empty() ? 0 : 1;
    EXPECT_EQ(lying, 3);
    EXPECT_EQ(unit.items[9].name, "");
    EXPECT_EQ(unit.items[10].name, "med");
    EXPECT_EQ(unit.items[5].roundsSecond, 7) << "an emptied slot keeps its second feed";
    EXPECT_EQ(unit.hand.name, "hand");
    EXPECT_EQ(CountAt(30, 20, PileBase), 1);
}

TEST_F(ThingsTest, OnAFullCellTheRestStaysWithTheUnit) {
    for (int place = 0; place < 29; ++place)
        groundItems[20][30][place].name = "ak";
    for (int slot = 0; slot < 10; ++slot)
        unit.items[slot].name = "med";
    DropAll(0);
    EXPECT_EQ(groundItems[20][30][29].name, "med");
    EXPECT_EQ(unit.items[0].name, "");
    EXPECT_EQ(unit.items[1].name, "med");
}

TEST_F(ThingsTest, TheHandIsBareWithoutAThingToFightWith) {
    struct Case {
        const char* held;
        const char* hand;
    };
    constexpr Case Cases[] = {
        {"", "hand"}, {"ak", "ak"}, {"helmet", "hand"}, {"med", "med"}, {"nothing known", ""}};
    for (const Case& c : Cases) {
        unit.items[0] = InvItem();
        unit.items[0].name = c.held;
        if (c.hand[0] == '\0') {
            EXPECT_THROW(RefreshHand(), RunTimeError) << "there is no picture of it";
            continue;
        }
        if (std::string(c.held) == "helmet") unit.items[0].capMain = 100;
        RefreshHand();
        EXPECT_EQ(unit.hand.name, c.hand) << c.held;
    }
}

TEST_F(ThingsTest, TheModeListIsMadeAnewOnlyForAnotherWeapon) {
    unit.items[0].name = "ak";
    RefreshHand();
    frmField.comboMode.Text = "kept";
    unit.hand.durab = 1;
    RefreshHand();
    EXPECT_EQ(frmField.comboMode.Text, "kept");
    EXPECT_EQ(unit.hand.durab, WeaponInfoByName("ak").durab) << "worn no more";
    unit.items[0].name = "";
    RefreshHand();
    EXPECT_EQ(frmField.comboMode.Text, "Hit");
}

TEST_F(ThingsTest, ASmallThingStandsInTheMiddleOfALongPlace) {
    ImageControl& image = frmField.imgInv[0];
    unit.items[0].name = "med";
    unit.items[0].count = 0;
    ShowSlot(0, frmField);
    EXPECT_EQ(image.Left, 37);
    EXPECT_EQ(image.Width, 42);
    EXPECT_EQ(image.Tag, "offset-large");
    EXPECT_EQ(image.ToolTipText, WeaponInfoByName("med").fullName);
    ShowSlot(0, frmField);
    EXPECT_EQ(image.Left, 37) << "shifted once";
    unit.items[0].name = "ak";
    unit.items[0].count = 1;
    unit.items[0].capMain = 31;
    ShowSlot(0, frmField);
    EXPECT_EQ(image.Left, 0);
    EXPECT_EQ(image.Width, 117);
    EXPECT_EQ(image.PictureName, "\\pic\\inv\\ak31.gif");
    unit.items[0].name = "";
    ShowSlot(0, frmField);
    EXPECT_EQ(image.Picture, nullptr);
    EXPECT_THROW(ShowSlot(50, frmField), RunTimeError);
}

TEST_F(ThingsTest, EachThingOffersItsModes) {
    struct Case {
        const char* name;
        const char* modes;
    };
    constexpr Case Cases[] = {{"etool", "Hit,Dig,Fill,Fold,"},
                              {"etoolfold", "Unfold,"},
                              {"mpl", "Hit,Dig,Fill,"},
                              {"med", "Cure,"},
                              {"hand", "Hit,"}};
    for (const Case& c : Cases) {
        unit.hand = WeaponInfoByName(c.name);
        ListActions();
        std::string modes;
        for (const std::string& mode : frmField.comboMode.List)
            modes += mode + ",";
        EXPECT_EQ(modes, c.modes) << c.name;
        EXPECT_EQ(frmField.comboMode.ListIndex, 0);
    }
}

}  // namespace
