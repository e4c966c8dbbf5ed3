// The player's commands: keys, stances, the switch, fire modes, tips; the panel that follows.
#include "view/commands.h"
#include "state/status.h"

#include "data/weapons_file.h"
#include "platform/keys.h"
#include "tests/support/game_test.h"
#include "view/panel.h"

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

TEST_F(CommandsTest, ArrowsAndTheNumberPadTakeAStep) {
    struct Case {
        int key, facing, dx, dy;
    };
    constexpr Case Cases[] = {{PageUpKey, NorthEast, 1, -1}, {EndKey, SouthWest, -1, 1},
                              {LeftKey, West, -1, 0},        {DownKey, South, 0, 1},
                              {Pad2Key, South, 0, 1},        {Pad5Key, East, 0, 0},
                              {Pad7Key, NorthWest, -1, -1},  {Pad6Key, East, 1, 0}};
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
    Press(EscapeKey);
    EXPECT_EQ(unit.time, 0);
    EXPECT_EQ(curUnit, 2) << "the panel hands over, then the key does";
    UnitTable[2].status = Dead;
    Press(RightKey);
    EXPECT_EQ(curUnit, 1) << "a key on a soldier who can't act goes to the next one";
    EXPECT_EQ(UnitTable[1].cellX, 11);
}

TEST_F(CommandsTest, AStanceCostsFourTimeForEachStepBetween) {
    struct Case {
        int from, to, time, after, timeAfter;
    };
    constexpr Case Cases[] = {{Stand, Prone, 80, Prone, 72},
                              {Prone, Stance::Run, 80, Stance::Run, 68},
                              {Crouch, Crouch, 80, Crouch, 80},
                              {Stand, Prone, 7, Stand, 7}};
    for (const Case& c : Cases) {
        unit.stance = c.from;
        unit.time = c.time;
        Dispatch({EventKind::Click, "frmField.imgStance", c.to});
        EXPECT_EQ(unit.stance, c.after);
        EXPECT_EQ(unit.time, c.timeAfter);
    }
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
        EXPECT_EQ(frmField.imgBar[3].Width, c.moving);
        EXPECT_EQ(unit.time, 76);
        Dispatch({EventKind::Click, "frmField.imgStop"});
    }
}

TEST_F(CommandsTest, BracketsGoThroughTheModesAndStopAtTheEnds) {
    Hold("ak");
    Press(OpenBracketKey);
    EXPECT_EQ(frmField.comboMode.ListIndex, 0);
    for (int i = 0; i < 6; ++i)
        Press(CloseBracketKey);
    EXPECT_EQ(frmField.comboMode.Text, "Full auto");
    for (int i = 0; i < 3; ++i)
        Press(SpaceKey);
    ASSERT_EQ(curUnit, 0);
    EXPECT_EQ(frmField.comboMode.ListIndex, 3) << "kept between selections";
    Dispatch({EventKind::Choose, "frmField.comboMode", -1, 1});
    EXPECT_EQ(unit.fireMode, 1);
}

TEST_F(CommandsTest, ThePointerReadsOutWhatNoMapOfTheGameHolds) {
    cellGrid[5][5].tileY = 40;
    Dispatch({EventKind::MouseMove, "frmField.area", -1, 0, 0, 105.5F, 101.4F});
    EXPECT_EQ(frmField.area.ToolTipText, "40 () with 200");
    EXPECT_EQ(frmField.Caption, "Sarnoth III :: Field [5,5]");
}

TEST_F(CommandsTest, TheDurabilityColumnHasFourBands) {
    struct Case {
        int max, current, fill;
        const char* band;
        const char* percent;
    };
    constexpr Case Cases[] = {
        {1000, 1000, 40, "75", " 100% of durability"}, {1000, 749, 29, "50", " 74% of durability"},
        {500, 250, 10, "25", " 25% of durability"},    {500, 900, 20, "50", " 50% of durability"},
        {500, 1, 0, "0", " 0% of durability"},         {500, 0, 0, "0", " 0% of durability"}};
    unit.hand = WeaponInfoByName("ak");
    for (const Case& c : Cases) {
        weaponTable[static_cast<std::size_t>(WeaponIndex("ak"))].durab = c.max;
        unit.hand.durab = c.current;
        ShowStatus("durab");
        EXPECT_EQ(frmField.imgBarWcolor.Height, c.fill);
        EXPECT_EQ(frmField.imgBarWcolor.Top, 72 - c.fill);
        EXPECT_EQ(frmField.imgBarWcolor.Visible, c.current != 0);
        EXPECT_EQ(frmField.imgBarWcolor.PictureName, "\\pic\\wea_" + std::string(c.band) + ".gif");
        EXPECT_EQ(frmField.imgBarWunder.ToolTipText, c.percent);
    }
}

}  // namespace
