#include "view/scrolling.h"

#include <algorithm>

#include "state/state.h"
#include "view/field_form.h"
#include "view/mini_map.h"

void SetScrollValue(ScrollBar& bar, int value) {
    bar.Value = std::clamp(value, bar.Min, bar.Max);
    frmField.area.Left = ViewLeft - frmField.HScrollArea.Value;
    frmField.area.Top = ViewTop - frmField.VScrollArea.Value;
    if (bar.Value % CellSize == 0) RefreshMiniMapWindow();
}

void ScrollThumb(ScrollBar& bar, int value) {
    SetScrollValue(bar, value - value % CellSize);
}
