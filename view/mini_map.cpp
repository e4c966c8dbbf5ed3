#include "view/mini_map.h"

#include "platform/blit.h"
#include "state/state.h"
#include "view/field_form.h"

namespace {

constexpr int BigMapRatio = 2;

}  // namespace

void picStretch(const Picture& source, Picture& target, int ratio) {
    StretchBlt(target, {0, 0, source.Width() / ratio, source.Height() / ratio}, source, source.Bounds());
}

void picStretchSquare(FieldForm& form, int x, int y) {
    const Rectangle square = {x * MiniMapCellSize, y * MiniMapCellSize, MiniMapCellSize, MiniMapCellSize};
    StretchBlt(form.picAreaMap.canvas, square, form.area.canvas,
               {x * CellSize, y * CellSize, CellSize, CellSize});
    const PictureBox& cover = form.picAreaMapCover;
    BitBlt(form.picAreaMapCover.canvas, square.left - cover.Left, square.top - cover.Top, square.width,
           square.height, form.picAreaMap.canvas, square.left, square.top, RasterOp::SRCCOPY);
}

void picMicroMapHilite() {
    PictureBox& cover = frmField.picAreaMapCover;
    cover.Visible = false;
    cover.Left = frmField.HScrollArea.Value / MiniMapRatio;
    cover.Top = frmField.VScrollArea.Value / MiniMapRatio;
    BitBlt(cover.canvas, 0, 0, cover.Width, cover.Height, frmField.picAreaMap.canvas, cover.Left, cover.Top,
           RasterOp::SRCCOPY);
    cover.Visible = true;
}

void RefreshMiniMapWindow() {
    picMicroMapHilite();
}

void MiniMapCell(FieldForm& form, int x, int y) {
    if (!form.mapIsPainted) picStretchSquare(form, x, y);
}

void ToggleBigMap() {
    frmField.bigMapShown = !frmField.bigMapShown;
    const bool shown = frmField.bigMapShown;
    for (Control* control :
         {static_cast<Control*>(&frmField.HScrollArea), static_cast<Control*>(&frmField.VScrollArea),
          static_cast<Control*>(&frmField.imgMarkH), static_cast<Control*>(&frmField.imgMarkV)})
        control->Visible = !shown;
    PictureBox& whole = frmField.picAreaWhole;
    if (shown) {
        whole.Left = ViewLeft;
        whole.Top = ViewTop;
        whole.Width = frmField.area.Width / BigMapRatio;
        whole.Height = frmField.area.Height / BigMapRatio;
        whole.canvas = Picture(whole.Width, whole.Height);
        picStretch(frmField.area.canvas, whole.canvas, BigMapRatio);
    }
    whole.Visible = shown;
}
