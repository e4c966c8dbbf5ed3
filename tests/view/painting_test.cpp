// What is painted on the field: cells in layers, units, their moves, tree tops, and the view that follows.
#include "view/painting.h"

#include "combat/explosions.h"
#include "combat/things.h"
#include "data/terrain.h"
#include "platform/blit.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/depot_form.h"
#include "view/events.h"
#include "view/field_form.h"
#include "view/overlays.h"
#include "view/scrolling.h"
#include "view/unit_painting.h"

namespace {

Picture Cut(const Picture& from, int x, int y) {
    Picture cell(20, 20);
    BitBlt(cell, 0, 0, 20, 20, from, x, y, RasterOp::SRCCOPY);
    return cell;
}

// `under` with the sprite at (x, y) of `sheet` over it: the sheet's colour wherever its mask is black.
Picture WithSprite(Picture under, const Picture& sheet, int x, int y, int maskBelow) {
    for (int j = 0; j < 20; ++j)
        for (int i = 0; i < 20; ++i)
            if (sheet.Pixel(x + i, y + maskBelow + j) == Rgb(0, 0, 0))
                under.SetPixel(i, j, sheet.Pixel(x + i, y + j));
    return under;
}

Picture WithSoldier(const Picture& under, const Unit& unit) {
    return WithSprite(under, frmDepot.picPeople.canvas, (unit.team * 4 + unit.stance) * 20, unit.facing * 20,
                      160);
}

class PaintingTest : public GameTest {
  protected:
    PaintingTest() {
        ClearField();
        area.Fill(Rgb(0, 84, 0));
    }

    // A unit of cell (6, 5) that has what lies there for its background.
    Unit& Put(int index) {
        PutUnit(index, 6, 5);
        BitBlt(frmField.picBuffer[index], 0, 0, 20, 20, area, 120, 100, RasterOp::SRCCOPY);
        curUnit = index;
        return UnitTable[index];
    }

    Picture Shown(int x = 6, int y = 5) const { return Cut(area, x * 20, y * 20); }
    static Picture Tile(int column, int row) { return Cut(frmDepot.picMap.canvas, column * 20, row * 20); }

    Picture& area = frmField.area.canvas;
};

TEST_F(PaintingTest, ACellShowsItsTileOrTheOneAskedFor) {
    PutTile(6, 5, 3, Wooden);
    PaintCell(6, 5, area, 15, Wooden);
    EXPECT_TRUE(Shown().SameAs(Tile(15, Wooden)));
    for (const auto& [column, row] : {std::pair<int, int>{-1, Concrete}, {15, -1}}) {
        area.Fill(0);
        PaintCell(6, 5, area, column, row);
        EXPECT_TRUE(Shown().SameAs(Tile(3, Wooden))) << "one of the two given is none given";
    }
    PutTile(6, 5, 81, Wooden);
    PaintCell(6, 5, area);
    EXPECT_TRUE(Shown().SameAs(Tile(15, Wooden))) << "what is left of broken wood";
}

TEST_F(PaintingTest, ARepaintedCellIsItsUnitsNewBackgroundWhoeverIsCurrent) {
    Unit& soldier = Put(0);
    PutTile(6, 5, 3, Wooden);
    cellGrid[5][6].occupant = 0;
    curUnit = 1;
    PaintCell(6, 5, area);
    EXPECT_TRUE(Shown().SameAs(WithSoldier(Tile(3, Wooden), soldier)));
    EXPECT_TRUE(frmField.picBuffer[0].SameAs(Tile(3, Wooden)));
    fieldBusy = True;
    PaintCell(6, 5, area, 0, 0);
    EXPECT_TRUE(Shown().SameAs(Tile(0, 0))) << "while the map is painted units are left out";
}

TEST_F(PaintingTest, APileAndAChargeLieOnTheirCellInThatOrder) {
    const Picture& sprites = frmDepot.picSprites.canvas;
    PutTile(6, 5, 3, Wooden);
    const Picture charge = WithSprite(Tile(3, Wooden), sprites, 12 * 20, 0, 160);
    ChargeAdd(6, 5);
    EXPECT_TRUE(Shown().SameAs(charge));
    WeaponAdd(6, 5);
    EXPECT_TRUE(Shown().SameAs(WithSprite(charge, sprites, 13 * 20, 0, 160)));
    area.Fill(0);
    PaintSprite(32 + 2, 120, 100);
    EXPECT_TRUE(Shown().SameAs(WithSprite(Picture(20, 20, 0), sprites, 40, 20, 160))) << "32 stand in a row";
}

TEST_F(PaintingTest, WhoIsVisibleFollowsFromTeamAndSightings) {
    PutUnit(1, 1, 1);
    for (int i : {20, 21, 22, 40})
        PutUnit(i, i, 2);
    UnitTable[1].seen[1] = UnitTable[2].seen[0] = UnitTable[0].seen[2] = 1;
    EXPECT_TRUE(ThisVisible(1, 1));
    EXPECT_FALSE(ThisVisible(20, 2)) << "only members of the squad count";
    EXPECT_TRUE(ThisVisible(21, 2));
    EXPECT_TRUE(ThisVisible(22, 2)) << "the captain as well as any other";
    EXPECT_FALSE(ThisVisible(40, 2)) << "civilians are never drawn";
    area.Fill(0);
    for (int x : {20, 21})
        PaintCell(x, 2, area);
    EXPECT_TRUE(Shown(20, 2).SameAs(Tile(0, 0)));
    EXPECT_TRUE(Shown(21, 2).SameAs(WithSoldier(Tile(0, 0), UnitTable[21])));
}

TEST_F(PaintingTest, AStepMovesTheUnitPixelByPixelAndLeavesTheFieldAsItWas) {
    area.SetPixel(6 * 20 + 3, 5 * 20 + 3, Rgb(1, 2, 3));
    Unit& soldier = Put(0);
    const Picture before = area;
    PaintUnit(0, 0);
    const int refreshes = host.refreshes;
    PaintUnit(1, 1);
    EXPECT_EQ(host.refreshes - refreshes, 20);
    EXPECT_EQ(soldier.pixelX, 140);
    EXPECT_EQ(cellGrid[5][6].occupant, -1);
    EXPECT_EQ(cellGrid[6][7].occupant, 0);
    BitBlt(area, 140, 120, 20, 20, frmField.picBuffer[0], 0, 0, RasterOp::SRCCOPY);
    EXPECT_TRUE(area.SameAs(before)) << "under the soldier the field is untouched";
    EXPECT_EQ(frmField.picAreaMapUnit[0].Left, 14);
}

TEST_F(PaintingTest, AStepTakesItsTimeByTheStance) {
    for (const auto& [stance, time] :
         {std::pair{Prone, 400}, {Crouch, 300}, {Stand, 200}, {Stance::Run, 100}}) {
        Put(0).stance = stance;
        host.waited = {};
        PaintUnit(1, 0);
        EXPECT_EQ(host.waited, std::chrono::milliseconds(time)) << stance;
    }
}

// Which pictures an overlay shows at its pumps, where it lies then, and how long all of it takes.
TEST_F(PaintingTest, ExplosionsAndTargetsPlayTheirFiveFrames) {
    struct Watcher : HeadlessHost {
        using HeadlessHost::HeadlessHost;
        void PumpEvents() override {
            const ImageControl& image = frmField.imgBlowup.Visible ? frmField.imgBlowup : frmField.imgCover;
            seen +=
                image.PictureName + " " + std::to_string(image.Left) + "," + std::to_string(image.Top) + "\n";
        }
        std::string seen;
    };
    Watcher watcher(nullptr);
    // A pass lasts 23.077 us: five frames of 1000, then three rounds of five frames of 100, 400 and 900.
    for (const auto& [show, name, frames, time] :
         {std::tuple{&ShowBlowup, "blowup", 5, 115'385}, {&ShowTarget, "target", 15, 161'539}}) {
        watcher.seen.clear();
        watcher.waited = {};
        show(1, -1, 3);
        std::string expected;
        for (int frame = 0; frame < frames; ++frame)
            expected +=
                "\\pic\\" + std::string(name) + "\\0" + std::to_string(frame % 5 + 1) + ".gif -20,60\n";
        EXPECT_EQ(watcher.seen, expected);
        EXPECT_EQ(watcher.waited, std::chrono::microseconds(time));
    }
    for (const ImageControl* image : {&frmField.imgBlowup, &frmField.imgCover})
        EXPECT_TRUE(image->Picture == nullptr && !image->Visible && image->Left == 660 && image->Top == 20);
    InstallHost(&host);
}

TEST_F(PaintingTest, AnUnseenMoveIsSilentAndLeavesNoTrace) {
    Put(20);
    const Picture before = area;
    PaintUnit(-1, 0);
    EXPECT_TRUE(area.SameAs(before));
    EXPECT_EQ(cellGrid[5][5].occupant, 20);
    EXPECT_TRUE(host.sounds.empty());
}

TEST_F(PaintingTest, AWalkerAwayFromTheMiddlePullsTheViewAlong) {
    struct Case {
        int x, dx, scrolled, scrolledTo;
    };
    // Column 18 of the window is its middle.
    for (const Case& c :
         {Case{30, 1, 0, 20}, {30, -1, 200, 200}, {20, -1, 200, 180}, {20, 1, 200, 200}, {60, 1, 760, 760}}) {
        PutUnit(0, c.x, 11);
        SetScrollValue(frmField.HScrollArea, c.scrolled);
        PaintUnit(c.dx, 0);
        EXPECT_EQ(frmField.HScrollArea.Value, c.scrolledTo) << c.x << " " << c.dx;
    }
}

TEST_F(PaintingTest, TheMarksAtTheEdgesFollowTheSoldierAndNotAScrollByHand) {
    Put(0);
    const auto marks = [] {
        return std::pair(frmField.imgMarkH.Left - ViewLeft, frmField.imgMarkV.Top - ViewTop);
    };
    PaintUnit(0, 0);
    Dispatch({EventKind::Change, "frmField.HScrollArea", -1, 40});
    Dispatch({EventKind::Change, "frmField.VScrollArea", -1, 60});
    EXPECT_EQ(marks(), std::pair(120, 100));
    PaintUnit(0, 0);
    EXPECT_EQ(marks(), std::pair(80, 40));
}

TEST_F(PaintingTest, ASoldierInTheWoodsStandsUnderTheTreeTops) {
    PutTile(7, 5, 13, Trees);
    const Unit& soldier = Put(0);
    PaintUnit(1, 0);
    EXPECT_TRUE(frmField.imgCover.Visible);
    const Picture under = WithSoldier(frmField.picBuffer[0], soldier);
    EXPECT_TRUE(Shown(7, 5).SameAs(WithSprite(under, frmField.picForest.canvas, 260, 0, 20)));
    PaintUnit(1, 0);
    EXPECT_FALSE(frmField.imgCover.Visible);
}

}  // namespace
