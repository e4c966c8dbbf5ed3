#include "view/map_painting.h"

#include "platform/host.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/mini_map.h"
#include "view/painting.h"
#include "view/progress.h"

void PaintMap() {
    frmField.mapIsPainted = true;
    ShowProgress("Start");
    for (int y = 0; y < FieldHeight; ++y) {
        for (int x = 0; x < FieldWidth; ++x)
            PaintCell(x, y, frmField.area.canvas);
        ShowProgress("Add");
    }
    ShowProgress("Stop");
    frmField.mapIsPainted = false;
    TheHost().Refresh(frmField.area);
    picStretch(frmField.area.canvas, frmField.picAreaMap.canvas, MiniMapRatio);
}
