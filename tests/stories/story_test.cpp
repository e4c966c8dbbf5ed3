// Stories driven through the door for input: an enemy sighted, a wall shot through, the last enemy killed.
#include "data/terrain.h"
#include "platform/blit.h"
#include "platform/random.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "tools/player/orders.h"
#include "view/field_form.h"
#include "view/painting.h"

namespace {

class Story : public GameTest {
  protected:
    Story() {
        ClearField();
        PutUnit(0, 20, 20);
        PutUnit(29, 70, 40);
        soldier.marksmanship = 100;
        SeedRandom(12);
    }

    Unit& soldier = UnitTable[0];

    // A soldier whose time and weapon never end.
    void FireAt(int x, int y) {
        soldier.time = 400;
        soldier.hand.durab = 1000;
        ActOn(x, y);
    }
};

Picture Shown(int x, int y) {
    Picture cell(20, 20);
    BitBlt(cell, 0, 0, 20, 20, frmField.area.canvas, x * 20, y * 20, RasterOp::SRCCOPY);
    return cell;
}

TEST_F(Story, AnEnemyIsSightedDrawnHiddenAndSightedAgain) {
    PaintCell(45, 30, frmField.area.canvas);
    PutUnit(1, 40, 30);
    PutUnit(20, 45, 30);
    soldier.facing = West;
    UnitTable[20].agility = 0;  // it stays where it is
    const Picture bare = frmField.picBuffer[20] = Shown(45, 30);

    const auto expectSighted = [&bare](bool is) {
        EXPECT_EQ(UnitTable[1].seen[0], is ? 1 : 0);
        EXPECT_EQ(Shown(45, 30).SameAs(bare), !is);
        EXPECT_EQ(frmField.imgEnemyCount.Visible, is);
    };
    SelectOrWalkTo(40, 30);
    ASSERT_EQ(curUnit, 1);
    expectSighted(true);
    EndTurn();
    ASSERT_EQ(curUnit, 0);
    expectSighted(false);
    SelectOrWalkTo(40, 30);
    expectSighted(true);
}

TEST_F(Story, ABurstGoesThroughAWoodenWallOnceItBreaks) {
    PutTile(23, 20, 1, Wooden);
    PutUnit(20, 26, 20);
    UnitTable[20].health = 1000;
    Hold("m249", "Full auto", 200);
    int bursts = 0;
    for (; cellGrid[20][23].tileX != 81 && bursts < 10; ++bursts)
        FireAt(26, 20);
    EXPECT_LT(bursts, 10) << "the wall gives way";
    EXPECT_EQ(cellGrid[20][23].block, 0);
    frmField.cmbLog.List.clear();
    FireAt(26, 20);
    EXPECT_NE(Log().find(" hit u20 with m249"), std::string::npos) << "who stood behind it is hit";
}

TEST_F(Story, TheLastEnemyKilledIsTheVictory) {
    for (int i = 20; i <= 29; ++i)
        UnitTable[i].status = Dead;
    PutUnit(20, 22, 20);
    UnitTable[20].items[0].name = "ak";
    UnitTable[20].health = 5;
    Hold("ak", "Aimed shot");
    const auto fight = [this] {
        for (int i = 0; i < 50; ++i)
            FireAt(22, 20);
    };
    EXPECT_THROW(fight(), ProcessEnded);
    EXPECT_EQ(host.messages, std::vector<std::string>{"Victory. The end."});
    EXPECT_EQ(groundItems[20][22][0].name, "ak");
}

}  // namespace
