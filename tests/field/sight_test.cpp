// The sight fan against a plain transcription of its rule, and what units see of one another.
#include "field/sight.h"

#include <cmath>

#include "field/geometry.h"
#include "field/sightings.h"
#include "state/setup.h"
#include "state/state.h"
#include "state/turns.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

struct Visit {
    int x, y;
    bool operator==(const Visit&) const = default;
};

// The rule as it is told, step by step, in single precision.
std::vector<Visit> PlainLook(const Unit& unit) {
    std::vector<Visit> visits;
    const float perception = 150;
    const auto k = static_cast<float>(WayOf(unit.facing).angleStep);
    const float a0 = k * 0.785398F;
    const float h = (perception / 2 - 0.15F) * 0.017453F;
    int lastX = 0;
    int lastY = 0;
    for (float a = a0 - h; a <= a0 + h; a += 0.1F) {
        const float tmax = perception / 60 + 1;
        for (float t = 0.2F; t <= tmax; t += 0.1F) {
            const float px = static_cast<float>(unit.pixelX + 10) + t * std::cos(a) * 150;
            const float py = static_cast<float>(unit.pixelY + 10) + t * std::sin(a) * 150;
            const int cx = static_cast<int>(std::floor(px / 20));
            const int cy = static_cast<int>(std::floor(py / 20));
            if (cx == lastX && cy == lastY) continue;
            lastX = cx;
            lastY = cy;
            visits.push_back({cx, cy});
            if (!CellOpen("view", cx, cy)) break;
        }
    }
    return visits;
}

std::vector<Visit> FastLook(const Unit& unit) {
    std::vector<Visit> visits;
    CastFan(unit.facing, unit.cellX, unit.cellY, [&](int x, int y) {
        visits.push_back({x, y});
        return CellOpen("view", x, y);
    });
    return visits;
}

class SightTest : public GameTest {
  protected:
    static void Look(int unit) {
        curUnit = unit;
        UnitLookEnemies();
    }
};

TEST_F(SightTest, EveryFacingFromEveryCellOfTheMapExaminesTheSameCells) {
    StartGame();
    Unit unit;
    for (int facing = 0; facing < FacingCount; ++facing)
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x) {
                unit.facing = facing;
                unit.cellX = x;
                unit.cellY = y;
                unit.pixelX = x * 20;
                unit.pixelY = y * 20;
                ASSERT_EQ(FastLook(unit), PlainLook(unit)) << x << ", " << y << " facing " << facing;
            }
}

TEST_F(SightTest, TheFanHas27RaysOf34Samples) {
    // Far inside open ground no ray is cut: each reaches 525 pixels, 26 cells and a quarter.
    int rays = 0;
    int farthest = 0;
    for (const Ray& ray : SightFan(East, 40, 20)) {
        ++rays;
        for (const FanStep& step : ray)
            farthest = std::max<int>(farthest, step.dx);
    }
    EXPECT_EQ(rays, 27);
    EXPECT_EQ(farthest, 26);
}

TEST_F(SightTest, WhoStandsWhereIsSeenOrNot) {
    struct Case {
        const char* what;
        std::vector<std::string> field;
        bool seen;
    };
    const Case cases[] = {
        {"right ahead", {"...", "0a.", "..."}, true},
        {"beside", {".a.", ".0.", "..."}, true},
        {"behind", {"...", "a0.", "..."}, false},
        {"in trees that stop the view", {".....", "0..T.", "..a.."}, true},
        {"behind a wall", {"..#..", "0.#a.", "..#.."}, false},
        {"over furniture", {"..=..", "0.=a.", "..=.."}, true},
    };
    for (const Case& c : cases) {
        ResetState();
        ClearField();
        DrawField(30, 20, c.field);
        Look(0);
        EXPECT_EQ(UnitTable[0].seen[0] == 1, c.seen) << c.what;
        EXPECT_EQ(UnitTable[0].perception, 150);
    }
}

TEST_F(SightTest, AnEnemyInACellThatStopsTheViewIsSighted) {
    ClearField();
    DrawField(30, 20, {"0...T"});
    PutUnit(20, 34, 20);
    Look(0);
    EXPECT_EQ(UnitTable[0].seen[0], 1);
}

TEST_F(SightTest, TheCounterCountsEachEnemyOnceAndForgetsWhenCleared) {
    ClearField();
    DrawField(30, 20, {"0....", "...a.", "...b."});
    Look(0);
    Look(0);
    EXPECT_EQ(frmField.enemyCount, 2);
    EXPECT_TRUE(frmField.imgEnemyCount.Visible);
    EXPECT_EQ(frmField.imgEnemyCount.PictureName, "\\pic\\counter\\02.bmp");
    EXPECT_EQ(frmField.imgEnemyCount.ToolTipText, "2 enemies sighted");
    EnemyCounter("clear");
    EXPECT_EQ(frmField.enemyCount, 0);
    EXPECT_FALSE(frmField.imgEnemyCount.Visible);
    UnitTable[21].status = Dead;
    Look(0);
    EXPECT_EQ(frmField.imgEnemyCount.ToolTipText, "1 enemy sighted");
    EXPECT_EQ(UnitTable[0].seen[1], 0) << "the dead are not sighted";
}

TEST_F(SightTest, ALookByAnyUnitAddsToTheOneCounter) {
    ClearField();
    DrawField(30, 20, {"0...a"});
    UnitTable[20].facing = West;
    Look(0);
    Look(20);
    EXPECT_EQ(frmField.enemyCount, 2);
    curUnit = 20;
    EXPECT_TRUE(aiSeeCheck());
}

TEST_F(SightTest, ClicksOnTheCounterGoRoundTheSightedOnes) {
    ClearField();
    DrawField(30, 20, {"0....", "..abc"});
    UnitTable[21].status = Dead;
    Look(0);
    const auto click = [] { Dispatch({EventKind::Click, "frmField.imgEnemyCount"}); };
    click();
    EXPECT_EQ(frmField.lastSeenEnemy, 2) << "from place 0 on, past the dead one";
    EXPECT_EQ(frmField.imgEnemyCount.ToolTipText, "last seen enemy #2");
    EXPECT_EQ(frmField.shpSelect.Left, 34 * 20);
    click();
    EXPECT_EQ(frmField.lastSeenEnemy, 0);
    UnitTable[0].seen[0] = UnitTable[0].seen[2] = 0;
    click();
    EXPECT_EQ(frmField.lastSeenEnemy, 0) << "what another unit saw is nowhere to be found";
    EnemyCounter("clear");
    UnitTable[0].seen[2] = 1;
    click();
    EXPECT_EQ(frmField.lastSeenEnemy, 0) << "a hidden counter takes no clicks";
}

TEST_F(SightTest, AUnitIsBroughtIntoViewAndFlashed) {
    struct Case {
        int x, y, left, top;
    };
    // The field is 1520 by 920: a quarter of it less 20 and 10, held within the bars.
    constexpr Case Cases[] = {
        {40, 25, 800 - 380 + 20, 500 - 230 + 10}, {2, 2, 0, 0}, {70, 44, 760, 460}, {19, 12, 20, 20}};
    ClearField();
    for (const Case& c : Cases) {
        PutUnit(0, c.x, c.y);
        host.waited = {};
        ScrollToUnit(0);
        EXPECT_EQ(frmField.HScrollArea.Value, c.left);
        EXPECT_EQ(frmField.VScrollArea.Value, c.top);
        EXPECT_EQ(frmField.imgMarkH.Left, 20 - c.left + c.x * 20);
        EXPECT_EQ(frmField.imgMarkV.Top, 10 - c.top + c.y * 20);
        EXPECT_FALSE(frmField.shpSelect.Visible);
        EXPECT_NEAR(static_cast<double>(host.waited.count()), 1.5e9, 1e6);
    }
}

}  // namespace
