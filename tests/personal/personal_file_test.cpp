// The window of a soldier's file, driven through the door that its events come by.
#include "personal/personal_file.h"

#include "combat/actions.h"
#include "combat/explosions.h"
#include "combat/fire_modes.h"
#include "combat/things.h"
#include "data/new_item.h"
#include "data/terrain.h"
#include "data/weapons_file.h"
#include "personal/dragging.h"
#include "personal/info_form.h"
#include "personal/inventory.h"
#include "platform/keys.h"
#include "tests/support/game_test.h"
#include "tools/field_tile.h"

namespace {

class PersonalFileTest : public GameTest {
  protected:
    PersonalFileTest() {
        StartGame();
        curUnit = 0;
    }

    Unit& Self() { return UnitTable[curUnit]; }
    InvItem& In(int slot) { return Self().items[slot]; }

    static void At(EventKind kind, float x, float y, int button = LeftButton) {
        Dispatch({kind, "frmInfo", -1, button, 0, x, y});
    }
    static void On(EventKind kind, int slot, int button = LeftButton) {
        const ImageControl& image = frmInfo.imgInv[slot];
        At(kind, static_cast<float>(image.Left + 5), static_cast<float>(image.Top + 5), button);
    }
    static void Press(int slot, int button = LeftButton) { On(EventKind::MouseDown, slot, button); }
    static void Key(EventKind kind, int code, int shift = 0) { Dispatch({kind, "frmInfo", -1, code, shift}); }
    static void Strike(int code, int shift = 0) {
        Key(EventKind::KeyDown, code, shift);
        Key(EventKind::KeyUp, code);
    }
    static void Click(const char* control, int index = -1) {
        Dispatch({EventKind::Click, control, index, 1});
    }

    // Puts the squad's vehicle before the soldier.
    void StandAtStore() {
        PutTile(Self().cellX + 1, Self().cellY, 18, Various);
        Self().facing = East;
    }
};

TEST_F(PersonalFileTest, AThingIsTakenUpFollowsThePointerAndGoesHome) {
    LoadInfo();
    Press(0);
    EXPECT_EQ(In(PointerSlot).name, "m4");
    EXPECT_EQ(In(0).name + frmInfo.imgFlag.ToolTipText, "") << "its maker's flag goes along";
    At(EventKind::MouseMove, 300.5F, 100.4F, 0);
    EXPECT_EQ(frmInfo.imgDrag.Left, 300 - 58);
    Dispatch({EventKind::MouseMove, "frmInfo.cmdNext", -1, 0, 0, 10, 12});
    EXPECT_EQ(frmInfo.imgDrag.Left, 552 + 10 - 58) << "over a button too";
    Click("frmInfo.cmdNext");
    Key(EventKind::KeyDown, EnterKey);
    EXPECT_TRUE(frmInfo.Visible) << "neither paged nor closed with a thing in hand";
    EXPECT_EQ(shownUnit, 0);
    Dispatch({EventKind::MouseDown, "frmInfo.imgAward", 12, LeftButton, 0, 30, 20});
    EXPECT_EQ(In(0).name, "m4");
    EXPECT_EQ(frmInfo.imgDrag.Width, 42);
    Press(0);
    Press(1);  // laid on the submachine gun, which comes up
    EXPECT_EQ(In(1).name, "m4");
    EXPECT_EQ(In(PointerSlot).name, "mp5sd");
    At(EventKind::MouseDown, 600, 300);
    EXPECT_TRUE(Dragging()) << "its old place is taken, so it has no home";
    Press(0);
    EXPECT_EQ(In(0).name, "mp5sd");
}

TEST_F(PersonalFileTest, TheRightButtonTakesTheMagazineOut) {
    LoadInfo();
    Press(0, RightButton);
    EXPECT_EQ(In(0).capMain, 0);
    EXPECT_EQ(In(PointerSlot).name, "5nato");
    EXPECT_EQ(In(PointerSlot).roundsMain, 30);
    EXPECT_EQ(frmInfo.imgDrag.Top, 218) << "it comes up where the weapon lies";
    At(EventKind::MouseMove, 300, 100, 0);
    EXPECT_EQ(std::pair(frmInfo.imgDrag.Left, frmInfo.imgDrag.Top), std::pair(300 - 21, 100 - 21));
    Press(1, RightButton);
    EXPECT_EQ(In(1).capMain, 31) << "one thing at a time";
    Press(0);
    EXPECT_EQ(In(0).roundsMain, 30);
    EXPECT_EQ(std::tuple(frmInfo.imgDrag.Left, frmInfo.imgDrag.Top, frmInfo.imgDrag.Width),
              std::tuple(328, 168, 42));
    Press(4, RightButton);
    EXPECT_FALSE(Dragging()) << "a helmet has no magazine";
    Press(4, MiddleButton);
    EXPECT_TRUE(Dragging()) << "any other button takes up";
}

TEST_F(PersonalFileTest, ThePointerReadsOutAThingAndLightsUpWhatTheCarriedOneFeeds) {
    struct Case {
        const char* thing;
        const char* text;
        const char* carried;
        bool lit;
    };
    constexpr Case Cases[] = {{"m4", "m4 (2 of 3) 5nato [7] 720", "5nato", true},
                              {"m4", "m4 (2 of 3) 5nato [7] 720", "9para", false},
                              {"xm8lss", "xm8lss (2 of 3) 5nato, (4 of 5) 12gauge [7] 760", "12gauge", true},
                              {"m203", "m203 (4 of 5) 40gren [7] 600", "40gren", true},
                              {"m203", "m203 (4 of 5) 40gren [7] 600", "m203", false},
                              {"5nato", "5nato (2 of 3) 5nato [7] 0", "5nato", false},
                              {"map", "map  [7] 0", "map", false}};
    LoadInfo();
    for (const Case& c : Cases) {
        In(7) = MakeItem(WeaponInfoByName(c.thing));
        In(7).roundsMain = 2;
        In(7).capMain = 3;
        In(7).roundsSecond = 4;
        In(7).capSecond = 5;
        In(PointerSlot) = MakeItem(WeaponInfoByName(c.carried));
        On(EventKind::MouseMove, 7, 0);
        EXPECT_EQ(frmInfo.txtFullname.Text, c.text);
        EXPECT_EQ(frmInfo.txtFullname.ForeColor, c.lit ? Rgb(255, 255, 153) : Rgb(55, 89, 140)) << c.carried;
    }
    At(EventKind::MouseMove, 600, 300, 0);
    EXPECT_EQ(frmInfo.txtFullname.Text, "") << "beside all slots";
    for (const auto& [x, y, slot] : {std::tuple{152.0F, 218.0F, 0},
                                     {269, 260, 0},
                                     {269.5F, 230, -1},
                                     {230, 260.5F, -1},
                                     {319, 210, 6},
                                     {419, 410, -1},
                                     {622, 560, 39}})
        EXPECT_EQ(SlotAt(x, y), slot) << x << " " << y;
}

TEST_F(PersonalFileTest, ASmallerPackHidesThingsThatComeBackWithTheOldOne) {
    LoadInfo();
    const std::string hidden = In(14).name;
    ASSERT_FALSE(hidden.empty());
    In(30) = In(6);
    In(30).capMain = In(30).roundsMain = 3;
    ShowGroundPage();
    Press(30);
    Press(6);
    EXPECT_TRUE(frmInfo.imgInv[12].Visible);
    EXPECT_FALSE(frmInfo.imgInv[13].Visible || frmInfo.imgInv[14].Visible);
    EXPECT_EQ(In(14).name, hidden);
    Press(6);
    EXPECT_TRUE(frmInfo.imgInv[14].Visible);
    Press(30);
    Press(6);
    EXPECT_FALSE(frmInfo.imgInv[10].Visible) << "no pack, no pockets";
}

TEST_F(PersonalFileTest, WhatIsLaidDownLiesOnTheFieldAndIsPickedUpAgain) {
    const int x = Self().cellX;
    const int y = Self().cellY;
    LoadInfo();
    Press(8);
    Press(33);
    Click("frmInfo.cmdGndPage", 2);
    for (const int page : {0, 1, 2}) {
        EXPECT_EQ(frmInfo.cmdGndPage[page].Enabled, page != 2);
        for (const int slot : {30 + 10 * page, 39 + 10 * page})
            EXPECT_EQ(frmInfo.imgInv[slot].Visible, page == 2);
    }
    ASSERT_TRUE(CloseInfo());
    EXPECT_EQ(groundItems[y][x][3].name, "med");
    EXPECT_EQ(CountAt(x, y, PileBase), 1);
    LoadInfo();
    EXPECT_EQ(groundPage, 2) << "the page outlives the window";
    Click("frmInfo.cmdGndPage", 0);
    Press(33);
    Press(8);
    CloseInfo();
    EXPECT_EQ(In(8).name, "med");
    EXPECT_EQ(CountAt(x, y, PileBase), 0);

    groundItems[y][x][0].name = "c4";
    ChargeAdd(x, y);
    for (const int piles : {0, 1}) {  // at first one thing less one charge that ticks
        LoadInfo();
        CloseInfo();
        EXPECT_EQ(teamLast[ChargeList], -1) << "a charge that passed through the file stops ticking";
        EXPECT_EQ(CountAt(x, y, PileBase), piles);
    }
}

TEST_F(PersonalFileTest, AtTheVehicleTheStoreStandsInTheGroundsPlace) {
    LoadInfo();
    EXPECT_FALSE(frmInfo.txtAPC.Visible);
    StandAtStore();
    storeItems[0] = In(8);
    LoadInfo();
    EXPECT_TRUE(frmInfo.txtAPC.Visible);
    Press(30);
    At(EventKind::MouseDown, 108, 629);  // the spare row, which takes nothing
    EXPECT_EQ(In(30).name, "med") << "it went home";
    Press(30);
    Press(2);
    CloseInfo();
    EXPECT_EQ(storeItems[0].name, "");
    EXPECT_EQ(In(2).name, "med");
}

TEST_F(PersonalFileTest, AnOrderToTheStoreIsGivenUpWhenAnotherSoldierWasSelectedThere) {
    for (const bool paged : {false, true}) {
        StandAtStore();
        const int x = Self().cellX + 1;
        lastClickX = 0;
        if (paged) host.Queue({EventKind::Click, "frmInfo.cmdNext"});
        host.Queue({EventKind::CloseRequest, "frmInfo"});
        Dispatch(PressOn(x, Self().cellY, LeftButton));
        EXPECT_EQ(curUnit, paged ? 1 : 0);
        EXPECT_EQ(lastClickX, paged ? 0 : x);
    }
}

TEST_F(PersonalFileTest, WhatFliesKeepsItsPowerAndNoMoreIsFiredWhenTheWeaponIsPutAway) {
    for (const auto& [thing, mode, crater] : {std::tuple{"ak", "Burst", 0}, {"m67", "Throw", 150 / 2}}) {
        for (int x = 2; x <= 7; ++x)
            PutTile(x, 1, 0, Surface);
        Hold(thing, mode, 9);
        In(1).name = "";
        Self().marksmanship = 100;
        Self().time = 80;
        host.Queue({EventKind::Click, "frmField.picBarWeapon"}, host.pumps + 1);
        for (const float x : {200.0F, 35.0F})  // from the hand into the place beside it
            host.Queue({EventKind::MouseDown, "frmInfo", -1, LeftButton, 0, x, 225});
        host.Queue({EventKind::KeyDown, "frmInfo", -1, EnterKey});
        ActOnTarget(6 * 20 + 10, 30);
        EXPECT_EQ(In(1).name, thing);
        EXPECT_EQ(Self().hand.name, "hand");
        EXPECT_EQ(80 - Self().time, WeaponInfoByName(thing).time) << "one round was paid for";
        EXPECT_EQ(cellGrid[impactY][impactX].durab, 200 - crater);
    }
}

TEST_F(PersonalFileTest, TheCatalogueStepsThroughItsRowsAndSizes) {
    weaponPage = WeaponIndex("m4") - 2;
    LoadInfo();
    Key(EventKind::KeyDown, DownKey);
    Key(EventKind::KeyDown, DownKey);  // the keyboard's own repeat
    Key(EventKind::KeyUp, DownKey);
    EXPECT_EQ(weaponPage, WeaponIndex("m4") - 1);
    Strike(DownKey);
    EXPECT_EQ(In(0).capMain, 0) << "a weapon without a magazine";
    EXPECT_TRUE(frmInfo.imgUpDn[1].Visible && frmInfo.imgUpDn[2].Visible && frmInfo.imgUpDn[3].Visible);
    for (const int size : {10, 20, 30, 120, 120}) {
        Strike(DownKey, 1);
        EXPECT_EQ(In(0).roundsMain, size);
    }
    In(0).name = "m16a2";
    Strike(UpKey, 1);
    EXPECT_EQ(In(0).capMain, 120) << "sizes are left alone while another thing is in the hand";
    Strike(DownKey);
    Strike(DownKey);
    EXPECT_EQ(In(0).name + frmInfo.imgFlag.ToolTipText, "g36Germany [G36]");
    Strike(DownKey, 1);
    EXPECT_EQ(In(0).roundsMain, 10) << "from the first size again";
    Strike(UpKey, 1);
    EXPECT_EQ(In(0).roundsMain, 0);
    weaponPage = WeaponIndex("5nato") - 1;
    Strike(DownKey);
    EXPECT_TRUE(frmInfo.imgUpDn[2].Visible) << "a magazine has sizes";
    weaponPage = static_cast<int>(weaponTable.size()) - 2;
    Strike(DownKey);
    Strike(DownKey);
    EXPECT_EQ(In(0).name, weaponTable.back().name) << "the last one stays";
    weaponPage = WeaponIndex("knife") - 1;
    Strike(Pad2Key);
    EXPECT_EQ(In(0).name, "knife");
    EXPECT_FALSE(frmInfo.imgUpDn[2].Visible || frmInfo.imgUpDn[3].Visible) << "it has no sizes";
    weaponPage = 2;
    Strike(104);
    Strike(104);
    EXPECT_EQ(weaponPage, 1) << "the bare hand isn't offered";
}

TEST_F(PersonalFileTest, AHeldKeyStepsFasterAndFaster) {
    LoadInfo();
    Key(EventKind::KeyDown, DownKey);
    EXPECT_EQ(frmInfo.timerArrow.Interval, 0) << "the first one doesn't repeat";
    Key(EventKind::KeyUp, DownKey);
    Key(EventKind::KeyDown, DownKey);
    for (const int interval : {720, 648, 583, 525, 473}) {  // a tenth less: 72, 64.8, 58.3, 52.5 to the even
        Dispatch({EventKind::Timer, "frmInfo.timerArrow"});
        EXPECT_EQ(frmInfo.timerArrow.Interval, interval);
    }
    EXPECT_TRUE(frmInfo.timerArrow.Enabled);
    Key(EventKind::KeyUp, DownKey);
    EXPECT_FALSE(frmInfo.timerArrow.Enabled);
    const int page = weaponPage;
    Dispatch({EventKind::MouseDown, "frmInfo.imgUpDn", 1, LeftButton});
    EXPECT_TRUE(frmInfo.timerArrow.Enabled);
    Dispatch({EventKind::MouseUp, "frmInfo.imgUpDn", 1, LeftButton, 0, 500, -20});  // wherever that is
    Dispatch({EventKind::Timer, "frmInfo.timerArrow"});
    EXPECT_EQ(weaponPage, page + 1);
    EXPECT_EQ(frmInfo.timerArrow.Interval, 400) << "an arrow waits half as long as a key";
    EXPECT_FALSE(Dragging()) << "the press on the arrow isn't one on the hand behind it";
}

TEST_F(PersonalFileTest, TheBinWaitsOverTheWholePlaceOfTheHandAndThrowsWhatIsInIt) {
    struct Case {
        float x, y;
        bool shown;
    };
    constexpr Case Cases[] = {{152, 218, true},  {269, 260, true},  {151, 240, false}, {270, 240, false},
                              {200, 217, false}, {200, 261, false}, {260, 225, true}};
    weaponPage = WeaponIndex("med") - 1;
    LoadInfo();
    At(EventKind::MouseMove, 260, 225, 0);
    EXPECT_FALSE(frmInfo.imgDel.Visible) << "hidden before the catalogue is used";
    Strike(DownKey);
    ASSERT_EQ(frmInfo.imgInv[0].Width, 42) << "a small thing, in the middle of the place";
    In(0).durab = 17;
    for (const Case& c : Cases) {
        At(EventKind::MouseMove, c.x, c.y, 0);
        EXPECT_EQ(frmInfo.imgDel.Visible, c.shown) << c.x << " " << c.y;
    }
    Click("frmInfo.imgDel");
    EXPECT_EQ(In(0).name, "");
    EXPECT_EQ(In(0).durab, 17) << "the condition stays";
    EXPECT_EQ(frmInfo.imgFlag.PictureName + frmInfo.imgFlag.ToolTipText, "") << "nobody made nothing";
}

TEST_F(PersonalFileTest, PagingGoesRoundTheFitOnesAndTheSelectionFollows) {
    UnitTable[1].status = Dead;
    UnitTable[2].status = Immobile;
    UnitTable[3].status = Wounded;
    for (const int unit : {3, 0}) {
        curUnit = unit;
        RefreshHand();
        ChooseMode(1);
    }
    host.Queue({EventKind::KeyDown, "frmField", -1, SpaceKey});  // the field stands still meanwhile
    for (const int step : {-1, -1, 1, 1, 1, -1, 1})
        host.Queue({EventKind::Click, step < 0 ? "frmInfo.cmdPrev" : "frmInfo.cmdNext"});
    OpenInfo();
    EXPECT_EQ(curUnit, 3) << "over the end, back, and past the dead and the immobile";
    EXPECT_EQ(UnitTable[3].fireMode, 1) << "kept by a weapon that was not changed";
    EXPECT_EQ(frmField.shpSelect.Top, UnitTable[3].pixelY) << "the view shows the one last paged to";
    const std::size_t lines = frmField.cmbLog.List.size();
    In(0) = MakeItem(WeaponInfoByName("ak"));
    OpenInfo();
    EXPECT_EQ(frmField.cmbLog.List.size(), lines) << "who wasn't paged away isn't selected again";
    EXPECT_EQ(UnitTable[3].fireMode, 0) << "another weapon begins with its first mode";
}

TEST_F(PersonalFileTest, ASpentSoldiersFileIsKeptWholeWhenItCloses) {
    UnitTable[1].time = 2;
    InvItem& elsewhere = groundItems[UnitTable[2].cellY][UnitTable[2].cellX][0];
    elsewhere.name = "med";
    host.Queue({EventKind::Click, "frmInfo.cmdNext"});
    OpenInfo();
    EXPECT_EQ(curUnit, 2) << "handed over once the file was put away";
    EXPECT_EQ(UnitTable[1].items[0].name, "l96");
    EXPECT_EQ(elsewhere.name, "med") << "nothing of the one is written into the other's cell";
}

}  // namespace
