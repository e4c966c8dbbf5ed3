#include "view/field_form.h"

#include <memory>

#include "state/state.h"
#include "view/stored_pictures.h"

namespace {

constexpr Colour FieldGreen = Rgb(0, 84, 0);
constexpr Colour SelectionYellow = Rgb(255, 255, 128);

void Stretch(ScrollBar& bar, int max) {
    bar.Max = max;
    bar.SmallChange = CellSize;
    bar.LargeChange = max;
}

}  // namespace

FieldForm frmField;
ProgressForm frmProgress;

FieldForm::FieldForm() {
    name = "frmField";
    Caption = "Sarnoth III :: Field";
    Tag = Caption;
    Width = 799;
    Height = 636;
    Visible = false;
    PutTopLevel();
    PutPanel();
    for (Picture& buffer : picBuffer)
        buffer = Picture(CellSize, CellSize);
}

void FieldForm::PutTopLevel() {
    // clang-format off
    //  control      name           in     left  top  width height
    Put(mnuInfo,     "mnuInfo",     *this,    0,    0,    0,   0);
    Put(mnuExit,     "mnuExit",     *this,    0,    0,    0,   0);
    Put(area,        "area",        *this,   20,   10, 1520, 920);
    Put(shpSelect,   "shpSelect",   area,     8,  440,   20,  20);
    Put(imgBlowup,   "imgBlowup",   area,   680,    0,   60,  60);
    Put(imgCover,    "imgCover",    area,   660,   20,   20,  20);
    Put(picForest,   "picForest",   area,   288,   24,  440,  40);
    Put(picSlateL,   "picSlateL",   *this,    0,   10,   20, 470);
    Put(picSlateR,   "picSlateR",   *this,  780,    2,   20, 470);
    Put(VScrollArea, "VScrollArea", picSlateR, 0, 288,   17, 177);
    Put(imgMarkV,    "imgMarkV",    picSlateR, 0,   10,   10,  20);
    Put(picSlateU,   "picSlateU",   *this,    0,    0,  801,  10);
    Put(imgMarkH,    "imgMarkH",    picSlateU, 20,  0,   20,  10);
    // clang-format on
    mnuInfo.Caption = "Personal &Info";
    mnuExit.Caption = "E&xit";
    area.BackColor = FieldGreen;
    area.canvas = Picture(area.Width, area.Height, FieldGreen);
    shpSelect.BorderColor = SelectionYellow;
    for (Control* hidden : {static_cast<Control*>(&shpSelect), static_cast<Control*>(&imgBlowup),
                            static_cast<Control*>(&imgCover), static_cast<Control*>(&picForest)})
        hidden->Visible = false;
    Stretch(VScrollArea, 460);
    picForest.canvas = StoredPicture("picForest.bmp");
    picSlateL.canvas = StoredPicture("picSlateL.bmp");
    picSlateR.canvas = StoredPicture("picSlateR.bmp");
    picSlateU.canvas = StoredPicture("picSlateU.bmp");
    imgMarkH.Picture = StoredImage("imgMarkH.gif");
    imgMarkV.Picture = StoredImage("imgMarkV.gif");
}

void FieldForm::PutPanel() {
    // clang-format off
    //  control       name             in          left  top  width height
    Put(picSlateD,    "picSlateD",     *this,         0, 470,  801, 200);
    Put(HScrollArea,  "HScrollArea",   picSlateD,   568,   0,  209,  17);
    Put(cmbLog,       "cmbLog",        picSlateD,    16,   8,  425,  21);
    Put(picAreaMap,   "picAreaMap",    picSlateD,    16,  40,  152,  92);
    PutArray(picAreaMapUnit, "picAreaMapUnit", picAreaMap, 104, 8, 2, 2);
    Put(cmdNextTurn,  "cmdNextTurn",   picSlateD,   656, 120,  123,  25);
    // clang-format on
    Stretch(HScrollArea, 760);
    cmbLog.BackColor = Rgb(0, 64, 0);
    cmbLog.ForeColor = Rgb(0, 192, 0);
    picAreaMap.BackColor = FieldGreen;
    picAreaMap.canvas = Picture(picAreaMap.Width, picAreaMap.Height, FieldGreen);
    for (PictureBox& dot : picAreaMapUnit)
        dot.Visible = false;  // until its unit is first drawn
    cmdNextTurn.Caption = "End Turn";
    picSlateD.canvas = StoredPicture("picSlateD.bmp");
}

ProgressForm::ProgressForm() {
    name = "frmProgress";
    Caption = "Progress";
    Width = 537;
    Height = 73;
    BackColor = FieldGreen;
    Visible = false;
    // clang-format off
    //  control       name            in     left top width height
    Put(imgProgress,  "imgProgress",  *this,    0,  0,  529,  67);
    Put(imgProgress1, "imgProgress1", *this,   19, 39,  460,   3);
    Put(Shape1,       "Shape1",       *this,   10, 24,  537,  65);
    // clang-format on
    imgProgress.Picture = StoredImage("imgProgress.gif");
    imgProgress.Visible = false;
    imgProgress1.Visible = false;
    imgProgress1.BackColor = SelectionYellow;
    Shape1.Visible = false;
}

void ResetForms() {
    std::destroy_at(&frmField);
    std::construct_at(&frmField);
    std::destroy_at(&frmProgress);
    std::construct_at(&frmProgress);
}
