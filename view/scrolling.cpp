#include "view/scrolling.h"

#include "state/state.h"
#include "view/field_form.h"

namespace {

constexpr int AreaLeft = 20;  // where the field's left top cell is shown when nothing is scrolled
constexpr int AreaTop = 10;

}  // namespace

void SetScrollValue(ScrollBar& bar, int value) {
    bar.Value = value;
    frmField.area.Left = AreaLeft - frmField.HScrollArea.Value;
    frmField.area.Top = AreaTop - frmField.VScrollArea.Value;
}

void ScrollThumb(ScrollBar& bar, int value) {
    SetScrollValue(bar, value - value % CellSize);
}
