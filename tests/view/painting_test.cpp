// What is painted on the field: cells in layers, units, their moves, tree tops, and the view that follows.
#include "view/painting.h"

#include "data/terrain.h"
#include "platform/blit.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/depot_form.h"
#include "view/field_form.h"
#include "view/mini_map.h"
#include "view/overlays.h"
#include "view/scrolling.h"
#include "view/sound.h"
#include "view/unit_painting.h"

namespace {

using std::chrono::milliseconds;

class PaintingTest : public GameTest {
  protected:
    PaintingTest() {
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x)
                cellGrid[y][x].occupant = -1;
        for (int i = 0; i < UnitPlaces; ++i)  // nobody stands in the corner
            UnitTable[i].cellX = UnitTable[i].cellY = 200;
        teamLast[SquadTeam] = teamLast[EnemyTeam] = 0;
        area.Fill(Rgb(0, 84, 0));
    }

    static void PutUnit(int index, int x, int y) {
        Unit& unit = UnitTable[index];
        unit.team = index / TeamStride;
        unit.cellX = x;
        unit.cellY = y;
        unit.pixelX = x * CellSize;
        unit.pixelY = y * CellSize;
        unit.status = Active;
        cellGrid[y][x].occupant = index;
        BitBlt(frmField.picBuffer[index], 0, 0, 20, 20, frmField.area.canvas, x * 20, y * 20,
               RasterOp::SRCCOPY);
    }

    Picture CellPicture(int x, int y) const {
        Picture cell(20, 20);
        BitBlt(cell, 0, 0, 20, 20, area, x * 20, y * 20, RasterOp::SRCCOPY);
        return cell;
    }

    static Picture Tile(int column, int row) {
        Picture tile(20, 20);
        BitBlt(tile, 0, 0, 20, 20, frmDepot.picMap.canvas, column * 20, row * 20, RasterOp::SRCCOPY);
        return tile;
    }

    // `under` with the sprite at (x, y) of `sheet` over it: the sheet's colour wherever its mask is black.
    static Picture WithSprite(const Picture& under, const Picture& sheet, int x, int y, int maskX,
                              int maskY) {
        Picture shown = under;
        for (int j = 0; j < 20; ++j)
            for (int i = 0; i < 20; ++i)
                if (sheet.Pixel(maskX + i, maskY + j) == Rgb(0, 0, 0))
                    shown.SetPixel(i, j, sheet.Pixel(x + i, y + j));
        return shown;
    }

    static Picture WithSoldier(const Picture& under, const Unit& unit) {
        const int column = (unit.team * 4 + unit.stance) * 20;
        const int row = unit.facing * 20;
        return WithSprite(under, frmDepot.picPeople.canvas, column, row, column, row + 160);
    }

    Picture& area = frmField.area.canvas;
};

TEST_F(PaintingTest, ACellShowsItsTileOrTheOneAskedFor) {
    cellGrid[5][6].tileX = 3;
    cellGrid[5][6].tileY = Wooden;
    PaintCell(6, 5, area);
    EXPECT_TRUE(CellPicture(6, 5).SameAs(Tile(3, Wooden)));
    PaintCell(6, 5, area, 15, Wooden);
    EXPECT_TRUE(CellPicture(6, 5).SameAs(Tile(15, Wooden)));
    EXPECT_EQ(cellGrid[5][6].tileX, 3);
    PaintCell(6, 5, area, -1, Concrete);
    EXPECT_TRUE(CellPicture(6, 5).SameAs(Tile(3, Wooden))) << "one of the two given is none given";
}

TEST_F(PaintingTest, APileIsShownOverACharge) {
    const Picture& sprites = frmDepot.picSprites.canvas;
    teamLast[ChargeList] = teamLast[PileList] = 1;
    for (int list : {ChargeBase, PileBase})
        for (int i : {0, 1}) {
            UnitTable[list + i].cellX = 6;
            UnitTable[list + i].cellY = 5;
        }
    PaintCell(6, 5, area);
    Picture expected = WithSprite(Tile(0, 0), sprites, ChargeSprite * 20, 0, ChargeSprite * 20, 160);
    expected = WithSprite(expected, sprites, PileSprite * 20, 0, PileSprite * 20, 160);
    EXPECT_TRUE(CellPicture(6, 5).SameAs(expected));
    EXPECT_FALSE(expected.SameAs(Tile(0, 0)));
}

TEST_F(PaintingTest, AnUnseenEnemysCellStaysBareAndASightedOnesDoesNot) {
    PaintCell(6, 5, area);
    PutUnit(20, 6, 5);
    PaintCell(6, 5, area);
    EXPECT_TRUE(CellPicture(6, 5).SameAs(Tile(0, 0)));
    UnitTable[0].seen[0] = 1;
    curUnit = 20;
    PaintCell(6, 5, area);
    EXPECT_TRUE(CellPicture(6, 5).SameAs(WithSoldier(Tile(0, 0), UnitTable[20])));
    EXPECT_EQ(frmField.picAreaMapUnit[20].BackColor, Rgb(255, 66, 66));
}

TEST_F(PaintingTest, WhileTheMapIsPaintedNeitherUnitsNorTheMiniMapAreTouched) {
    PutUnit(0, 6, 5);
    const Picture miniMap = frmField.picAreaMap.canvas;
    fieldBusy = True;
    PaintCell(6, 5, area);
    EXPECT_TRUE(CellPicture(6, 5).SameAs(Tile(0, 0)));
    EXPECT_TRUE(frmField.picAreaMap.canvas.SameAs(miniMap));
}

TEST_F(PaintingTest, ADeadSoldierShowsTheDeadSprite) {
    PutUnit(0, 6, 5);
    UnitTable[0].status = Dead;
    const Picture under = CellPicture(6, 5);
    PaintUnit(0, 0);
    const Picture& sprites = frmDepot.picSprites.canvas;
    EXPECT_TRUE(
        CellPicture(6, 5).SameAs(WithSprite(under, sprites, DeadSprite * 20, 0, DeadSprite * 20, 160)));
    EXPECT_TRUE(host.sounds.empty());
}

TEST_F(PaintingTest, WhoIsVisibleFollowsFromTeamAndSightings) {
    PutUnit(3, 1, 1);
    PutUnit(20, 2, 2);
    PutUnit(21, 4, 4);
    UnitTable[40].cellX = UnitTable[40].cellY = 5;
    teamLast[SquadTeam] = 3;
    UnitTable[2].seen[1] = 1;
    EXPECT_TRUE(ThisVisible(1, 1));
    EXPECT_FALSE(ThisVisible(2, 2));
    EXPECT_TRUE(ThisVisible(4, 4));
    EXPECT_FALSE(ThisVisible(5, 5)) << "civilians are never drawn";
    EXPECT_FALSE(ThisVisible(9, 9));
    teamLast[SquadTeam] = 1;
    EXPECT_FALSE(ThisVisible(4, 4)) << "only members of the squad count";
}

TEST_F(PaintingTest, AStepMovesTheUnitPixelByPixelAndLeavesTheFieldAsItWas) {
    area.SetPixel(6 * 20 + 3, 5 * 20 + 3, Rgb(1, 2, 3));
    PutUnit(0, 6, 5);
    UnitTable[0].facing = SouthEast;
    const Picture before = area;
    PaintUnit(0, 0);
    const int refreshes = host.refreshes;
    PaintUnit(1, 1);
    EXPECT_EQ(host.refreshes - refreshes, 20);
    EXPECT_EQ(UnitTable[0].pixelX, 140);
    EXPECT_EQ(UnitTable[0].pixelY, 120);
    EXPECT_EQ(cellGrid[5][6].occupant, -1);
    EXPECT_EQ(cellGrid[6][7].occupant, 0);
    EXPECT_FALSE(area.SameAs(before));
    BitBlt(area, 140, 120, 20, 20, frmField.picBuffer[0], 0, 0, RasterOp::SRCCOPY);
    EXPECT_TRUE(area.SameAs(before)) << "under the soldier the field is untouched";
    EXPECT_EQ(frmField.picAreaMapUnit[0].Left, 14);
    EXPECT_EQ(frmField.picAreaMapUnit[0].Top, 12);
    EXPECT_EQ(frmField.imgMarkH.Left, 20 + 140);
    EXPECT_EQ(frmField.imgMarkV.Top, 10 + 120);
}

TEST_F(PaintingTest, AStepSoundsTwiceAndTakesItsTimeByStance) {
    struct Case {
        int stance;
        milliseconds time;
    };
    constexpr Case Cases[] = {{Prone, milliseconds(400)},
                              {Crouch, milliseconds(300)},
                              {Stand, milliseconds(200)},
                              {Stance::Run, milliseconds(100)}};
    for (const Case& c : Cases) {
        PutUnit(0, 6, 5);
        UnitTable[0].stance = c.stance;
        host.waited = {};
        host.sounds.clear();
        PaintUnit(1, 0);
        EXPECT_EQ(host.waited, c.time) << c.stance;
        ASSERT_EQ(host.sounds.size(), 2U);
        EXPECT_EQ(host.sounds[1].fileName, "\\wav\\bump/step2.wav");
    }
}

TEST_F(PaintingTest, AnUnseenMoveIsSilentAndLeavesNoTrace) {
    PutUnit(20, 6, 5);
    curUnit = 20;
    const Picture before = area;
    PaintUnit(-1, 0);
    EXPECT_TRUE(area.SameAs(before));
    EXPECT_EQ(UnitTable[20].cellX, 5);
    EXPECT_EQ(cellGrid[5][5].occupant, 20);
    EXPECT_TRUE(host.sounds.empty());
    EXPECT_EQ(host.refreshes, 0);
    EXPECT_FALSE(frmField.picAreaMapUnit[20].Visible);
}

TEST_F(PaintingTest, AWalkerAwayFromTheMiddlePullsTheViewAlong) {
    struct Case {
        int x, dx, scrolled, scrolledTo;
    };
    constexpr Case Cases[] = {
        {30, 1, 0, 20},                         // right of the middle, going right
        {30, -1, 200, 200},                     // right of the middle at scroll 200, going back
        {20, -1, 200, 180},                     // left of it, going left
        {20, 1, 200, 200},  {60, 1, 760, 760},  // at the end of the bar
        {5, -1, 0, 0},
    };
    for (const Case& c : Cases) {
        PutUnit(0, c.x, 11);
        SetScrollValue(frmField.HScrollArea, c.scrolled);
        PaintUnit(c.dx, 0);
        EXPECT_EQ(frmField.HScrollArea.Value, c.scrolledTo) << c.x << " " << c.dx;
        EXPECT_EQ(frmField.area.Left, 20 - c.scrolledTo);
    }
    EXPECT_EQ(frmField.VScrollArea.Value, 0);
}

TEST_F(PaintingTest, ASoldierInTheWoodsStandsUnderTheTreeTops) {
    for (int x : {7, 8})
        cellGrid[5][x].tileY = Trees;
    cellGrid[5][7].tileX = 13;
    cellGrid[5][8].tileX = 2;
    PutUnit(0, 6, 5);
    PaintUnit(1, 0);
    EXPECT_TRUE(frmField.imgCover.Visible);
    EXPECT_EQ(frmField.imgCover.PictureName, "\\pic\\forest\\13.gif");
    EXPECT_EQ(frmField.imgCover.Left, 140);
    const Picture tops = frmField.picForest.canvas;
    const Picture soldier = WithSoldier(frmField.picBuffer[0], UnitTable[0]);
    EXPECT_TRUE(CellPicture(7, 5).SameAs(WithSprite(soldier, tops, 260, 0, 260, 20)));
    PaintUnit(1, 0);
    EXPECT_EQ(frmField.imgCover.PictureName, "\\pic\\forest\\02.gif");
    PaintUnit(1, 0);
    EXPECT_FALSE(frmField.imgCover.Visible);
    EXPECT_EQ(frmField.imgCover.Picture, nullptr);
    EXPECT_EQ(frmField.imgCover.Left, 660);
    EXPECT_EQ(frmField.imgCover.Top, 20);
}

TEST_F(PaintingTest, OverlaysRunTheirFramesAndGoToRest) {
    ShowBlowup(1, -1, -1);
    EXPECT_EQ(host.pumps, 5);
    EXPECT_FALSE(frmField.imgBlowup.Visible);
    EXPECT_EQ(frmField.imgBlowup.Picture, nullptr);
    EXPECT_EQ(frmField.imgBlowup.Left, 660);
    EXPECT_EQ(frmField.imgBlowup.Top, 20);
    ShowTarget(1, 4, 4);
    EXPECT_EQ(host.pumps, 5 + 15);
    EXPECT_FALSE(frmField.imgCover.Visible);
}

TEST_F(PaintingTest, DelaysGrowWithTheSquareAndKeepTheirProportions) {
    const auto length = [this](int n, const char* mode) {
        host.waited = {};
        Delay(n, mode);
        return host.waited.count();
    };
    EXPECT_EQ(length(20, "normal"), 5'000'000);
    EXPECT_EQ(host.pumps, 0) << "no event runs in a plain wait";
    const auto unit = length(1, "mode1");
    EXPECT_EQ(host.pumps, 1);
    EXPECT_EQ(length(3, "mode1"), 9 * unit);
    EXPECT_NEAR(static_cast<double>(length(10, "mode2")), 10.0 * static_cast<double>(unit), 1);
    EXPECT_EQ(length(5, "walk"), 0);
    EXPECT_EQ(length(0, "mode1"), 0);
    EXPECT_EQ(host.pumps, 3) << "a wait of no length pumps nothing";
    const auto flash = 5 * (length(3, "mode1") + length(2, "mode1"));
    EXPECT_NEAR(static_cast<double>(flash), 1.5e9, 1e6);
}

TEST_F(PaintingTest, AThumbBetweenCellsShowsWholeCells) {
    ScrollThumb(frmField.HScrollArea, 33);
    EXPECT_EQ(frmField.HScrollArea.Value, 20);
    EXPECT_EQ(frmField.area.Left, 0);
    ScrollThumb(frmField.VScrollArea, 460);
    EXPECT_EQ(frmField.area.Top, 10 - 460);
}

}  // namespace
