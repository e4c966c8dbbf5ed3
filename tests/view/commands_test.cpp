// The player's commands: keys, stances, the switch, fire modes, tips; the panel that follows.
#include "view/commands.h"

#include "combat/things.h"
#include "data/weapons_file.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"
#include "view/panel.h"
#include "view/stored_pictures.h"

namespace {

class CommandsTest : public GameTest {
  protected:
    CommandsTest() {
        ClearField();
        PutUnit(0, 30, 20);
        PutUnit(1, 10, 10);
        PutUnit(2, 10, 12);
        unit.marksmanship = 50;
    }

    Unit& unit = UnitTable[0];

    static void Press(int code) { Dispatch({EventKind::KeyDown, "frmField", -1, code}); }
};

TEST_F(CommandsTest, TenKeysAndTheNumberPadTakeAStep) {
    struct Case {
        int key, facing, dx, dy;
    };
    constexpr Case Cases[] = {{33, NorthEast, 1, -1},  {34, SouthEast, 1, 1},    {35, SouthWest, -1, 1},
                              {36, NorthWest, -1, -1}, {37, West, -1, 0},        {38, North, 0, -1},
                              {39, East, 1, 0},        {40, South, 0, 1},        {97, SouthWest, -1, 1},
                              {98, South, 0, 1},       {99, SouthEast, 1, 1},    {100, West, -1, 0},
                              {102, East, 1, 0},       {103, NorthWest, -1, -1}, {104, North, 0, -1},
                              {105, NorthEast, 1, -1}, {101, East, 0, 0},        {65, East, 0, 0}};
    for (const Case& c : Cases) {
        ClearField();
        PutUnit(0, 30, 20);
        unit.facing = c.facing;
        Press(c.key);
        EXPECT_EQ(unit.cellX - 30, c.dx) << c.key;
        EXPECT_EQ(unit.cellY - 20, c.dy) << c.key;
    }
}

TEST_F(CommandsTest, EscGivesUpTheTurnAndMovesOnTwice) {
    Press(27);
    EXPECT_EQ(unit.time, 0);
    EXPECT_EQ(curUnit, 2) << "the panel hands over, then the key does";
    Press(32);
    EXPECT_EQ(curUnit, 1) << "the first one has no time left";
    EXPECT_EQ(UnitTable[2].time, 80);
}

TEST_F(CommandsTest, AKeyOnAnInvalidUnitGoesToTheNextOne) {
    unit.status = Dead;
    unit.health = 0;
    Press(39);
    EXPECT_EQ(curUnit, 1);
    EXPECT_EQ(UnitTable[1].cellX, 11);
    EXPECT_EQ(unit.cellX, 30);
}

TEST_F(CommandsTest, AStanceCostsFourTimeForEachStepBetween) {
    struct Case {
        int from, to, time;
    };
    constexpr Case Cases[] = {{Stand, Prone, 8}, {Prone, Stance::Run, 12}, {Crouch, Crouch, 0}};
    for (const Case& c : Cases) {
        unit.stance = c.from;
        unit.time = 80;
        Dispatch({EventKind::Click, "frmField.imgStance", c.to});
        EXPECT_EQ(unit.stance, c.to);
        EXPECT_EQ(80 - unit.time, c.time);
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(frmField.imgStance[i].PictureName,
                      "\\pic\\stance" + std::to_string(i) + (i == c.to ? "on.gif" : "off.gif"));
    }
    unit.stance = Stand;
    unit.time = 7;
    Dispatch({EventKind::Click, "frmField.imgStance", 0});
    EXPECT_EQ(unit.stance, Stand) << "refused";
    EXPECT_EQ(unit.time, 7);
}

TEST_F(CommandsTest, TheSwitchChangesTheReadOutOfAccuracy) {
    struct Case {
        int stance, stopped, moving;
    };
    constexpr Case Cases[] = {{Prone, 70, 20}, {Crouch, 65, 30}, {Stand, 50, 40}, {Stance::Run, 40, 30}};
    for (const Case& c : Cases) {
        unit.stance = c.stance;
        unit.time = 80;
        ShowStatus("stance");
        EXPECT_EQ(unit.aimChance, c.stopped);
        Dispatch({EventKind::Click, "frmField.imgStop"});
        EXPECT_EQ(unit.aimChance, c.moving);
        EXPECT_EQ(frmField.imgStop.ToolTipText, "fire in motion");
        EXPECT_EQ(frmField.imgStop.PictureName, "\\pic\\stance4on.gif");
        EXPECT_EQ(unit.time, 76);
        Dispatch({EventKind::Click, "frmField.imgStop"});
        EXPECT_EQ(frmField.imgStop.Tag, "off");
    }
    unit.marksmanship = 45;
    unit.stance = Stand;
    ShowStatus("stance");
    EXPECT_EQ(unit.aimChance, 45);
    EXPECT_EQ(frmField.imgBar[3].Width, 45);
    EXPECT_EQ(frmField.imgBar[3].ToolTipText, "accuracy: 45");
}

TEST_F(CommandsTest, BracketsGoThroughTheModesAndStopAtTheEnds) {
    unit.items[0].name = "ak";
    unit.items[0].capMain = 31;
    RefreshHand();
    const int count = static_cast<int>(frmField.comboMode.List.size());
    ASSERT_GE(count, 3);
    Press(219);
    EXPECT_EQ(frmField.comboMode.ListIndex, 0);
    for (int i = 0; i < count + 2; ++i)
        Press(221);
    EXPECT_EQ(frmField.comboMode.ListIndex, count - 1);
    EXPECT_EQ(frmField.comboMode.Text, frmField.comboMode.List.back());
    EXPECT_EQ(unit.fireMode, count - 1);
    Press(32);
    Press(32);
    Press(32);
    ASSERT_EQ(curUnit, 0);
    EXPECT_EQ(frmField.comboMode.ListIndex, count - 1) << "kept between selections";
    Dispatch({EventKind::Choose, "frmField.comboMode", -1, 1});
    EXPECT_EQ(unit.fireMode, 1);
}

TEST_F(CommandsTest, ThePointerReadsOutCellsAndUnits) {
    Dispatch({EventKind::MouseMove, "frmField.area", -1, 0, 0, 605.5F, 401.4F});
    EXPECT_EQ(frmField.area.ToolTipText, "u0:50:active t:80 weapon:");
    EXPECT_EQ(frmField.Caption, "Sarnoth III :: Field [30,20]");
    DrawField(40, 21, {"T#"});
    Dispatch({EventKind::MouseMove, "frmField.area", -1, 0, 0, 825, 425});
    EXPECT_EQ(frmField.area.ToolTipText, "4 (concrete) with 220");
    EXPECT_EQ(frmField.Caption, "Sarnoth III :: Field [41,21]");
    PutUnit(20, 50, 30);
    Dispatch({EventKind::MouseMove, "frmField.area", -1, 0, 0, 1005, 605});
    EXPECT_EQ(frmField.area.ToolTipText, "u20:50:active t:80 weapon:") << "seen or not";
    cellGrid[5][5].tileY = 40;
    Dispatch({EventKind::MouseMove, "frmField.area", -1, 0, 0, 105, 105});
    EXPECT_EQ(frmField.area.ToolTipText, "40 () with 200");
    EXPECT_THROW(AreaTooltip(1540, 0, frmField), RunTimeError);
}

TEST_F(CommandsTest, AForeignUnitClickedTellsItsNameAndIsADestination) {
    PutUnit(21, 30, 25);
    Dispatch({EventKind::MouseDown, "frmField.area", -1, 1, 0, 610, 510});
    EXPECT_EQ(Log(), "u21 (#21) from team #1, waiting for its turn.\n");
    EXPECT_EQ(unit.facing, South);
    EXPECT_EQ(lastClickY, 25);
}

TEST_F(CommandsTest, BarsShowOnePixelAPointAndThreeDigits) {
    unit.time = 7;
    unit.energy = 140;
    unit.health = 88;
    ShowStatus("");
    const int widths[] = {7, 140, 88};
    for (int bar = 0; bar < 3; ++bar)
        EXPECT_EQ(frmField.imgBar[bar].Width, widths[bar]);
    EXPECT_EQ(frmField.imgBar[1].ToolTipText, "energy: 140");
    const auto shows = [](int image, int row, int digit) {
        const Picture& strip = StoredPicture("picBarDigits.bmp");
        const Picture& shown = *frmField.imgBar[image].Picture;
        bool same = true;
        for (int y = 0; y < 6; ++y)
            for (int x = 0; x < 5; ++x)
                same = same && shown.Pixel(x, y) == strip.Pixel(digit * 5 + x, row * 6 + y);
        return same;
    };
    const int digits[] = {0, 0, 7, 1, 4, 0, 0, 8, 8};
    for (int i = 0; i < 9; ++i)
        EXPECT_TRUE(shows(4 + i, i / 3, digits[i])) << "digit image " << 4 + i;
    EXPECT_EQ(Log(), "Selected u0 [active]\n");
}

TEST_F(CommandsTest, TheDurabilityColumnHasFourBands) {
    struct Case {
        int max, current, fill, coverHeight;
        const char* band;
        const char* percent;
    };
    constexpr Case Cases[] = {
        {1000, 1000, 40, 0, "75", " 100% of durability"}, {1000, 749, 29, 0, "50", " 74% of durability"},
        {500, 250, 10, 20, "25", " 25% of durability"},   {500, 900, 20, 20, "50", " 50% of durability"},
        {500, 0, 0, 20, "0", " 0% of durability"},
    };
    unit.hand = WeaponInfoByName("ak");
    for (const Case& c : Cases) {
        weaponTable[static_cast<std::size_t>(WeaponIndex("ak"))].durab = c.max;
        unit.hand.durab = c.current;
        ShowStatus("durab");
        EXPECT_EQ(frmField.imgBarWcolor.Height, c.fill);
        EXPECT_EQ(frmField.imgBarWcolor.Top, 72 - c.fill);
        EXPECT_EQ(frmField.imgBarWcolor.Visible, c.current != 0);
        EXPECT_EQ(frmField.imgBarWcover.Height, c.coverHeight);
        EXPECT_EQ(frmField.imgBarWcolor.PictureName, "\\pic\\wea_" + std::string(c.band) + ".gif");
        EXPECT_EQ(frmField.imgBarWunder.ToolTipText, c.percent);
    }
    EXPECT_EQ(frmField.imgBarWcover.ToolTipText, "durability max:  500");
}

TEST_F(CommandsTest, AComputersUnitIsNeverShown) {
    PutUnit(20, 50, 30);
    curUnit = 20;
    UnitTable[20].time = 0;
    ShowStatus("");
    EXPECT_EQ(frmField.imgBar[2].Width, 0);
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(curUnit, 20) << "and never handed over";
}

}  // namespace
