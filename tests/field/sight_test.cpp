// The sight fan against a plain transcription of its rule, and the way round those who were sighted.
#include "field/sight.h"

#include <algorithm>
#include <cmath>

#include "data/terrain.h"
#include "field/geometry.h"
#include "field/sightings.h"
#include "state/chance.h"
#include "tests/support/game_test.h"

namespace {

using Cells = std::vector<std::pair<int, int>>;

// The rule as it is told, step by step, in single precision.
Cells PlainLook(int facing, int x, int y) {
    Cells visits;
    const float a0 = static_cast<float>(WayOf(facing).angleStep) * 0.785398F;
    const float h = (150.0F / 2 - 0.15F) * 0.017453F;
    std::pair<int, int> last(0, 0);
    for (float a = a0 - h; a <= a0 + h; a += 0.1F) {
        for (float t = 0.2F; t <= 150.0F / 60 + 1; t += 0.1F) {
            const float px = static_cast<float>(x * 20 + 10) + t * std::cos(a) * 150;
            const float py = static_cast<float>(y * 20 + 10) + t * std::sin(a) * 150;
            const std::pair<int, int> cell(static_cast<int>(std::floor(px / 20)),
                                           static_cast<int>(std::floor(py / 20)));
            if (cell == last) continue;
            last = cell;
            visits.push_back(cell);
            if (!CellOpen("view", cell.first, cell.second)) break;
        }
    }
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
    for (int facing = 0; facing < FacingCount; ++facing)
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x) {
                Cells visits;
                CastFan(facing, x, y, [&](int column, int row) {
                    visits.emplace_back(column, row);
                    return CellOpen("view", column, row);
                });
                ASSERT_EQ(visits, PlainLook(facing, x, y)) << x << ", " << y << " facing " << facing;
            }
}

// The computer's whole team around a soldier, each within the fan's reach or a little beyond.
TEST_F(SightTest, WhoeverStandsWhereTheFanComesIsSightedAndNobodyElse) {
    StartGame();
    teamLast[EnemyTeam] = TeamStride - 1;
    for (int round = 0; round < 300; ++round) {
        const int x = RandomInt(FieldWidth - 1, 0);
        const int y = RandomInt(FieldHeight - 1, 0);
        PutUnit(0, x, y);
        UnitTable[0].facing = RandomInt(FacingCount - 1, 0);
        for (int place = 0; place < TeamStride; ++place) {
            const int column = std::clamp(x + RandomInt(29, -29), 0, FieldWidth - 1);
            PutUnit(FirstOf(EnemyTeam) + place, column,
                    std::clamp(y + RandomInt(29, -29), 0, FieldHeight - 1));
        }
        curUnit = 0;
        EnemyCounter("clear");
        Look(0);
        const Cells visits = PlainLook(UnitTable[0].facing, x, y);
        for (int place = 0; place < TeamStride; ++place) {
            const Unit& enemy = UnitTable[FirstOf(EnemyTeam) + place];
            const std::pair<int, int> cell(enemy.cellX, enemy.cellY);
            const bool reached = std::find(visits.begin(), visits.end(), cell) != visits.end();
            ASSERT_EQ(UnitTable[0].seen[place] == 1, reached) << x << ", " << y << ": " << place;
        }
    }
}

TEST_F(SightTest, WhoStandsInAWoodIsSightedAndHidesWhoIsBehindIt) {
    ClearField();
    PutUnit(0, 30, 20);
    for (int y = 10; y <= 30; ++y)
        PutTile(33, y, 0, Trees);
    PutUnit(20, 33, 20);
    PutUnit(21, 38, 20);
    Look(0);
    EXPECT_EQ(UnitTable[0].seen[0], 1);
    EXPECT_EQ(UnitTable[0].seen[1], 0);
}

TEST_F(SightTest, ClicksOnTheCounterGoRoundTheSightedOnes) {
    ClearField();
    PutUnit(0, 30, 20);
    for (const int enemy : {20, 21, 22})
        PutUnit(enemy, enemy + 12, 21);
    UnitTable[21].status = Dead;
    Look(0);
    const auto click = [] {
        Dispatch({EventKind::Click, "frmField.imgEnemyCount"});
        return lastSeenEnemy;
    };
    EXPECT_EQ(click(), 2) << "from place 0 on, past the dead one";
    EXPECT_EQ(frmField.shpSelect.Left, 34 * 20);
    EXPECT_EQ(click(), 0);
    UnitTable[0].seen[0] = UnitTable[0].seen[2] = 0;
    EXPECT_EQ(click(), 0) << "what another unit saw is nowhere to be found";
}

}  // namespace
