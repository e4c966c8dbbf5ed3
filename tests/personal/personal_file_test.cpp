// The window of a soldier's file, driven through the door that its events come by.
#include "personal/personal_file.h"

#include <map>
#include <random>

#include "combat/explosions.h"
#include "combat/things.h"
#include "data/weapons_file.h"
#include "personal/catalogue.h"
#include "personal/dragging.h"
#include "personal/info_form.h"
#include "personal/inventory.h"
#include "platform/picture_file.h"
#include "state/awards.h"
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

    static void Press(int slot, int button = 1) {
        const ImageControl& image = frmInfo.imgInv[slot];
        PressAt(static_cast<float>(image.Left + 5), static_cast<float>(image.Top + 5), button);
    }
    static void PressAt(float x, float y, int button = 1) {
        Dispatch({EventKind::MouseDown, "frmInfo", -1, button, 0, x, y});
    }
    static void PointAt(int slot) {
        const ImageControl& image = frmInfo.imgInv[slot];
        Dispatch({EventKind::MouseMove, "frmInfo", -1, 0, 0, static_cast<float>(image.Left + 5),
                  static_cast<float>(image.Top + 5)});
    }
    static void Key(EventKind kind, int code, int shift = 0) { Dispatch({kind, "frmInfo", -1, code, shift}); }
    static void Click(const char* control, int index = -1) {
        Dispatch({EventKind::Click, control, index, 1});
    }

    // Puts a soldier before the squad's vehicle, with a thing in slot `slot` of the store.
    void StandAtStore() {
        for (int y = 1; y < FieldHeight; ++y) {
            for (int x = 1; x + 1 < FieldWidth; ++x) {
                if (cellGrid[y][x + 1].tileY != 10 || cellGrid[y][x + 1].tileX < 18) continue;
                Self().cellX = x;
                Self().cellY = y;
                Self().facing = East;
                return;
            }
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
    EXPECT_EQ(frmInfo.imgDrag.Left, 152);
    EXPECT_EQ(frmInfo.imgDrag.Top, 218);
    Dispatch({EventKind::MouseMove, "frmInfo", -1, 0, 0, 300.5F, 100.4F});
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
    EXPECT_EQ(frmInfo.dragSlot, NoSlot);
    EXPECT_EQ(frmInfo.imgDrag.Left, 328);
}

TEST_F(PersonalFileTest, WhatLayThereIsCarriedOnAndTheOldPlaceMayBeFilled) {
    LoadInfo();
    Press(0);  // the rifle
    Press(1);  // laid on the submachine gun, which comes up
    EXPECT_EQ(In(1).name, "m4");
    EXPECT_EQ(In(PointerSlot).name, "mp5sd");
    EXPECT_EQ(frmInfo.dragSlot, 1);
    PressAt(600, 300);
    EXPECT_TRUE(Dragging()) << "its old place is taken, so it has no home";
    Press(0);
    EXPECT_FALSE(Dragging());
    EXPECT_EQ(In(0).name, "mp5sd");
}

TEST_F(PersonalFileTest, TheRightButtonTakesTheMagazineOut) {
    LoadInfo();
    host.sounds.clear();
    Press(0, 2);
    EXPECT_EQ(In(0).capMain, 0);
    EXPECT_EQ(In(PointerSlot).name, "5nato");
    EXPECT_EQ(In(PointerSlot).roundsMain, 30);
    EXPECT_EQ(frmInfo.imgInv[0].PictureName, "\\pic\\inv\\m40.gif");
    EXPECT_EQ(host.sounds.size(), 1U);
    Press(1, 2);
    EXPECT_EQ(In(1).capMain, 31) << "one thing at a time";
    Press(0);
    EXPECT_EQ(In(0).roundsMain, 30);
    EXPECT_FALSE(Dragging());
    Press(4, 2);
    EXPECT_FALSE(Dragging()) << "a helmet has no magazine";
}

TEST_F(PersonalFileTest, TheHintNamesTheThingAndLightsUpForWhatFitsIt) {
    LoadInfo();
    PointAt(0);
    EXPECT_EQ(frmInfo.txtFullname.Text, "m4 (30 of 30) 5nato [0] 270");
    EXPECT_EQ(frmInfo.txtFullname.ForeColor, Rgb(55, 89, 140));
    In(2) = In(0);
    In(2).name = "famasm203";
    In(2).ammoSecond = "40gren";
    In(2).capSecond = 1;
    PointAt(2);
    EXPECT_EQ(frmInfo.txtFullname.Text, "famasm203 (30 of 30) 5nato, (0 of 1) 40gren [2] 270");
    Press(10);
    ASSERT_EQ(In(PointerSlot).name, "5nato");
    PointAt(0);
    EXPECT_EQ(frmInfo.txtFullname.ForeColor, Rgb(255, 255, 153));
    PointAt(1);
    EXPECT_EQ(frmInfo.txtFullname.ForeColor, Rgb(55, 89, 140)) << "another calibre";
    PointAt(0);
    Dispatch({EventKind::MouseMove, "frmInfo", -1, 0, 0, 600, 30});
    EXPECT_EQ(frmInfo.txtFullname.Text, "");
    EXPECT_EQ(frmInfo.txtFullname.ForeColor, Rgb(255, 255, 153)) << "colours are left alone beside the slots";
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
    EXPECT_EQ(In(30).capMain, 3);
    Press(6);
    EXPECT_EQ(frmInfo.imgPack.Picture, nullptr) << "no pack, no pockets";
    EXPECT_FALSE(frmInfo.imgInv[10].Visible);
}

TEST_F(PersonalFileTest, WhatIsLaidDownLiesOnTheFieldAndIsPickedUpAgain) {
    const int x = Self().cellX;
    const int y = Self().cellY;
    LoadInfo();
    EXPECT_FALSE(frmInfo.txtAPC.Visible);
    Press(8);
    Press(33);
    Click("frmInfo.cmdGndPage", 2);
    EXPECT_FALSE(frmInfo.imgInv[33].Visible);
    EXPECT_FALSE(frmInfo.cmdGndPage[2].Enabled);
    ASSERT_TRUE(CloseInfo());
    EXPECT_EQ(groundItems[y][x][3].name, "med");
    EXPECT_EQ(CountAt(x, y, PileBase), 1);
    EXPECT_NE(Log().find("weapon dropped\n"), std::string::npos);
    LoadInfo();
    EXPECT_EQ(groundPage, 2) << "the page outlives the window";
    Click("frmInfo.cmdGndPage", 0);
    Press(33);
    Press(8);
    ASSERT_TRUE(CloseInfo());
    EXPECT_EQ(In(8).name, "med");
    EXPECT_EQ(CountAt(x, y, PileBase), 0);
}

TEST_F(PersonalFileTest, ASetChargeThatPassesThroughTheFileStopsTicking) {
    const int x = Self().cellX;
    const int y = Self().cellY;
    groundItems[y][x][0].name = "c4";
    ChargeAdd(x, y);
    LoadInfo();
    CloseInfo();
    EXPECT_EQ(teamLast[ChargeList], -1);
    EXPECT_EQ(CountAt(x, y, PileBase), 0) << "one thing less one charge that ticked";
    LoadInfo();
    CloseInfo();
    EXPECT_EQ(CountAt(x, y, PileBase), 1);
}

TEST_F(PersonalFileTest, AtTheVehicleTheStoreStandsInTheGroundsPlace) {
    StandAtStore();
    storeItems[0] = In(8);
    LoadInfo();
    EXPECT_TRUE(frmInfo.txtAPC.Visible);
    EXPECT_EQ(In(30).name, "med");
    Press(30);
    Press(28);
    CloseInfo();
    EXPECT_EQ(storeItems[0].name, "");
    EXPECT_EQ(In(28).name, "med");
}

TEST_F(PersonalFileTest, TheCatalogueStepsThroughEveryRowAndSize) {
    weaponPage = WeaponIndex("m4") - 1;
    LoadInfo();
    Key(EventKind::KeyDown, DownKey);
    Key(EventKind::KeyDown, DownKey);  // the keyboard's own repeat
    EXPECT_EQ(In(0).name, "m4");
    EXPECT_EQ(In(0).capMain, 0);
    Key(EventKind::KeyUp, DownKey);
    const int sizes[] = {10, 20, 30, 120, 120};
    for (const int size : sizes) {
        Key(EventKind::KeyDown, DownKey, 1);
        Key(EventKind::KeyUp, DownKey);
        EXPECT_EQ(In(0).capMain, size);
        EXPECT_EQ(In(0).roundsMain, size);
    }
    for (int i = 0; i < 5; ++i) {
        Key(EventKind::KeyDown, UpKey, 1);
        Key(EventKind::KeyUp, UpKey);
    }
    EXPECT_EQ(In(0).capMain, 0) << "a weapon without a magazine";
    weaponPage = 2;
    for (int i = 0; i < 3; ++i) {
        Key(EventKind::KeyDown, 104);
        Key(EventKind::KeyUp, 104);
    }
    EXPECT_EQ(weaponPage, 1) << "the bare hand isn't offered";
    weaponPage = static_cast<int>(weaponTable.size()) - 1;
    Key(EventKind::KeyDown, 98);
    Key(EventKind::KeyUp, 98);
    EXPECT_EQ(weaponPage, static_cast<int>(weaponTable.size()) - 1);
    EXPECT_FALSE(frmInfo.imgDel.Visible);
    PointAt(0);
    Click("frmInfo.imgDel");
    EXPECT_EQ(In(0).name, "");
    EXPECT_EQ(frmInfo.imgFlag.Picture, nullptr);
}

TEST_F(PersonalFileTest, AHeldKeyStepsFasterAndFaster) {
    LoadInfo();
    const InputEvent tick{EventKind::Timer, "frmInfo.timerArrow"};
    Key(EventKind::KeyDown, DownKey);
    EXPECT_EQ(frmInfo.timerArrow.Interval, 0) << "the first one doesn't repeat";
    Key(EventKind::KeyUp, DownKey);
    EXPECT_FALSE(frmInfo.timerArrow.Enabled);
    Key(EventKind::KeyDown, DownKey);
    EXPECT_TRUE(frmInfo.timerArrow.Enabled);
    const int page = weaponPage;
    for (const int interval : {720, 648, 583, 525, 473}) {  // a tenth less: 72, 64.8, 58.3, 52.5 to the even
        Dispatch(tick);
        EXPECT_EQ(frmInfo.timerArrow.Interval, interval);
    }
    EXPECT_EQ(weaponPage, page + 5);
    Key(EventKind::KeyUp, DownKey);
    Dispatch({EventKind::MouseDown, "frmInfo.imgUpDn", 1, 1});
    EXPECT_EQ(weaponPage, page + 6);
    EXPECT_FALSE(Dragging()) << "the press on the arrow isn't one on the hand behind it";
    Dispatch({EventKind::MouseUp, "frmInfo.imgUpDn", 1, 1});
    EXPECT_EQ(frmInfo.timerArrow.Interval, 400);
}

TEST_F(PersonalFileTest, FeedSizesAreLeftAloneWhileAnotherThingIsInTheHand) {
    weaponPage = WeaponIndex("p226");
    LoadInfo();
    Key(EventKind::KeyDown, DownKey, 1);
    EXPECT_EQ(In(0).name, "m4");
    EXPECT_EQ(In(0).capMain, 30);
}

TEST_F(PersonalFileTest, NewThingsHaveTheFeedsOfTheirKind) {
    struct Case {
        const char* name;
        int main, rounds, second;
    };
    constexpr Case Cases[] = {{"m4", 0, 0, 0},        {"m4m203", 0, 0, 1},    {"spas", 0, 0, 6},
                              {"thronives", 3, 3, 0}, {"anschutz", 25, 0, 0}, {"smle", 10, 0, 0},
                              {"5nato", 10, 10, 0},   {"12gauge", 12, 12, 0}, {"helmet", 100, 100, 0},
                              {"m67", 1, 1, 0},       {"radio", 0, 0, 0},     {"american", 220, 0, 0}};
    for (const Case& c : Cases) {
        const InvItem item = MakeItem(WeaponInfoByName(c.name));
        EXPECT_EQ(item.capMain, c.main) << c.name;
        EXPECT_EQ(item.roundsMain, c.rounds) << c.name;
        EXPECT_EQ(item.capSecond, c.second) << c.name;
    }
}

TEST_F(PersonalFileTest, PagingGoesRoundTheFitOnesAndTheSelectionFollows) {
    const int last = teamLast[SquadTeam];
    UnitTable[1].status = Dead;
    UnitTable[2].status = Immobile;
    UnitTable[3].status = Wounded;
    host.Queue({EventKind::Click, "frmInfo.cmdPrev"});
    host.Queue({EventKind::Click, "frmInfo.cmdNext"});
    host.Queue({EventKind::Click, "frmInfo.cmdNext"});
    OpenInfo();
    EXPECT_EQ(curUnit, 3) << "over the end to " << last << ", back, and past the dead and the immobile";
    EXPECT_EQ(frmField.imgStance[UnitTable[3].stance].PictureName,
              "\\pic\\stance" + std::to_string(UnitTable[3].stance) + "on.gif");
    EXPECT_EQ(frmField.imgBar[0].Width, UnitTable[3].time) << "the panel shows the one last paged to";
}

TEST_F(PersonalFileTest, ASpentSoldiersFileIsKeptWholeWhenItCloses) {
    UnitTable[1].time = 2;
    host.Queue({EventKind::Click, "frmInfo.cmdNext"});
    OpenInfo();
    EXPECT_EQ(curUnit, 2) << "handed over once the file was put away";
    EXPECT_EQ(UnitTable[1].items[0].name, "l96");
}

TEST_F(PersonalFileTest, ThePictureButtonBringsThePanelAndThenLeaves) {
    Self().health = 77;
    Self().time = 12;
    Self().cellX = 5;
    Self().cellY = 9;
    Self().facing = SouthEast;
    LoadInfo();
    EXPECT_EQ(frmInfo.lblInv.Caption,
              "name: Marcus Hale\rteam: fighters\rhealth: 77\rtime: 12\rx: 5\ry: 9\rori: SE\rweapon: m4\r"
              "weapon power: " +
                  std::to_string(Self().hand.power) + "\rweapon accur: " + std::to_string(Self().hand.accur));
    groundPage = 1;
    const auto press = [] {
        Dispatch({EventKind::MouseDown, "frmInfo.picB1", -1, 1, 0, 5, 5});
        Dispatch({EventKind::MouseUp, "frmInfo.picB1", -1, 1, 0, 5, 5});
    };
    press();
    EXPECT_TRUE(frmInfo.Picture2.Visible);
    EXPECT_EQ(frmInfo.picB1.Tag, "6");
    press();
    EXPECT_FALSE(frmInfo.Visible);
    EXPECT_EQ(groundPage, 0);
}

TEST_F(PersonalFileTest, RibbonsTellTheirTitlesAndCounts) {
    Self().awards[8] = 2;
    Self().awards[12] = 1;
    LoadInfo();
    EXPECT_EQ(frmInfo.imgAward[8].PictureName, "\\pic\\awards\\0802.bmp");
    Dispatch({EventKind::MouseMove, "frmInfo.imgAward", 8, 0, 0, 3, 3});
    Dispatch({EventKind::MouseMove, "frmInfo.imgAward", 12, 0, 0, 3, 3});
    EXPECT_EQ(frmInfo.imgAward[8].ToolTipText, "Purple Heart: 2");
    EXPECT_EQ(frmInfo.imgAward[12].ToolTipText, "Combat Action Ribbon");
    Self().awards[25] = 1;
    EXPECT_NE(ErrorOf([] { LoadInfo(); }).find("Subscript"), std::string::npos);
}

// What the soldier has, carries and finds at his feet: weapons and other things by name, and rounds by kind.
// Magazines and loose rounds come and go with their weapons, so only their rounds are counted.
std::map<std::string, int> Inventory() {
    std::map<std::string, int> counted;
    for (int slot = 0; slot <= PointerSlot; ++slot) {
        const InvItem& item = UnitTable[curUnit].items[slot];
        if (item.name.empty()) continue;
        if (WeaponInfoByName(item.name).kind != "a") ++counted["thing " + item.name];
        if (!item.ammoMain.empty()) counted["rounds " + item.ammoMain] += item.roundsMain;
        if (!item.ammoSecond.empty()) counted["rounds " + item.ammoSecond] += item.roundsSecond;
    }
    return counted;
}

TEST_F(PersonalFileTest, RandomDragsNeitherLoseNorDoubleAnything) {
    StandAtStore();
    for (int i = 0; i < 12; ++i)  // beside the stock of the store, magazines that aren't full
        if (!storeItems[10 + i].name.empty() && storeItems[10 + i].capMain > 9)
            storeItems[10 + i].roundsMain = storeItems[10 + i].capMain - i % 5;
    LoadInfo();
    const std::map<std::string, int> before = Inventory();
    std::mt19937 chance(7);
    const auto draw = [&chance](unsigned below) { return static_cast<int>(chance() % below); };
    int overflows = 0;
    int drags = 0;
    for (int i = 0; i < 100'000; ++i) {
        const int what = draw(20);
        try {
            if (what == 0) {
                PressAt(600, 620);
            } else if (what == 1) {
                Click("frmInfo.cmdGndPage", draw(3));
            } else {
                const int slot = draw(LastBoardSlot + 1);
                if (!frmInfo.imgInv[slot].Visible) continue;
                Press(slot, what == 2 ? 2 : 1);
            }
            drags += Dragging() ? 1 : 0;
        } catch (const RunTimeError& error) {
            ASSERT_NE(std::string(error.what()).find("Overflow"), std::string::npos) << error.what();
            ++overflows;
        }
        if (i % 16 == 0) {
            ASSERT_EQ(Inventory(), before) << "drag " << i;
        }
        ASSERT_EQ(Dragging(), !In(PointerSlot).name.empty()) << "drag " << i;
    }
    EXPECT_EQ(Inventory(), before);
    EXPECT_GT(drags, 10'000);
    EXPECT_GT(overflows, 0);
}

}  // namespace
