#include "view/overlays.h"

#include "state/state.h"
#include "view/field_form.h"

namespace {

constexpr int RestLeft = 660;
constexpr int RestTop = 20;

ImageControl& ControlOf(Overlay overlay) {
    return overlay == Overlay::Blowup ? frmField.imgBlowup : frmField.imgCover;
}

}  // namespace

void PutOverlay(Overlay overlay, int x, int y) {
    ImageControl& image = ControlOf(overlay);
    image.Left = x * CellSize;
    image.Top = y * CellSize;
    image.Visible = true;
}

void ShowOverlayFrame(Overlay overlay, int frame) {
    const std::string folder = overlay == Overlay::Blowup ? "blowup" : "target";
    LoadPicture(ControlOf(overlay), "\\pic\\" + folder + "\\" + TwoDigits(frame) + ".gif");
}

void RestOverlay(Overlay overlay) {
    RestOverlay(ControlOf(overlay));
}

void RestOverlay(ImageControl& image) {
    image.Visible = false;
    LoadPicture(image, "");
    image.Left = RestLeft;
    image.Top = RestTop;
}

std::string TwoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}
