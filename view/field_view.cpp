#include "view/field_view.h"

#include <algorithm>

#include "platform/rounding.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/mini_map.h"

namespace {

constexpr int WindowColumns = 38;  // cells in view
constexpr int WindowRows = 23;

// The first cell in view along one axis, with the clicked one in the middle. The far end is where it was
// before the near one was held. ODDITY: every second pixel of the mini map lies half a cell further, and the
// view stops there between two cells.
double FirstInView(int pixel, int inView, int cells) {
    const double wanted = pixel / static_cast<double>(MiniMapCellSize) - FloorDivide(inView, 2);
    const double last = inView + wanted - 1;
    double first = wanted < 0 ? 0 : wanted;
    if (last > cells - 1) first += cells - 1 - last;
    return first;
}

void ScrollToCell(ScrollBar& bar, double cell) {
    SetScrollValue(bar, static_cast<int>(RoundHalfEven(cell * CellSize)));
}

int ScrollPlace(float place, const ScrollBar& bar) {
    const float held = std::min(std::max(place, 0.0F), static_cast<float>(bar.Max));
    return static_cast<int>(RoundHalfEven(static_cast<double>(held)));
}

// `place` is where the walker is seen, in cells.
void FollowOnAxis(ScrollBar& bar, double place, double middle, int step) {
    if (place > middle && step == 1 && bar.Value < bar.Max) SetScrollValue(bar, bar.Value + step);
    if (place < middle && step == -1 && bar.Value > bar.Min) SetScrollValue(bar, bar.Value + step);
}

}  // namespace

// ODDITY: the marks at the edges stay where they are until their soldier is selected again or moves; after
// scrolling by hand they point beside him.
void SetScrollValue(ScrollBar& bar, int value) {
    bar.Value = std::clamp(value, bar.Min, bar.Max);
    frmField.area.Left = ViewLeft - frmField.HScrollArea.Value;
    frmField.area.Top = ViewTop - frmField.VScrollArea.Value;
    if (bar.Value % CellSize == 0) RefreshMiniMapWindow();
}

void ScrollThumb(ScrollBar& bar, int value) {
    SetScrollValue(bar, value - value % CellSize);
}

void FollowWalker(const Unit& unit, int dx, int dy) {
    constexpr double MiddleColumn = 18;
    constexpr double MiddleRow = 11;
    const double column = (unit.pixelX - frmField.HScrollArea.Value) / static_cast<double>(CellSize);
    const double row = (unit.pixelY - frmField.VScrollArea.Value) / static_cast<double>(CellSize);
    FollowOnAxis(frmField.HScrollArea, column, MiddleColumn, dx);
    FollowOnAxis(frmField.VScrollArea, row, MiddleRow, dy);
}

void BringIntoView(int unit) {
    // ODDITY: the two axes have different offsets, so a unit is shown half a cell left of the middle.
    constexpr float RightOfUnit = 20;
    constexpr float BelowUnit = 10;
    constexpr float HalfViews = 4;  // that fit into the field, along either side
    const auto width = static_cast<float>(frmField.area.Width);
    const auto height = static_cast<float>(frmField.area.Height);
    const Unit& shown = UnitTable[unit];
    const float left = static_cast<float>(shown.pixelX) - width / HalfViews + RightOfUnit;
    const float top = static_cast<float>(shown.pixelY) - height / HalfViews + BelowUnit;
    SetScrollValue(frmField.HScrollArea, ScrollPlace(left, frmField.HScrollArea));
    SetScrollValue(frmField.VScrollArea, ScrollPlace(top, frmField.VScrollArea));
    frmField.shpSelect.Left = shown.pixelX;
    frmField.shpSelect.Top = shown.pixelY;
    MarkCurrentUnit();
}

bool SelectionFrames(const Unit& unit) {
    return frmField.shpSelect.Left == unit.pixelX && frmField.shpSelect.Top == unit.pixelY;
}

void MarkCurrentUnit() {
    frmField.imgMarkH.Left = frmField.area.Left + UnitTable[curUnit].pixelX;
    frmField.imgMarkV.Top = frmField.area.Top + UnitTable[curUnit].pixelY;
}

void MapClick(int x, int y) {
    ScrollToCell(frmField.HScrollArea, FirstInView(x, WindowColumns, FieldWidth));
    ScrollToCell(frmField.VScrollArea, FirstInView(y, WindowRows, FieldHeight));
}
