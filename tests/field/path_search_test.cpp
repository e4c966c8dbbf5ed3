// The wave search against a plain, slow transcription of the scan that it stands for.
#include "field/path_search.h"

#include <random>

#include "field/geometry.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"

namespace {

struct Outcome {
    std::string plan;  // "dx,dy " for each step, or the error
    int pumps = 0;

    bool operator==(const Outcome&) const = default;
};

std::string PlanText(const std::vector<PlanStep>& plan) {
    std::string text;
    for (const PlanStep& step : plan)
        text += std::to_string(step.dx) + "," + std::to_string(step.dy) + " ";
    return text;
}

Outcome Fast(int walkerX, int walkerY, int x, int y, int maxSteps) {
    Outcome outcome;
    try {
        outcome.plan = PlanText(SearchPath(walkerX, walkerY, x, y, maxSteps, [&] { ++outcome.pumps; }));
    } catch (const RunTimeError&) {
        outcome.plan = "off the field";
    }
    return outcome;
}

// The whole grid scanned for each wave, as the rule is told.
class PlainSearch {
  public:
    Outcome Run(int walkerX, int walkerY, int x, int y, int maxSteps) {
        for (int row = 1; row <= 47; ++row)
            for (int column = 1; column <= 77; ++column)
                grid[row][column] = CellFreeToStep(column - 1, row - 1) ? 254 : 255;
        grid[y + 1][x + 1] = 0;
        grid[walkerY + 1][walkerX + 1] = 253;
        Outcome outcome;
        int n = 0;
        for (; n < 250; ++n) {
            if (Scan(n)) break;
            ++outcome.pumps;
        }
        try {
            outcome.plan = PlanText(Trace(walkerX + 1, walkerY + 1, n, maxSteps));
        } catch (const RunTimeError&) {
            outcome.plan = "off the field";
        }
        return outcome;
    }

  private:
    bool Scan(int n) {
        for (int row = 1; row <= 47; ++row)
            for (int column = 1; column <= 77; ++column) {
                if (grid[row][column] != n) continue;
                for (int dy = -1; dy <= 1; ++dy)
                    for (int dx = -1; dx <= 1; ++dx) {
                        int& neighbour = grid[row + dy][column + dx];
                        if (neighbour == 253) return true;
                        if (neighbour == 254) neighbour = n + 1;
                    }
            }
        return false;
    }

    std::vector<PlanStep> Trace(int column, int row, int n, int maxSteps) {
        static constexpr PlanStep Order[] = {{0, -1},  {1, 0},  {0, 1}, {-1, 0},
                                             {-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
        std::vector<PlanStep> plan;
        PlanStep entry{0, 0};
        do {
            int best = 250;
            for (const PlanStep& step : Order) {
                const int value = grid[row + step.dy][column + step.dx];
                if (value >= best) continue;
                best = value;
                entry = step;
            }
            plan.push_back(entry);
            column += entry.dx;
            row += entry.dy;
            --n;
            --maxSteps;
        } while (n >= 0 && maxSteps != 0);
        return plan;
    }

    Array<Array<int, 0, 77>, 0, 47> grid;
};

class PathSearchTest : public GameTest {
  protected:
    PathSearchTest() { ClearField(); }

    std::mt19937 generator{20};

    int Draw(int count) { return static_cast<int>(generator() % static_cast<unsigned>(count)); }

    // Walls and units strewn over the field, `percent` of its cells.
    void Strew(int percent) {
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x) {
                const bool closed = Draw(100) < percent;
                cellGrid[y][x].block = closed && Draw(4) != 0 ? 1 + 2 * Draw(2) : 0;
                cellGrid[y][x].occupant = closed && cellGrid[y][x].block == 0 ? 30 : -1;
            }
    }
};

TEST_F(PathSearchTest, AThousandRandomFieldsGiveThePlainScansPlan) {
    int found = 0;
    int lost = 0;
    for (int round = 0; round < 1000; ++round) {
        Strew(Draw(60));
        const bool edge =
            round % 10 == 0;  // also from the first row and column, where the trace may leave the field
        const int walkerX = edge ? Draw(2) : Draw(FieldWidth);
        const int walkerY = Draw(FieldHeight);
        const bool own = round % 37 == 0;
        const int x = own ? walkerX : Draw(FieldWidth);
        const int y = own ? walkerY : Draw(FieldHeight);
        const int maxSteps = round % 3 == 0 ? 4 : 100;
        PlainSearch plain;
        const Outcome expected = plain.Run(walkerX, walkerY, x, y, maxSteps);
        ASSERT_EQ(Fast(walkerX, walkerY, x, y, maxSteps), expected)
            << "round " << round << ": " << walkerX << "," << walkerY << " to " << x << "," << y;
        found += expected.pumps < 250 ? 1 : 0;
        lost += expected.plan == "off the field" ? 1 : 0;
    }
    EXPECT_GT(found, 500);
    EXPECT_LT(found, 990) << "some destinations can't be reached";
    EXPECT_GT(lost, 0) << "some traces leave the field";
}

TEST_F(PathSearchTest, StraightStepsArePreferredAndTheStepsNearestTheWalkerAreKept) {
    // From (10, 10) to (14, 11): four steps, one of them diagonal, and the straight ones first.
    EXPECT_EQ(Fast(10, 10, 14, 11, 100).plan, "1,0 1,0 1,0 1,1 ");
    EXPECT_EQ(Fast(10, 10, 14, 11, 2).plan, "1,0 1,0 ");
    EXPECT_EQ(Fast(10, 10, 14, 11, 100).pumps, 3);
}

TEST_F(PathSearchTest, WithoutAPathThePlanStandsStill) {
    DrawField(20, 20, {"###", "#.#", "###"});
    const Outcome outcome = Fast(21, 21, 40, 20, 3);
    EXPECT_EQ(outcome.plan, "0,0 0,0 0,0 ");
    EXPECT_EQ(outcome.pumps, 250);
}

}  // namespace
