#include "field/path_search.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "field/geometry.h"
#include "platform/arrays.h"
#include "state/state.h"

namespace {

constexpr int WaveCap = 250;

// The search's grid has a border of one cell around the field: field cell (x, y) lies at (x + 1, y + 1).
constexpr int GridColumns = FieldWidth + 2;
constexpr int GridRows = FieldHeight + 2;

// One row of the grid, a bit for each column.
struct RowBits {
    std::uint64_t low = 0;   // columns 0 to 63
    std::uint64_t high = 0;  // columns 64 to 77

    bool Has(int column) const { return ((column < 64 ? low >> column : high >> (column - 64)) & 1) != 0; }
    void Set(int column) { (column < 64 ? low : high) |= std::uint64_t{1} << (column % 64); }
    void Clear(int column) { (column < 64 ? low : high) &= ~(std::uint64_t{1} << (column % 64)); }
    bool Any() const { return (low | high) != 0; }

    // Itself and its neighbours to the left and right.
    RowBits Widened() const {
        return {low | low << 1 | low >> 1 | high << 63, high | high << 1 | high >> 1 | low >> 63};
    }
    RowBits operator|(const RowBits& b) const { return {low | b.low, high | b.high}; }
    RowBits operator&(const RowBits& b) const { return {low & b.low, high & b.high}; }
    RowBits Without(const RowBits& b) const { return {low & ~b.low, high & ~b.high}; }
};

using Bits = std::array<RowBits, GridRows>;

// Trace-back order: among equals the earlier wins, which prefers straight steps.
constexpr std::array<PlanStep, 8> TraceOrder = {
    {{0, -1}, {1, 0}, {0, 1}, {-1, 0}, {-1, -1}, {1, -1}, {1, 1}, {-1, 1}}};

// The rows of one wave between `first` and `last`; the others are empty.
struct Wave {
    Bits bits{};
    int first = 0;
    int last = 0;
};

class Search {
  public:
    Search(int walkerColumn, int walkerRow, int column, int row) : walkerX(walkerColumn), walkerY(walkerRow) {
        waves.reserve(64);
        waves.emplace_back();
        waves[0].first = waves[0].last = row + 1;
        if (column != walkerX || row != walkerY) waves[0].bits.at(At(row + 1)).Set(column + 1);
        firstFilled = row + 1;
        lastFilled = row;
        destinationX = column;
        destinationY = row;
    }

    // Whether wave `n` touches the walker.
    bool Reaches(int n) const {
        const Wave& wave = waves[At(n)];
        for (int row = std::max(wave.first, walkerY); row <= std::min(wave.last, walkerY + 2); ++row)
            if (wave.bits[At(row)].Widened().Has(walkerX + 1)) return true;
        return false;
    }

    // Makes wave `n` + 1 of the cells not reached yet around wave `n`.
    void Spread(int n) {
        waves.emplace_back();
        Wave& next = waves.back();
        const Wave& wave = waves[At(n)];
        next.first = std::max(wave.first - 1, 1);
        next.last = std::min(wave.last + 1, FieldHeight);
        FillTo(next.first, next.last);
        for (int row = next.first; row <= next.last; ++row) {
            const RowBits around = wave.bits[At(row - 1)] | wave.bits[At(row)] | wave.bits[At(row + 1)];
            RowBits& free = unreached[At(row)];
            const RowBits reached = around.Widened() & free;
            next.bits[At(row)] = reached;
            free = free.Without(reached);
        }
        Trim(next);
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

    // Rows are looked at when the wave first comes to them.
    void FillTo(int first, int last) {
        while (firstFilled > first)
            Fill(--firstFilled);
        while (lastFilled < last)
            Fill(++lastFilled);
    }

    void Fill(int row) {
        const auto& cells = cellGrid[row - 1];
        RowBits& free = unreached[At(row)];
        free.low = FreeBits(cells, 0, 63) << 1;
        free.high = FreeBits(cells, 63, FieldWidth);
        if (row == destinationY + 1) free.Clear(destinationX + 1);
        if (row == walkerY + 1) free.Clear(walkerX + 1);
    }

    // A bit for each cell from `first` to before `last` that can be stepped on.
    static std::uint64_t FreeBits(const Array<Cell, 0, FieldWidth>& cells, int first, int last) {
        std::uint64_t bits = 0;
        for (int x = first; x < last; ++x) {
            const Cell& cell = cells[x];
            bits |= std::uint64_t{cell.occupant < 0 && LetsStepThrough(cell)} << (x - first);
        }
        return bits;
    }

    static void Trim(Wave& wave) {
        while (wave.first < wave.last && !wave.bits[At(wave.first)].Any())
            ++wave.first;
        while (wave.last > wave.first && !wave.bits[At(wave.last)].Any())
            --wave.last;
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
        const bool reached = n < WaveCap && waves[At(n)].bits[At(row)].Has(column);
        return reached ? n : WaveCap;
    }

    int walkerX;
    int walkerY;
    int destinationX = 0;
    int destinationY = 0;
    Bits unreached{};  // free cells that no wave has come to
    int firstFilled = 0;
    int lastFilled = 0;
    std::vector<Wave> waves;
};

}  // namespace

std::vector<PlanStep> SearchPath(int walkerX, int walkerY, int x, int y, int maxSteps,
                                 const std::function<void()>& afterWave) {
    if (!InField(x, y)) throw RunTimeError(Fault::Subscript, "a walk to a cell outside the field");
    Search search(walkerX, walkerY, x, y);
    int n = 0;
    while (n < WaveCap && !search.Reaches(n)) {
        search.Spread(n);
        afterWave();
        ++n;
    }
    return search.Trace(n, maxSteps);
}
