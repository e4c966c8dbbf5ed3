// The wave search against a plain, slow transcription of the scan that it stands for.
#include "field/path_search.h"

#include <random>

#include "field/geometry.h"
#include "tests/support/game_test.h"

namespace {

// The plan as "dx,dy " for each step, then the number of waves.
std::string Told(const std::vector<PlanStep>& plan, int waves) {
    std::string text;
    for (const PlanStep& step : plan)
        text += std::to_string(step.dx) + "," + std::to_string(step.dy) + " ";
    return text + std::to_string(waves);
}

std::string Fast(int walkerX, int walkerY, int x, int y, int maxSteps) {
    int waves = 0;
    const std::vector<PlanStep> plan = SearchPath(walkerX, walkerY, x, y, maxSteps, [&waves] { ++waves; });
    return Told(plan, waves);
}

// The whole field scanned for each wave, as the rule is told, for a walker off row 0 and column 0.
std::string Plain(int walkerX, int walkerY, int x, int y, int maxSteps) {
    enum { Cap = 250, Walker = 253, Free = 254, Closed = 255 };
    static constexpr PlanStep Order[] = {{0, -1},  {1, 0},  {0, 1}, {-1, 0},
                                         {-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
    Array<Array<int, -1, FieldWidth>, -1, FieldHeight> grid;
    for (int row = -1; row <= FieldHeight; ++row)
        for (int column = -1; column <= FieldWidth; ++column)
            grid[row][column] = CellFreeToStep(column, row) ? Free : Closed;
    grid[y][x] = 0;
    grid[walkerY][walkerX] = Walker;
    int waves = 0;
    for (bool reached = false; !reached && waves < Cap; waves += reached ? 0 : 1)
        for (int row = 0; row < FieldHeight; ++row)
            for (int column = 0; column < FieldWidth; ++column)
                for (const PlanStep& step : Order) {
                    int& next = grid[row + step.dy][column + step.dx];
                    if (grid[row][column] != waves) continue;
                    if (next == Walker) reached = true;
                    if (next == Free) next = waves + 1;
                }
    std::vector<PlanStep> plan;
    PlanStep entry{0, 0};
    for (int n = waves; n >= 0 && maxSteps != 0; --n, --maxSteps) {
        int best = Cap;
        for (const PlanStep& step : Order) {
            const int value = grid[walkerY + step.dy][walkerX + step.dx];
            if (value >= best) continue;
            best = value;
            entry = step;
        }
        plan.push_back(entry);
        walkerX += entry.dx;
        walkerY += entry.dy;
    }
    return Told(plan, waves);
}

class PathSearchTest : public GameTest {
  protected:
    PathSearchTest() { ClearField(); }
};

TEST_F(PathSearchTest, FourHundredRandomFieldsGiveThePlainScansPlan) {
    std::mt19937 generator{20};
    const auto draw = [&](int count) { return static_cast<int>(generator() % static_cast<unsigned>(count)); };
    int closed = 0;
    for (int round = 0; round < 400; ++round) {
        const int percent = draw(60);
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x) {
                const int what = x == 0 || y == 0 ? 1 : draw(100) < percent ? draw(3) : 3;
                cellGrid[y][x].block = what == 0 ? 1 : what == 1 ? 3 : 0;
                cellGrid[y][x].occupant = what == 2 ? 30 : -1;
            }
        // Also to the walker's own cell.
        const int walkerX = 1 + draw(FieldWidth - 1);
        const int walkerY = 1 + draw(FieldHeight - 1);
        const int x = round % 37 == 0 ? walkerX : draw(FieldWidth);
        const int y = round % 37 == 0 ? walkerY : draw(FieldHeight);
        const int maxSteps = round % 3 == 0 ? 4 : 100;
        const std::string expected = Plain(walkerX, walkerY, x, y, maxSteps);
        ASSERT_EQ(Fast(walkerX, walkerY, x, y, maxSteps), expected)
            << "round " << round << ": " << walkerX << "," << walkerY << " to " << x << "," << y;
        closed += expected.ends_with(" 250") ? 1 : 0;
    }
    EXPECT_GT(closed, 0) << "some destinations can't be reached";
    EXPECT_LT(closed, 200);
}

}  // namespace
