// Flights against a plain transcription of the walk; what bullets do to cells; the trail.
#include "combat/flight.h"

#include <cstdlib>
#include <random>
#include <set>

#include "combat/hits.h"
#include "data/map.h"
#include "data/terrain.h"
#include "field/geometry.h"
#include "platform/blit.h"
#include "platform/random.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"
#include "view/painting.h"

namespace {

using Cells = std::set<std::pair<int, int>>;

constexpr int Untouched =
    99;  // a block that no tile has: a bullet works the block out anew wherever it is applied

// The walk as the rule tells it, one pixel after the other.
void PlainFlight(int x, int y, int x1, int y1) {
    const auto sign = [](int v) { return v > 0 ? 1 : v < 0 ? -1 : 0; };
    const int sx = sign(x1 - x);
    const int sy = sign(y1 - y);
    const int ax = std::abs(x1 - x);
    const int ay = std::abs(y1 - y);
    const int major = ax > ay ? ax : ay;
    int ex = 0;
    int ey = 0;
    int steps = 0;
    int cx = 0;
    int cy = 0;
    for (int i = 0; i <= major + 1; ++i) {
        if (i == bulletHorizon) break;
        const int px = FloorDivide(x, 20);
        const int py = FloorDivide(y, 20);
        if (px != cx || py != cy) {
            if (steps > 10) {
                if (!InField(cx, cy)) break;
                BulletInCell(cx, cy);
            }
            steps = 0;
            if (bulletPower <= 0 || bulletAccur <= 0) break;
            cx = px;
            cy = py;
        }
        ++steps;
        ex += ax;
        ey += ay;
        if (ex > major) {
            ex -= major;
            x += sx;
        }
        if (ey > major) {
            ey -= major;
            y += sy;
        }
    }
    impactX = FloorDivide(x, 20);
    impactY = FloorDivide(y, 20);
    if (InField(impactX, impactY)) BulletInCell(impactX, impactY);
}

class FlightTest : public GameTest {
  protected:
    FlightTest() {
        ClearField();
        PutUnit(0, 3, 3);
        Load(100, 100, 2000);
    }

    static void Load(int power, int accur, int horizon) {
        bulletPower = power;
        bulletAccur = accur;
        bulletHorizon = horizon;
    }

    static void MarkUntouched() {
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x)
                cellGrid[y][x].block = Untouched;
    }

    static Cells Touched() {
        Cells cells;
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x)
                if (cellGrid[y][x].block != Untouched) cells.insert({x, y});
        return cells;
    }

    static void PutTile(int x, int y, int tileX, int tileY) {
        cellGrid[y][x].tileX = tileX;
        cellGrid[y][x].tileY = tileY;
        cellGrid[y][x].durab = CellDurab(tileX, tileY);
    }
};

TEST_F(FlightTest, TenThousandRandomLinesTreatTheCellsOfThePlainWalk) {
    std::mt19937 generator(31);
    const auto draw = [&generator](int low, int high) {
        return low + static_cast<int>(generator() % static_cast<unsigned>(high - low + 1));
    };
    constexpr std::pair<int, int> Obstacles[] = {{0, Trees}, {5, Wooden}, {11, Wooden}, {16, Wooden},
                                                 {3, Stone}, {14, Stone}, {0, Concrete}};
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            if (draw(0, 9) == 0) PutTile(x, y, Obstacles[draw(0, 6)].first, Obstacles[draw(0, 6)].second);
    const auto start = cellGrid;
    std::size_t treated = 0;
    for (unsigned line = 0; line < 10000; ++line) {
        const int x0 = draw(0, 1519);
        const int y0 = draw(0, 919);
        const int x1 = draw(-100, 1620);
        const int y1 = draw(-100, 1020);
        const int power = draw(0, 400);
        const int horizon = draw(0, 1500);
        const auto fly = [&](void (*flight)(int, int, int, int)) {
            cellGrid = start;
            MarkUntouched();
            SeedRandom(line);
            Load(power, 150, horizon);
            flight(x0, y0, x1, y1);
            return std::pair(Touched(), std::pair<int, int>(impactX, impactY));
        };
        const auto flown = fly(BulletFly);
        ASSERT_EQ(flown, fly(PlainFlight))
            << "line " << line << ": " << x0 << "," << y0 << " to " << x1 << "," << y1;
        treated += flown.first.size();
    }
    EXPECT_GT(treated, 50000U);
}

TEST_F(FlightTest, TheFieldIsAsBeforeButForChangedCells) {
    std::mt19937 generator(5);
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x) {
            if (generator() % 8 == 0) PutTile(x, y, generator() % 2 == 0 ? 11 : 5, Wooden);
            PaintCell(x, y, frmField.area.canvas);
        }
    for (int flight = 0; flight < 60; ++flight) {
        Picture before = frmField.area.canvas;
        const auto cells = cellGrid;
        Load(300, 300, 1500);
        BulletFly(static_cast<int>(generator() % 1520), static_cast<int>(generator() % 920),
                  static_cast<int>(generator() % 1520), static_cast<int>(generator() % 920));
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x)
                if (cells[y][x].tileX != cellGrid[y][x].tileX)
                    BitBlt(before, x * 20, y * 20, 20, 20, frmField.area.canvas, x * 20, y * 20,
                           RasterOp::SRCCOPY);
        ASSERT_TRUE(before.SameAs(frmField.area.canvas)) << "flight " << flight;
    }
}

TEST_F(FlightTest, TheTrailIsSeenForAMomentAndGoneBeforeEventsRun) {
    const Picture before = frmField.area.canvas;
    host.waited = {};
    BulletFly(100, 100, 300, 100);
    EXPECT_NEAR(static_cast<double>(host.waited.count()), 23.077e6, 1e3);
    EXPECT_TRUE(before.SameAs(frmField.area.canvas));
    BulletTrail("return");
    BulletTrail("store");
    EXPECT_TRUE(before.SameAs(frmField.area.canvas)) << "no trail without a flight";
}

TEST_F(FlightTest, FlightsEndForTheirReasons) {
    struct Case {
        const char* what;
        int power, horizon, x1;
        const char* log;
        int impactX;
    };
    // From the middle of cell (30, 20) eastward; a stone wall stands in column 40.
    constexpr Case Cases[] = {
        {"at the point aimed at", 100, 2000, 610 + 100, "", 35},
        {"one pixel past it", 100, 2000, 619, "", 31},
        {"at the horizon", 100, 60, 1500, "weapon horizon reached\n", 33},
        {"with no reach at all", 100, 0, 1500, "weapon horizon reached\n", 30},
        {"behind the stone", 100, 2000, 1500, "bullet exhausted\n", 41},
    };
    for (const Case& c : Cases) {
        frmField.cmbLog.List.clear();
        PutTile(40, 20, 3, Stone);
        Load(c.power, 100, c.horizon);
        BulletFly(610, 410, c.x1, 410);
        EXPECT_EQ(Log(), c.log) << c.what;
        EXPECT_EQ(impactX, c.impactX) << c.what;
    }
    frmField.cmbLog.List.clear();
    Load(100, 100, 2000);
    BulletFly(1510, 410, 1600, 410);
    EXPECT_EQ(Log(), "bullet out\n");
    EXPECT_EQ(impactX, 77);
}

TEST_F(FlightTest, ACellThatIsOnlyClippedIsNotHit) {
    // Straight down from row 7. The first pixel counts twice: from 151 on the line has ten counts there, from
    // 150 eleven.
    MarkUntouched();
    BulletFly(70, 151, 70, 250);
    EXPECT_EQ(Touched(), (Cells{{3, 8}, {3, 9}, {3, 10}, {3, 11}, {3, 12}}));
    MarkUntouched();
    BulletFly(70, 150, 70, 250);
    EXPECT_EQ(Touched(), (Cells{{3, 7}, {3, 8}, {3, 9}, {3, 10}, {3, 11}, {3, 12}}));
}

TEST_F(FlightTest, WoodWearsDownByThePowerLeftAndBreaks) {
    PutTile(33, 20, 5, Wooden);  // strength 80; a bullet loses 45 to 80 of its power first
    int shots = 0;
    while (cellGrid[20][33].tileX == 5 && shots < 20) {
        Load(100, 100, 2000);
        BulletFly(610, 410, 800, 410);
        ++shots;
        EXPECT_GE(shots * 55, 80 - cellGrid[20][33].durab);
    }
    EXPECT_GE(shots, 2) << "one bullet keeps 55 at the most";
    EXPECT_EQ(cellGrid[20][33].tileX, 81);
    EXPECT_EQ(cellGrid[20][33].block, 0);
    Load(100, 100, 2000);
    BulletFly(610, 410, 800, 410);
    EXPECT_EQ(bulletPower, 100) << "the gap costs nothing";
}

TEST_F(FlightTest, GlassBreaksOnceAndFurnitureAtOnce) {
    PutTile(33, 20, 12, Wooden);
    Load(100, 100, 2000);
    BulletFly(610, 410, 800, 410);
    EXPECT_EQ(cellGrid[20][33].tileX, 14);
    EXPECT_EQ(cellGrid[20][33].durab, 0);
    EXPECT_GE(bulletPower, 90);
    EXPECT_EQ(host.sounds.back().fileName, "\\wav\\bump\\glass2.wav");
    Load(100, 100, 2000);
    BulletFly(610, 410, 800, 410);
    EXPECT_EQ(cellGrid[20][33].tileX, 14);
    EXPECT_EQ(bulletPower, 100);
    PutTile(33, 20, 17, Wooden);
    Load(100, 100, 2000);
    BulletFly(610, 410, 800, 410);
    EXPECT_EQ(cellGrid[20][33].tileX, 81);
}

TEST_F(FlightTest, ATargetCardIsShownAndCostsNothing) {
    PutTile(33, 20, 10, Various);
    host.pumps = 0;
    BulletFly(610, 410, 800, 410);
    EXPECT_EQ(host.pumps, 15 + 1);
    EXPECT_EQ(bulletPower, 100);
}

TEST_F(FlightTest, AUnitCostsABulletHitOrMissAndCiviliansAreSpared) {
    PutUnit(20, 33, 20);
    UnitTable[20].health = 1000;
    Load(100, 100, 2000);
    BulletFly(610, 410, 800, 410);
    EXPECT_LE(bulletPower, 60);
    EXPECT_GE(bulletPower, 45);
    EXPECT_LE(bulletAccur, 90);
    cellGrid[20][33].occupant = 41;
    Load(100, 100, 2000);
    BulletFly(610, 410, 800, 410);
    EXPECT_EQ(bulletPower, 100);
}

}  // namespace
