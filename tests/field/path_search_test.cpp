// The path search against a plain, slow transcription of the scan that it stands for.
#include "field/path_search.h"

#include <algorithm>
#include <functional>
#include <random>

#include "field/geometry.h"
#include "tests/support/game_test.h"

namespace {

using Plan = std::vector<PlanStep>;

// The plan as "dx,dy " for each step, or that the trace left the field; then the number of waves.
std::string Told(const std::function<Plan()>& trace, const int& waves) {
    std::string text;
    try {
        for (const PlanStep& step : trace())
            text += std::to_string(step.dx) + "," + std::to_string(step.dy) + " ";
    } catch (const RunTimeError&) {
        text = "off the field ";
    }
    return text + std::to_string(waves);
}

std::string Fast(int walkerX, int walkerY, int x, int y, int maxSteps) {
    int waves = 0;
    return Told([&] { return SearchPath(walkerX, walkerY, x, y, maxSteps, [&waves] { ++waves; }); }, waves);
}

// The whole field scanned for each wave, as the rule is told.
std::string Plain(int walkerX, int walkerY, int x, int y, int maxSteps) {
    enum { Cap = 250, Walker = 253, Free = 254, Closed = 255 };
    static constexpr PlanStep Order[] = {{0, -1},  {1, 0},  {0, 1}, {-1, 0},
                                         {-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
    Array<Array<int, -1, FieldWidth>, -1, FieldHeight> grid;
    for (int row = 0; row <= FieldHeight; ++row)
        for (int column = 0; column <= FieldWidth; ++column)
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
    const auto trace = [&] {
        Plan plan;
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
        return plan;
    };
    return Told(trace, waves);
}

class PathSearchTest : public GameTest {
  protected:
    PathSearchTest() { ClearField(); }
};

TEST_F(PathSearchTest, FiveHundredRandomFieldsGiveThePlainScansPlan) {
    static constexpr int MaxSteps[] = {1, 4, 100, 250};
    std::mt19937 generator{20};
    const auto draw = [&](int count) { return static_cast<int>(generator() % static_cast<unsigned>(count)); };
    int closed = 0;
    int offField = 0;
    for (int round = 0; round < 500; ++round) {
        const bool edgeIsOpen = round % 4 == 0;  // row 0 and column 0, which are closed on every map
        const int percent = draw(60);
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x) {
                const bool isWall = !edgeIsOpen && (x == 0 || y == 0);
                const int what = isWall ? 1 : draw(100) < percent ? draw(3) : 3;
                cellGrid[y][x].block = what == 0 ? 1 : what == 1 ? 3 : 0;
                cellGrid[y][x].occupant = what == 2 ? 30 : -1;
            }
        // Near to far, and also to the walker's own cell.
        const int walkerX = edgeIsOpen ? draw(4) : 1 + draw(FieldWidth - 1);
        const int walkerY = 1 + draw(FieldHeight - 1);
        const int reach = 1 + draw(FieldWidth);
        const int x = std::clamp(walkerX + draw(2 * reach) - reach, 0, FieldWidth - 1);
        const int y = std::clamp(walkerY + draw(2 * reach) - reach, 0, FieldHeight - 1);
        const int maxSteps = MaxSteps[draw(4)];
        const std::string expected = Plain(walkerX, walkerY, x, y, maxSteps);
        ASSERT_EQ(Fast(walkerX, walkerY, x, y, maxSteps), expected)
            << "round " << round << ": " << walkerX << "," << walkerY << " to " << x << "," << y;
        closed += expected.ends_with(" 250") ? 1 : 0;
        offField += expected.starts_with("off") ? 1 : 0;
    }
    EXPECT_GT(closed, 0) << "some destinations can't be reached";
    EXPECT_LT(closed, 250);
    EXPECT_GT(offField, 10) << "some walks are drawn off the field";
}

TEST_F(PathSearchTest, ASearchKnowsTheFieldAsItWasWhenTheWalkBegan) {
    for (const bool straight : {true, false}) {
        for (int y = 18; y < FieldHeight; ++y)
            cellGrid[y][10].block = straight ? 0 : 3;
        const std::string expected = Fast(5, 30, 15, 30, 100);
        int waves = 0;
        const auto close = [&] {
            ++waves;
            for (int y = 0; y < FieldHeight; ++y)
                cellGrid[y][8].block = 3;
        };
        EXPECT_EQ(Told([&] { return SearchPath(5, 30, 15, 30, 100, close); }, waves), expected);
        ClearField();
    }
}

}  // namespace
