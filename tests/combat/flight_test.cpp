// Which cells a flight treats, what bullets do to cells and cells to bullets; the trail.
#include "combat/flight.h"

#include <algorithm>
#include <set>

#include "combat/things.h"
#include "combat/trail.h"
#include "data/terrain.h"
#include "platform/keys.h"
#include "state/audience.h"
#include "state/chance.h"
#include "state/operation.h"
#include "tests/support/game_test.h"
#include "view/forms.h"

namespace {

using Cells = std::set<std::pair<int, int>>;

class FlightTest : public GameTest {
  protected:
    FlightTest() {
        ClearField();
        PutUnit(0, 3, 3);
        Load(100, 2000);
    }

    static void Load(int power, int horizon) {
        bulletPower = power;
        bulletAccur = 100;
        bulletHorizon = horizon;
    }

    // The cells that a flight treats: a bullet works a cell's block out anew wherever it is applied.
    static Cells Treated(int x, int y, int x1, int y1) {
        constexpr int Untouched = 99;  // a block that no tile has
        for (auto& row : cellGrid)
            for (Cell& cell : row)
                cell.block = Untouched;
        BulletFly(x, y, x1, y1);
        Cells cells;
        for (int row = 0; row < FieldHeight; ++row)
            for (int column = 0; column < FieldWidth; ++column)
                if (cellGrid[row][column].block != Untouched) cells.insert({column, row});
        return cells;
    }
};

// The first pixel counts twice, a cell needs eleven to be hit, and the flight ends one pixel past its aim.
// The shooter in (3, 3) doesn't hit himself.
TEST_F(FlightTest, ACellThatIsOnlyClippedIsNotHit) {
    EXPECT_EQ(Treated(70, 151, 70, 250), (Cells{{3, 8}, {3, 9}, {3, 10}, {3, 11}, {3, 12}}));
    EXPECT_EQ(Treated(70, 150, 70, 250), (Cells{{3, 7}, {3, 8}, {3, 9}, {3, 10}, {3, 11}, {3, 12}}));
    EXPECT_EQ(Treated(50, 50, 150, 150), (Cells{{2, 2}, {4, 4}, {5, 5}, {6, 6}, {7, 7}}));
    // Down one pixel for two: ten in each cell that a corner parts.
    EXPECT_EQ(Treated(50, 50, 150, 100), (Cells{{2, 2}, {4, 3}, {6, 4}, {7, 5}}));
}

TEST_F(FlightTest, FlightsEndForTheirReasons) {
    struct Case {
        const char* what;
        int x0, power, horizon, x1;
        const char* log;
        int impactX;
    };
    // Eastward along row 20; a stone wall stands in column 40.
    constexpr Case Cases[] = {
        {"one pixel past it", 610, 100, 2000, 619, "", 31},
        {"at the horizon", 610, 100, 60, 1500, "weapon horizon reached\n", 33},
        {"a pixel before a cell", 610, 100, 50, 1500, "weapon horizon reached\n", 32},
        {"behind the stone", 610, 100, 2000, 1500, "bullet exhausted\n", 41},
        {"off the field", 1510, 100, 2000, 1600, "bullet out\n", 77},
    };
    for (const Case& c : Cases) {
        frmField.cmbLog.List.clear();
        PutTile(40, 20, 3, Stone);
        Load(c.power, c.horizon);
        BulletFly(c.x0, 410, c.x1, 410);
        EXPECT_EQ(Log(), c.log) << c.what;
        EXPECT_EQ(impactX, c.impactX) << c.what;
    }
}

TEST_F(FlightTest, EachCellTakesItsToll) {
    struct Case {
        const char* what;
        int tileX, tileY, occupant;
        int powerLow, powerHigh, accurLow, accurHigh;  // what is left of 100
        int tileAfter;
    };
    constexpr Case Cases[] = {
        {"open ground", 0, Surface, -1, 100, 100, 100, 100, 0},
        {"trees", 0, Trees, -1, 80, 92, 90, 95, 0},
        {"a wooden wall", 5, Wooden, -1, 20, 55, 60, 80, 5},
        {"glass", 12, Wooden, -1, 90, 95, 85, 95, 14},
        {"furniture", 17, Wooden, -1, 60, 75, 50, 80, 81},
        {"rock", 3, Stone, -1, 0, 0, 0, 0, 3},
        {"rubble", 14, Stone, -1, 20, 100, 40, 100, 14},
        {"a gap in the rocks", 16, Stone, -1, 100, 100, 100, 100, 16},
        {"a soldier", 0, Surface, 20, 45, 60, 80, 90, 0},
        {"the first civilian", 0, Surface, 40, 45, 60, 80, 90, 0},
        {"any other civilian", 0, Surface, 41, 100, 100, 100, 100, 0},
    };
    for (const Case& c : Cases) {
        SeedRandom(1);
        std::set<int> power;
        std::set<int> accur;
        for (int i = 0; i < 500; ++i) {
            PutTile(33, 20, c.tileX, c.tileY);
            cellGrid[20][33].durab = 80;
            if (c.occupant >= 0) PutUnit(c.occupant, 33, 20);
            UnitTable[20].health = UnitTable[40].health = 1000;
            Load(100, 2000);
            BulletInCell(33, 20);
            power.insert(bulletPower);
            accur.insert(bulletAccur);
            ASSERT_EQ(cellGrid[20][33].tileX, c.tileAfter) << c.what;
        }
        EXPECT_EQ(*power.begin(), c.powerLow) << c.what;
        EXPECT_EQ(*power.rbegin(), c.powerHigh) << c.what;
        EXPECT_EQ(*accur.begin(), c.accurLow) << c.what;
        EXPECT_EQ(*accur.rbegin(), c.accurHigh) << c.what;
    }
}

TEST_F(FlightTest, TheTrailIsSeenForAMomentAndGoneBeforeEventsRun) {
    const Picture before = frmField.area.canvas;
    host.atPump = [&before] { EXPECT_TRUE(frmField.area.canvas.SameAs(before)); };
    BulletFly(610, 410, 800, 410);
    EXPECT_EQ(host.pumps, 1);
    EXPECT_EQ(host.waited, std::chrono::microseconds(23'077));
}

TEST_F(FlightTest, AMissionThatEndedInMidFlightLeavesTheNextNoTrail) {
    frmField.area.canvas.SetPixel(610, 410, Rgb(200, 0, 0));
    TheAudience().TrailDrawn(610, 410);
    ResetForms();
    const Picture before = frmField.area.canvas;
    BulletTrail("return");
    EXPECT_TRUE(frmField.area.canvas.SameAs(before));
}

// A card that turns lets events in.
TEST_F(FlightTest, AShotInTheMiddleOfAnotherLeavesItItsTrailAndStrength) {
    curUnit = 0;
    UnitTable[0].items[0].name = "m4";
    RefreshHand();
    UnitTable[0].handRounds = 30;
    cellGrid[3][8].tileY = Various;
    cellGrid[3][8].tileX = 10;
    Load(100, 2000);
    host.Queue(PressOn(3, 13, RightButton), host.pumps + 2);
    RunOperation([] { BulletFly(80, 70, 270, 70); });
    EXPECT_EQ(UnitTable[0].handRounds, 29) << "the other shot was fired";
    EXPECT_EQ(bulletPower, 100);
    const Picture& area = frmField.area.canvas;
    for (int y = 0; y < area.Height(); ++y)
        EXPECT_EQ(std::count(area.Row(y), area.Row(y) + area.Width(), Rgb(128, 128, 128)), 0) << "row " << y;
}

}  // namespace
