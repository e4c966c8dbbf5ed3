// The window of a soldier's file, driven through the door that its events come by.
#include "personal/personal_file.h"

#include <map>
#include <random>

#include "combat/actions.h"
#include "combat/explosions.h"
#include "combat/things.h"
#include "data/weapons_file.h"
#include "personal/catalogue.h"
#include "personal/dragging.h"
#include "personal/info_form.h"
#include "personal/inventory.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

constexpr int EnterKey = 13;
constexpr int UpKey = 38;
constexpr int DownKey = 40;

class PersonalFileTest : public GameTest {
  protected:
    PersonalFileTest() {
        StartGame();
        curUnit = 0;
    }

    Unit& Self() { return UnitTable[curUnit]; }
    InvItem& In(int slot) { return Self().items[slot]; }

    static void At(EventKind kind, float x, float y, int button = 1) {
        Dispatch({kind, "frmInfo", -1, button, 0, x, y});
    }
    static void On(EventKind kind, int slot, int button = 1) {
        const ImageControl& image = frmInfo.imgInv[slot];
        At(kind, static_cast<float>(image.Left + 5), static_cast<float>(image.Top + 5), button);
    }
    static void Press(int slot, int button = 1) { On(EventKind::MouseDown, slot, button); }
    static void Key(EventKind kind, int code, int shift = 0) { Dispatch({kind, "frmInfo", -1, code, shift}); }
    static void Strike(int code, int shift = 0) {
        Key(EventKind::KeyDown, code, shift);
        Key(EventKind::KeyUp, code);
    }
    static void Click(const char* control, int index = -1) {
        Dispatch({EventKind::Click, control, index, 1});
    }

    // Puts the soldier before the squad's vehicle.
    void StandAtStore() {
        for (int y = 1; y < FieldHeight; ++y)
            for (int x = 1; x + 1 < FieldWidth; ++x)
                if (cellGrid[y][x + 1].tileY == 10 && cellGrid[y][x + 1].tileX >= 18) {
                    Self().cellX = x;
                    Self().cellY = y;
                    Self().facing = East;
                    return;
                }
    }
};

TEST_F(PersonalFileTest, EveryWayOfOpeningShowsTheCurrentUnit) {
    const InputEvent ways[] = {{EventKind::KeyDown, "frmField", -1, EnterKey},
                               {EventKind::Click, "frmField.mnuInfo", -1, 0},
                               {EventKind::Click, "frmField.picBarWeapon", -1, 1},
                               {EventKind::Click, "frmField.imgInv", 0, 1}};
    for (const InputEvent& way : ways) {
        host.Queue({EventKind::KeyDown, "frmField", -1, 32});  // the field stands still
        host.Queue({EventKind::KeyDown, "frmInfo", -1, EnterKey});
        frmInfo.shownUnit = -1;
        Dispatch(way);
        EXPECT_EQ(frmInfo.shownUnit, 0) << EventText(way);
        EXPECT_FALSE(frmInfo.Visible);
        EXPECT_EQ(curUnit, 0);
    }
}

TEST_F(PersonalFileTest, AThingIsTakenUpFollowsThePointerAndGoesHome) {
    LoadInfo();
    Press(0);
    EXPECT_EQ(In(PointerSlot).name, "m4");
    EXPECT_EQ(In(0).name, "");
    EXPECT_EQ(frmInfo.imgDrag.Width, 117);
    At(EventKind::MouseMove, 300.5F, 100.4F, 0);
    EXPECT_EQ(frmInfo.imgDrag.Left, 300 - 58);
    EXPECT_EQ(frmInfo.imgDrag.Top, 100 - 21);
    Dispatch({EventKind::MouseMove, "frmInfo.cmdNext", -1, 0, 0, 10, 12});
    EXPECT_EQ(frmInfo.imgDrag.Left, 552 + 10 - 58) << "over a button too";
    Click("frmInfo.cmdNext");
    Key(EventKind::KeyDown, EnterKey);
    Dispatch({EventKind::CloseRequest, "frmInfo"});
    EXPECT_TRUE(frmInfo.Visible) << "neither paged nor closed with a thing in hand";
    EXPECT_EQ(frmInfo.shownUnit, 0);
    Dispatch({EventKind::MouseDown, "frmInfo.imgAward", 12, 1, 0, 30, 20});
    EXPECT_EQ(In(0).name, "m4");
    EXPECT_FALSE(Dragging());
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
    Press(0, 2);
    EXPECT_EQ(In(0).capMain, 0);
    EXPECT_EQ(In(PointerSlot).name, "5nato");
    EXPECT_EQ(In(PointerSlot).roundsMain, 30);
    EXPECT_EQ(frmInfo.imgInv[0].PictureName, "\\pic\\inv\\m40.gif");
    Press(1, 2);
    EXPECT_EQ(In(1).capMain, 31) << "one thing at a time";
    Press(0);
    EXPECT_EQ(In(0).roundsMain, 30);
    EXPECT_FALSE(Dragging());
    Press(4, 2);
    EXPECT_FALSE(Dragging()) << "a helmet has no magazine";
}

TEST_F(PersonalFileTest, TheHintNamesTheThingAndLightsUpForWhatFitsIt) {
    constexpr Colour Lit = Rgb(255, 255, 153);
    LoadInfo();
    In(2) = In(0);
    In(2).ammoSecond = "40gren";
    In(2).capSecond = 1;
    On(EventKind::MouseMove, 2, 0);
    EXPECT_EQ(frmInfo.txtFullname.Text, "m4 (30 of 30) 5nato, (0 of 1) 40gren [2] 270");
    EXPECT_NE(frmInfo.txtFullname.ForeColor, Lit);
    Press(10);
    ASSERT_EQ(In(PointerSlot).name, "5nato");
    On(EventKind::MouseMove, 1, 0);
    EXPECT_NE(frmInfo.txtFullname.ForeColor, Lit) << "another calibre";
    On(EventKind::MouseMove, 0, 0);
    EXPECT_EQ(frmInfo.txtFullname.ForeColor, Lit);
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
    EXPECT_EQ(frmInfo.imgPack.PictureName, "\\pic\\inv\\infoPack3.bmp");
    EXPECT_FALSE(frmInfo.imgInv[14].Visible);
    EXPECT_EQ(In(14).name, hidden);
    Press(6);
    EXPECT_TRUE(frmInfo.imgInv[14].Visible);
    Press(30);
    Press(6);
    EXPECT_EQ(frmInfo.imgPack.Picture, nullptr) << "no pack, no pockets";
    EXPECT_FALSE(frmInfo.imgInv[10].Visible);
}

TEST_F(PersonalFileTest, WhatIsLaidDownLiesOnTheFieldAndIsPickedUpAgain) {
    const int x = Self().cellX;
    const int y = Self().cellY;
    LoadInfo();
    Press(8);
    Press(33);
    Click("frmInfo.cmdGndPage", 2);
    EXPECT_FALSE(frmInfo.imgInv[33].Visible);
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
        Dispatch({EventKind::MouseDown, "frmField.area", -1, 1, 0, static_cast<float>(x * 20),
                  static_cast<float>(Self().cellY * 20)});
        EXPECT_EQ(curUnit, paged ? 1 : 0);
        EXPECT_EQ(lastClickX, paged ? 0 : x);
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
    for (const int size : {10, 20, 30, 120, 120}) {
        Strike(DownKey, 1);
        EXPECT_EQ(In(0).roundsMain, size);
    }
    Strike(UpKey, 1);
    EXPECT_EQ(In(0).capMain, 30);
    In(0).name = "m16a2";
    Strike(UpKey, 1);
    EXPECT_EQ(In(0).capMain, 30) << "sizes are left alone while another thing is in the hand";
    weaponPage = 2;
    Strike(104);
    Strike(104);
    EXPECT_EQ(weaponPage, 1) << "the bare hand isn't offered";
    On(EventKind::MouseMove, 0, 0);
    Click("frmInfo.imgDel");
    EXPECT_EQ(In(0).name, "");
}

TEST_F(PersonalFileTest, AHeldKeyStepsFasterAndFaster) {
    LoadInfo();
    Key(EventKind::KeyDown, DownKey);
    EXPECT_EQ(frmInfo.timerArrow.Interval, 0) << "the first one doesn't repeat";
    Key(EventKind::KeyUp, DownKey);
    EXPECT_FALSE(frmInfo.timerArrow.Enabled);
    Key(EventKind::KeyDown, DownKey);
    const int page = weaponPage;
    for (const int interval : {720, 648, 583, 525, 473}) {  // a tenth less: 72, 64.8, 58.3, 52.5 to the even
        Dispatch({EventKind::Timer, "frmInfo.timerArrow"});
        EXPECT_EQ(frmInfo.timerArrow.Interval, interval);
    }
    Key(EventKind::KeyUp, DownKey);
    Dispatch({EventKind::MouseDown, "frmInfo.imgUpDn", 1, 1});
    EXPECT_EQ(weaponPage, page + 6);
    EXPECT_FALSE(Dragging()) << "the press on the arrow isn't one on the hand behind it";
    Dispatch({EventKind::MouseUp, "frmInfo.imgUpDn", 1, 1});
    EXPECT_EQ(frmInfo.timerArrow.Interval, 400);
}

TEST_F(PersonalFileTest, NewThingsHaveTheFeedsOfTheirKind) {
    struct Case {
        const char* name;
        int main, rounds, second;
    };
    constexpr Case Cases[] = {{"m4", 0, 0, 0},        {"spas", 0, 0, 6},      {"anschutz", 25, 0, 0},
                              {"thronives", 3, 3, 0}, {"5nato", 10, 10, 0},   {"helmet", 100, 100, 0},
                              {"m67", 1, 1, 0},       {"american", 220, 0, 0}};
    for (const Case& c : Cases) {
        const InvItem item = MakeItem(WeaponInfoByName(c.name));
        EXPECT_EQ(item.capMain, c.main) << c.name;
        EXPECT_EQ(item.roundsMain, c.rounds) << c.name;
        EXPECT_EQ(item.capSecond, c.second) << c.name;
    }
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
    for (const char* way : {"frmInfo.cmdPrev", "frmInfo.cmdNext", "frmInfo.cmdNext"})
        host.Queue({EventKind::Click, way});
    OpenInfo();
    EXPECT_EQ(curUnit, 3) << "over the end, back, and past the dead and the immobile";
    EXPECT_EQ(UnitTable[3].fireMode, 1) << "kept by a weapon that was not changed";
    EXPECT_EQ(frmField.imgBar[0].Width, UnitTable[3].time) << "the panel shows the one last paged to";
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

TEST_F(PersonalFileTest, RibbonsTellTheirTitlesAndCounts) {
    Self().awards[8] = 2;
    Self().awards[12] = 1;
    LoadInfo();
    EXPECT_EQ(frmInfo.imgAward[8].PictureName, "\\pic\\awards\\0802.bmp");
    for (const auto& [row, tip] : {std::pair{8, "Purple Heart: 2"}, {12, "Combat Action Ribbon"}}) {
        Dispatch({EventKind::MouseMove, "frmInfo.imgAward", row, 0, 0, 3, 3});
        EXPECT_EQ(frmInfo.imgAward[row].ToolTipText, tip);
    }
}

TEST_F(PersonalFileTest, RandomDragsNeitherLoseNorDoubleAnything) {
    // Weapons and other things by name, and rounds by kind: magazines come and go with their weapons.
    const auto inventory = [this] {
        std::map<std::string, int> counted;
        for (const InvItem& item : Self().items) {
            if (item.name.empty()) continue;
            if (WeaponInfoByName(item.name).kind != "a") ++counted["thing " + item.name];
            counted["rounds " + item.ammoMain] += item.roundsMain;
            counted["rounds " + item.ammoSecond] += item.roundsSecond;
        }
        return counted;
    };
    StandAtStore();
    for (int i = 10; i < 22; ++i)  // beside the stock of the store, magazines that aren't full
        if (storeItems[i].capMain > 9) storeItems[i].roundsMain = storeItems[i].capMain - i % 5;
    for (int i = 22; i < CellItemSlots; ++i)  // room to lay things down
        storeItems[i] = InvItem();
    LoadInfo();
    const auto before = inventory();
    std::mt19937 chance(7);
    const auto draw = [&chance](unsigned below) { return static_cast<int>(chance() % below); };
    int overflows = 0;
    for (int i = 0; i < 20'000; ++i) {
        const int what = draw(20);
        const int slot = draw(LastBoardSlot + 1);
        try {
            if (what == 0)
                At(EventKind::MouseDown, 600, 620);
            else if (what == 1)
                Click("frmInfo.cmdGndPage", draw(3));
            else if (frmInfo.imgInv[slot].Visible)
                Press(slot, what == 2 ? 2 : 1);
        } catch (const RunTimeError& error) {
            ASSERT_NE(std::string(error.what()).find("Overflow"), std::string::npos) << error.what();
            ++overflows;
        }
        ASSERT_EQ(Dragging(), !In(PointerSlot).name.empty()) << "drag " << i;
        if (i % 16 == 0) {
            ASSERT_EQ(inventory(), before) << "drag " << i;
        }
    }
    EXPECT_GT(overflows, 0);
}

}  // namespace
