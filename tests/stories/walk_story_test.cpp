// Whole stories, driven through the door for input as a player drives them.
#include "field/geometry.h"
#include "platform/blit.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/depot_form.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

class StoryTest : public GameTest {
  protected:
    static void Click(int cellX, int cellY) {
        Dispatch({EventKind::MouseDown, "frmField.area", -1, 1, 0, static_cast<float>(cellX * 20 + 10),
                  static_cast<float>(cellY * 20 + 10)});
    }

    static void EndTurn() { Dispatch({EventKind::Click, "frmField.cmdNextTurn"}); }

    // Whether a cell of the field shows its bare tile.
    static bool IsBare(int x, int y) {
        Picture shown(20, 20);
        BitBlt(shown, 0, 0, 20, 20, frmField.area.canvas, x * 20, y * 20, RasterOp::SRCCOPY);
        Picture tile(20, 20);
        const Cell& cell = cellGrid[y][x];
        BitBlt(tile, 0, 0, 20, 20, frmDepot.picMap.canvas, cell.tileX * 20, cell.tileY * 20,
               RasterOp::SRCCOPY);
        return shown.SameAs(tile);
    }
};

TEST_F(StoryTest, FromTheLandingCornerIntoTheVillage) {
    StartGame();
    Unit& soldier = UnitTable[4];
    ASSERT_EQ(soldier.cellX, 1);
    ASSERT_EQ(soldier.cellY, 5);
    soldier.agility = 74;
    soldier.strength = 60;
    soldier.time = 148;
    soldier.energy = 100;
    soldier.facing = East;
    soldier.stance = Stand;
    Click(1, 5);
    ASSERT_EQ(curUnit, 4);

    // To the road before the first house: sixteen steps east, then one turn of 45 degrees and two steps
    // south-east.
    Click(19, 7);
    EXPECT_EQ(soldier.time, 148) << "east already";
    Click(19, 7);
    EXPECT_EQ(cellGrid[7][19].occupant, 4);
    EXPECT_EQ(soldier.time, 148 - 18 * 4 - 1);
    EXPECT_EQ(soldier.energy, 100 - 18);

    EndTurn();
    EXPECT_EQ(curTeam, SquadTeam);
    EXPECT_EQ(soldier.time, 148);
    EXPECT_EQ(soldier.energy, 82 + 30);

    // Through the door at (22, 6) onto the rug: two steps east, one north-east, two north, and three turns.
    Click(19, 7);
    ASSERT_EQ(curUnit, 4);
    Click(22, 4);
    const int turned = 148 - soldier.time;  // toward the click: from south-east to north-east
    EXPECT_EQ(turned, 2);
    Click(22, 4);
    EXPECT_EQ(soldier.facing, North);
    EXPECT_EQ(soldier.time, 148 - turned - 5 * 4 - 3);
    EXPECT_EQ(soldier.energy, 112 - 5);
    EXPECT_EQ(cellGrid[4][22].occupant, 4);
    EXPECT_EQ(cellGrid[5][1].occupant, -1);
}

TEST_F(StoryTest, AnEnemyIsSightedDrawnHiddenAndSightedAgain) {
    ClearField();
    PutUnit(0, 10, 10);
    PutUnit(1, 40, 30);
    PutUnit(20, 45, 30);
    UnitTable[0].facing = West;
    UnitTable[20].agility = 0;  // it stays where it is
    frmField.area.canvas.Fill(0);
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            BitBlt(frmField.area.canvas, x * 20, y * 20, 20, 20, frmDepot.picMap.canvas, 0, 0,
                   RasterOp::SRCCOPY);
    for (int unit : {0, 1, 20})
        BitBlt(frmField.picBuffer[unit], 0, 0, 20, 20, frmField.area.canvas, 0, 0, RasterOp::SRCCOPY);

    Click(40, 30);
    ASSERT_EQ(curUnit, 1);
    EXPECT_EQ(UnitTable[1].seen[0], 1);
    EXPECT_FALSE(IsBare(45, 30));
    EXPECT_EQ(frmField.imgEnemyCount.ToolTipText, "1 enemy sighted");

    EndTurn();
    ASSERT_EQ(curUnit, 0);
    EXPECT_EQ(UnitTable[1].seen[0], 0);
    EXPECT_TRUE(IsBare(45, 30));
    EXPECT_FALSE(frmField.imgEnemyCount.Visible);

    Click(40, 30);
    EXPECT_EQ(UnitTable[1].seen[0], 1);
    EXPECT_FALSE(IsBare(45, 30));
    EXPECT_TRUE(frmField.imgEnemyCount.Visible);
}

}  // namespace
