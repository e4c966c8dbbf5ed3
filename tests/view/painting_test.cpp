// What is painted on the field: cells under their units, steps, explosions, and the marks at the edges.
#include "view/painting.h"
#include "field/moving.h"
#include "state/pace.h"

#include "data/terrain.h"
#include "platform/blit.h"
#include "tests/support/game_test.h"
#include "view/depot_form.h"
#include "view/field_view.h"
#include "view/overlays.h"
#include "view/unit_painting.h"

namespace {

Picture Cut(const Picture& from, int x, int y) {
    Picture cell(20, 20);
    BitBlt(cell, 0, 0, 20, 20, from, x, y, RasterOp::SRCCOPY);
    return cell;
}

class PaintingTest : public GameTest {
  protected:
    PaintingTest() { ClearField(); }

    static Unit& Put(int index) {
        PutUnit(index, 6, 5);
        curUnit = index;
        return UnitTable[index];
    }

    Picture Shown() const { return Cut(area, 120, 100); }
    static Picture Tile(int column, int row) { return Cut(frmDepot.picMap.canvas, column * 20, row * 20); }

    Picture& area = frmField.area.canvas;
};

TEST_F(PaintingTest, ARepaintedCellIsItsUnitsNewBackgroundWhoeverIsCurrent) {
    Put(0);
    PutTile(6, 5, 3, Wooden);
    cellGrid[5][6].occupant = 0;
    curUnit = 1;
    PaintCell(6, 5, area, -1, Concrete);  // one of the two given is none given
    EXPECT_FALSE(Shown().SameAs(Tile(3, Wooden))) << "the soldier stands there";
    EXPECT_TRUE(frmField.picBuffer[0].SameAs(Tile(3, Wooden)));
    cellGrid[5][6].tileX = BrokenTile;
    PaintCell(6, 5, area);
    EXPECT_TRUE(frmField.picBuffer[0].SameAs(Tile(15, Wooden))) << "its remains";
    frmField.mapIsPainted = true;
    PaintCell(6, 5, area, 0, 0);
    EXPECT_TRUE(Shown().SameAs(Tile(0, 0))) << "while the map is painted units are left out";
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
    UnitTable[20].status = Dead;
    PutUnit(3, 20, 2);
    EXPECT_TRUE(ThisVisible(20, 2)) << "a soldier on an enemy's body";
}

TEST_F(PaintingTest, AStepTakesItsTimeByTheStancePixelByPixel) {
    for (const auto& [stance, time] :
         {std::pair{Prone, 400}, {Crouch, 300}, {Stand, 200}, {Stance::Run, 100}}) {
        Put(0).stance = stance;
        host.waited = {};
        host.refreshes = 0;
        PaintUnit(1, 0);
        EXPECT_EQ(host.waited, std::chrono::milliseconds(time)) << stance;
        EXPECT_EQ(host.refreshes, 20) << "a pixel each";
    }
}

// Which pictures an overlay shows at its pumps, where it lies then, and how long all of it takes.
TEST_F(PaintingTest, ExplosionsAndTargetsPlayTheirFiveFrames) {
    std::string seen;
    host.atPump = [&seen] {
        const ImageControl& image = frmField.imgBlowup.Visible ? frmField.imgBlowup : frmField.imgCover;
        seen += image.PictureName + " " + std::to_string(image.Left) + "," + std::to_string(image.Top) + "\n";
    };
    // A pass lasts 23.077 us: five frames of 1000, then three rounds of five frames of 100, 400 and 900.
    for (const auto& [show, name, frames, time] :
         {std::tuple{&ShowBlowup, "blowup", 5, 115'385}, {&ShowTarget, "target", 15, 161'539}}) {
        seen.clear();
        host.waited = {};
        show(1, -1, 3);
        std::string expected;
        for (int frame = 0; frame < frames; ++frame)
            expected +=
                "\\pic\\" + std::string(name) + "\\0" + std::to_string(frame % 5 + 1) + ".gif -20,60\n";
        EXPECT_EQ(seen, expected);
        EXPECT_EQ(host.waited, std::chrono::microseconds(time));
    }
    for (const ImageControl* image : {&frmField.imgBlowup, &frmField.imgCover})
        EXPECT_TRUE(image->Picture == nullptr && !image->Visible && image->Left == 660 && image->Top == 20);
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

TEST_F(PaintingTest, BrokenWoodIsTheGroundOfWhoStandsThere) {
    cellGrid[5][6].tileX = BrokenTile;
    cellGrid[5][6].tileY = Wooden;
    Put(0);
    area.Fill(0);  // what was there last
    PaintCell(6, 5, area);
    EXPECT_TRUE(frmField.picBuffer[0].SameAs(Tile(15, Wooden)));
}

TEST_F(PaintingTest, WhoStandsOnABodyIsSeenByWhoHeIs) {
    for (const int body : {1, 20}) {
        PutUnit(body, 6, 5);
        UnitTable[body].status = Dead;
    }
    UnitTable[0].seen[0] = 1;
    PutUnit(22, 6, 5);
    EXPECT_FALSE(ThisVisible(6, 5)) << "an enemy whom nobody has sighted";
    UnitTable[0].seen[2] = 1;
    EXPECT_TRUE(ThisVisible(6, 5));
    UnitTable[22].cellX = 7;
    UnitTable[0].seen = {};
    EXPECT_TRUE(ThisVisible(6, 5)) << "a soldier's body";
}

}  // namespace
