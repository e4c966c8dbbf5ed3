#include "view/mini_map.h"

#include "platform/blit.h"
#include "state/state.h"
#include "view/field_form.h"

void picStretch(const Picture& source, Picture& target, int ratio) {
    StretchBlt(target, {0, 0, source.Width() / ratio, source.Height() / ratio}, source, source.Bounds());
}

void picStretchSquare(FieldForm& form, int x, int y) {
    StretchBlt(form.picAreaMap.canvas,
               {x * MiniMapCellSize, y * MiniMapCellSize, MiniMapCellSize, MiniMapCellSize}, form.area.canvas,
               {x * CellSize, y * CellSize, CellSize, CellSize});
}
