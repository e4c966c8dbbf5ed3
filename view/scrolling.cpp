#include "view/scrolling.h"

#include <algorithm>

#include "state/state.h"
#include "view/field_form.h"
#include "view/mini_map.h"

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
