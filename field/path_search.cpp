#include "field/path_search.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

#include "field/geometry.h"
#include "platform/arrays.h"
#include "state/state.h"

namespace {

constexpr int WaveCap = 250;

// Trace-back order: among equals the earlier wins, which prefers straight steps.
constexpr std::array<PlanStep, 8> TraceOrder = {
    {{0, -1}, {1, 0}, {0, 1}, {-1, 0}, {-1, -1}, {1, -1}, {1, 1}, {-1, 1}}};

bool IsFree(const Cell& cell) {
    return cell.occupant < 0 && LetsStepThrough(cell);
}

// Looks for a path on which every step comes nearer to the destination, as most walks can. No wave is needed
// then: a cell's wave is its distance, so that the first such path in trace order is the one that a trace
// finds.
class StraightSearch {
  public:
    StraightSearch(int x, int y) : destinationX(x), destinationY(y) {}

    // Empty where there is no such path, or where a trace along it leaves the field.
    std::vector<PlanStep> Plan(int walkerX, int walkerY) {
        if (!InField(walkerX, walkerY)) return {};
        plan.reserve(static_cast<std::size_t>(DistanceFrom(walkerX, walkerY)));
        if (!LeadsOn(walkerX, walkerY) || leavesField) return {};
        return std::move(plan);
    }

  private:
    int DistanceFrom(int x, int y) const {
        return std::max(std::abs(destinationX - x), std::abs(destinationY - y));
    }

    // Whether such a path leads from the cell to the destination; if so, the plan goes on with it.
    bool LeadsOn(int x, int y) {
        const int left = DistanceFrom(x, y) - 1;
        for (const PlanStep& step : TraceOrder) {
            const int nextX = x + step.dx;
            const int nextY = y + step.dy;
            if (DistanceFrom(nextX, nextY) != left) continue;
            if (left > 0 && !Enter(nextX, nextY)) continue;
            plan.push_back(step);
            if (left == 0 || LeadsOn(nextX, nextY)) {
                leavesField = leavesField || x == 0 || y == 0;
                return true;
            }
            plan.pop_back();
        }
        return false;
    }

    // False for a cell that is closed, or was a dead end before.
    bool Enter(int x, int y) {
        if (!InField(x, y) || entered[y][x] || !IsFree(cellGrid[y][x])) return false;
        entered[y][x] = true;
        return true;
    }

    int destinationX;
    int destinationY;
    Array<Array<bool, 0, FieldWidth - 1>, 0, FieldHeight - 1> entered;
    std::vector<PlanStep> plan;
    bool leavesField = false;
};

// The grid of the waves has a border of one cell around the field: field cell (x, y) lies at (x + 1, y + 1).
constexpr int GridColumns = FieldWidth + 2;
constexpr int GridRows = FieldHeight + 2;

// A column of the grid, a bit for each row: a wave takes all cells of a column at once.
using Column = std::uint64_t;
static_assert(GridRows <= 64);
using Columns = std::array<Column, GridColumns>;

// None for a row outside the grid.
constexpr Column Bit(int row) {
    return row < 0 || row >= GridRows ? 0 : Column{1} << row;
}

// The cells of a column and those above and below each.
constexpr Column Widened(Column column) {
    return column | column << 1 | column >> 1;
}

// Spreads a wave from the destination over the free cells until it touches the walker.
class WaveSearch {
  public:
    WaveSearch(int fromX, int fromY, int x, int y)
        : walkerX(fromX), walkerY(fromY), first(x + 1), last(x + 1) {
        waves.reserve(64);
        waves.emplace_back();
        LookAt(x + 1);
        unreached[At(x + 1)] &= ~Bit(y + 1);
        if (x != walkerX || y != walkerY) waves[0][At(x + 1)] = Bit(y + 1);
    }

    // The number of the wave that touches the walker, WaveCap if none does.
    int Spread() {
        for (int n = 0; n < WaveCap; ++n) {
            if (TouchesWalker()) return n;
            if (!SpreadOnce()) break;
        }
        return WaveCap;
    }

    // The plan back from the walker, whom wave `n` touched; WaveCap when none did.
    std::vector<PlanStep> Trace(int n, int maxSteps) const {
        std::vector<PlanStep> plan;
        PlanStep step{0, 0};
        int column = walkerX + 1;
        int row = walkerY + 1;
        do {
            step = Best(column, row, n, step);
            plan.push_back(step);
            column += step.dx;
            row += step.dy;
            --n;
            --maxSteps;
        } while (n >= 0 && maxSteps != 0);
        return plan;
    }

  private:
    static std::size_t At(int index) { return static_cast<std::size_t>(index); }

    bool TouchesWalker() const {
        Column around = 0;
        for (int column = std::max(first, walkerX); column <= std::min(last, walkerX + 2); ++column)
            around |= waves.back()[At(column)];
        return (Widened(around) & Bit(walkerY + 1)) != 0;
    }

    // Makes the next wave of the cells not reached yet around the last one; false when there are none.
    bool SpreadOnce() {
        if (first > 1) LookAt(--first);
        if (last < FieldWidth) LookAt(++last);
        waves.emplace_back();
        const Columns& wave = waves[waves.size() - 2];
        Columns& next = waves.back();
        Column any = 0;
        for (std::size_t i = At(first); i <= At(last); ++i) {
            next[i] = Widened(wave[i - 1] | wave[i] | wave[i + 1]) & unreached[i];
            unreached[i] &= ~next[i];
            any |= next[i];
        }
        return any != 0;
    }

    // Columns are looked at when the wave first comes to them.
    void LookAt(int column) {
        for (int y = 0; y < FieldHeight; ++y)
            unreached[At(column)] |= Column{IsFree(cellGrid[y][column - 1])} << (y + 1);
    }

    // The first neighbour in trace order with the lowest value; the step before when none has one below the
    // cap. ODDITY: the border of the grid holds zeros like the destination, so a trace along row 0 or column
    // 0 is drawn off the field, and its next step ends the program. Maps keep units off these cells.
    PlanStep Best(int column, int row, int n, PlanStep before) const {
        int lowest = WaveCap;
        PlanStep best = before;
        for (const PlanStep& step : TraceOrder) {
            const int value = ValueAt(column + step.dx, row + step.dy, n);
            if (value >= lowest) continue;
            lowest = value;
            best = step;
        }
        return best;
    }

    // The wave that reached a cell of the grid, as far as the trace can tell: around a cell that wave `n`
    // touches none is lower than `n` but the border. WaveCap stands for every higher value.
    int ValueAt(int column, int row, int n) const {
        if (column < 0 || column >= GridColumns) ThrowSubscript(column, 0, GridColumns - 1);
        if (row < 0 || row >= GridRows) ThrowSubscript(row, 0, GridRows - 1);
        if (column == 0 || row == 0) return 0;
        const bool reached = At(n) < waves.size() && (waves[At(n)][At(column)] & Bit(row)) != 0;
        return reached ? n : WaveCap;
    }

    int walkerX;
    int walkerY;
    int first;  // the columns that the last wave lies in
    int last;
    Columns unreached{};  // free cells that no wave has come to
    std::vector<Columns> waves;
};

void Repeat(int times, const std::function<void()>& call) {
    for (int i = 0; i < times; ++i)
        call();
}

}  // namespace

std::vector<PlanStep> SearchPath(int walkerX, int walkerY, int x, int y, int maxSteps,
                                 const std::function<void()>& afterWave) {
    if (!InField(x, y)) throw RunTimeError(Fault::Subscript, "a walk to a cell outside the field");
    std::vector<PlanStep> plan = StraightSearch(x, y).Plan(walkerX, walkerY);
    if (const int length = static_cast<int>(plan.size()); length > 0) {
        Repeat(length - 1, afterWave);
        if (maxSteps > 0 && maxSteps < length) plan.resize(static_cast<std::size_t>(maxSteps));
        return plan;
    }
    WaveSearch search(walkerX, walkerY, x, y);
    const int waves = search.Spread();
    Repeat(waves, afterWave);
    return search.Trace(waves, maxSteps);
}
