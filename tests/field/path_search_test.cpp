// The wave search against a plain, slow transcription of the scan that it stands for.
#include "field/path_search.h"

#include <random>

#include "field/geometry.h"
#include "state/state.h"
#include "tests/support/drawn_field.h"
#include "tests/support/game_test.h"

namespace {

// The plan as "dx,dy " for each step, or the error; then the number of waves.
std::string Told(const std::function<std::vector<PlanStep>(int& waves)>& search) {
    std::string text;
    int waves = 0;
    try {
        for (const PlanStep& step : search(waves))
            text += std::to_string(step.dx) + "," + std::to_string(step.dy) + " ";
    } catch (const RunTimeError&) {
        text = "off the field ";
    }
    return text + std::to_string(waves);
}

std::string Fast(int walkerX, int walkerY, int x, int y, int maxSteps) {
    return Told(
        [=](int& waves) { return SearchPath(walkerX, walkerY, x, y, maxSteps, [&waves] { ++waves; }); });
}

// The whole grid scanned for each wave, as the rule is told.
class PlainSearch {
  public:
    std::vector<PlanStep> Run(int walkerX, int walkerY, int x, int y, int maxSteps, int& waves) {
        for (int row = 1; row <= 47; ++row)
            for (int column = 1; column <= 77; ++column)
                grid[row][column] = CellFreeToStep(column - 1, row - 1) ? 254 : 255;
        grid[y + 1][x + 1] = 0;
        grid[walkerY + 1][walkerX + 1] = 253;
        while (waves < 250 && !Scan(waves))
            ++waves;
        return Trace(walkerX + 1, walkerY + 1, waves, maxSteps);
    }

  private:
    bool Scan(int n) {
        for (int row = 1; row <= 47; ++row)
            for (int column = 1; column <= 77; ++column)
                for (int around = 0; grid[row][column] == n && around < 9; ++around) {
                    int& neighbour = grid[row + around / 3 - 1][column + around % 3 - 1];
                    if (neighbour == 253) return true;
                    if (neighbour == 254) neighbour = n + 1;
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
        } while (--n >= 0 && --maxSteps != 0);
        return plan;
    }

    Array<Array<int, 0, 77>, 0, 47> grid;
};

class PathSearchTest : public GameTest {
  protected:
    PathSearchTest() { ClearField(); }
};

TEST_F(PathSearchTest, FourHundredRandomFieldsGiveThePlainScansPlan) {
    std::mt19937 generator{20};
    const auto draw = [&](int count) { return static_cast<int>(generator() % static_cast<unsigned>(count)); };
    int lost = 0;
    int closed = 0;
    for (int round = 0; round < 400; ++round) {
        const int percent = draw(60);
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x) {
                const int what = draw(100) < percent ? draw(3) : 3;
                cellGrid[y][x].block = what == 0 ? 1 : what == 1 ? 3 : 0;
                cellGrid[y][x].occupant = what == 2 ? 30 : -1;
            }
        // Also from the first column, where the trace may leave the field, and to the walker's own cell.
        const int walkerX = draw(round % 10 == 0 ? 2 : FieldWidth);
        const int walkerY = draw(FieldHeight);
        const int x = round % 37 == 0 ? walkerX : draw(FieldWidth);
        const int y = round % 37 == 0 ? walkerY : draw(FieldHeight);
        const int maxSteps = round % 3 == 0 ? 4 : 100;
        PlainSearch plain;
        const std::string expected =
            Told([&](int& waves) { return plain.Run(walkerX, walkerY, x, y, maxSteps, waves); });
        ASSERT_EQ(Fast(walkerX, walkerY, x, y, maxSteps), expected)
            << "round " << round << ": " << walkerX << "," << walkerY << " to " << x << "," << y;
        lost += expected.starts_with("off") ? 1 : 0;
        closed += expected.ends_with(" 250") ? 1 : 0;
    }
    EXPECT_GT(lost, 0) << "some traces leave the field";
    EXPECT_GT(closed, 0) << "some destinations can't be reached";
    EXPECT_LT(closed, 200);
}

TEST_F(PathSearchTest, StraightStepsArePreferredAndTheStepsNearestTheWalkerAreKept) {
    // From (10, 10) to (14, 11): four steps, one of them diagonal, and the straight ones first.
    EXPECT_EQ(Fast(10, 10, 14, 11, 100), "1,0 1,0 1,0 1,1 3");
    EXPECT_EQ(Fast(10, 10, 14, 11, 2), "1,0 1,0 3");
    DrawField(20, 20, {"###", "#.#", "###"});
    EXPECT_EQ(Fast(21, 21, 40, 20, 3), "0,0 0,0 0,0 250") << "without a path the plan stands still";
}

}  // namespace
