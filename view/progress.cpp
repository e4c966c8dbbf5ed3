#include "view/progress.h"

#include "platform/host.h"
#include "view/colours.h"
#include "view/field_form.h"

namespace {

constexpr Colour EdgeGreen = Rgb(0, 68, 0);
constexpr int BarStep = 10;  // pixels for each of the map's 46 rows, 460 in all

void ShowParts(bool visible) {
    frmProgress.imgProgress.Visible = visible;
    frmProgress.imgProgress1.Visible = visible;
    frmProgress.Shape1.Visible = visible;
}

}  // namespace

void ShowProgress(std::string_view word) {
    if (word == "Start") {
        frmProgress.imgProgress1.Width = 0;
        ShowParts(true);
        frmProgress.BackColor = FieldGreen;
        frmProgress.Shape1.BorderColor = EdgeGreen;
        frmProgress.Visible = true;
    } else if (word == "Add") {
        frmProgress.imgProgress1.Width += BarStep;
    } else if (word == "Stop") {
        ShowParts(false);
        frmProgress.Visible = false;
    }
    TheHost().Refresh(frmProgress);
}
