#include "view/field_form.h"

#include <string>

#include "state/state.h"
#include "view/colours.h"
#include "view/stored_pictures.h"

namespace {

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
    BackColor = FieldGreen;  // seen while a map is read, when the field itself is hidden
    Visible = false;
    PutTopLevel();
    PutPanel();
    PutMiniMap();
    PutBars();
    PutStances();
    for (Picture& buffer : picBuffer)
        buffer = Picture(CellSize, CellSize);
}

void FieldForm::PutTopLevel() {
    // clang-format off
    //  control      name           in     left  top  width height
    Put(mnuInfo,     "mnuInfo",     *this,    0,    0,    0,   0);
    Put(mnuExit,     "mnuExit",     *this,    0,    0,    0,   0);
    Put(picShade,    "picShade",    *this,  604,  609, 1540, 940);
    Put(picSlateStripes, "picSlateStripes", *this, 0, 512, 801, 12);
    Put(area,        "area",        *this,   20,   10, 1520, 920);
    PutArray(lblChk, "lblChk",      area,    40,  440,   20,  17);
    Put(shpSelect,   "shpSelect",   area,     8,  440,   20,  20);
    Put(imgBlowup,   "imgBlowup",   area,   680,    0,   60,  60);
    Put(imgCover,    "imgCover",    area,   660,   20,   20,  20);
    Put(picForest,   "picForest",   area,   288,   24,  440,  40);
    Put(picAreaWhole, "picAreaWhole", *this,  0, 376,   33,   9);
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
                            static_cast<Control*>(&imgCover), static_cast<Control*>(&picForest),
                            static_cast<Control*>(&picAreaWhole), static_cast<Control*>(&lblChk[0])})
        hidden->Visible = false;
    for (Control* overlay : {static_cast<Control*>(&shpSelect), static_cast<Control*>(&imgBlowup),
                             static_cast<Control*>(&imgCover)})
        overlay->Enabled = false;  // a click goes through to the field
    lblChk[0].Caption = "255";
    picShade.BackColor = FieldGreen;
    Stretch(VScrollArea, 460);
    picForest.canvas = StoredPicture("picForest.bmp");
    picSlateL.canvas = StoredPicture("picSlateL.bmp");
    picSlateR.canvas = StoredPicture("picSlateR.bmp");
    picSlateU.canvas = StoredPicture("picSlateU.bmp");
    picSlateStripes.canvas = StoredPicture("picSlateStripes.bmp");
    imgMarkH.Picture = StoredImage("imgMarkH.gif");
    imgMarkV.Picture = StoredImage("imgMarkV.gif");
}

void FieldForm::PutPanel() {
    // clang-format off
    //  control       name             in          left  top  width height
    Put(picSlateD,    "picSlateD",     *this,         0, 470,  801, 200);
    Put(HScrollArea,  "HScrollArea",   picSlateD,   568,   0,  209,  17);
    Put(cmbLog,       "cmbLog",        picSlateD,    16,   8,  425,  21);
    Put(Line1,        "Line1",         picSlateD,   472,  40,  144,   0);
    Put(imgEnemyCount, "imgEnemyCount", picSlateD,  448,   8,   25,  19);
    Put(picBarWeapon, "picBarWeapon",  picSlateD,   656,  31,  117,  42);
    PutArray(imgInv,  "imgInv",        picBarWeapon,  0,   0,  117,  42);
    Put(imgFlag,      "imgFlag",       picBarWeapon, 96,   2,   18,  12);
    Put(comboMode,    "comboMode",     picSlateD,   656,  80,  121,  21);
    Put(cmdNextTurn,  "cmdNextTurn",   picSlateD,   656, 120,  123,  25);
    // clang-format on
    Stretch(HScrollArea, 760);
    cmbLog.BackColor = Rgb(0, 64, 0);
    cmbLog.ForeColor = Rgb(0, 192, 0);
    comboMode.BackColor = Rgb(24, 41, 31);
    comboMode.ForeColor = Rgb(200, 214, 196);
    imgEnemyCount.Visible = false;
    imgEnemyCount.Tag = "0";
    imgInv[0].Tag = "base-large";
    imgFlag.Picture = StoredImage("imgFlag.gif");
    cmdNextTurn.Caption = "End Turn";
    picBarWeapon.canvas = StoredPicture("picBarWeapon.bmp");
    picSlateD.canvas = StoredPicture("picSlateD.bmp");
}

void FieldForm::PutMiniMap() {
    // clang-format off
    //  control          name               in              left top width height
    Put(picAreaMap,      "picAreaMap",      picSlateD,        16, 40,  152,    92);
    Put(picAreaMapCover, "picAreaMapCover", picAreaMap,        0,  0,   76,    46);
    Put(shpAreaMap2,     "shpAreaMap2",     picAreaMapCover,   0,  0,   76,    46);
    Put(lineAreaMapH,    "lineAreaMapH",    picAreaMapCover,   0, 32,  152,     0);
    Put(lineAreaMapV,    "lineAreaMapV",    picAreaMapCover,  40,  0,    0,    92);
    PutArray(picAreaMapUnit, "picAreaMapUnit", picAreaMap,   104,  8,    2,     2);
    // clang-format on
    for (PictureBox* map : {&picAreaMap, &picAreaMapCover}) {
        map->BackColor = FieldGreen;
        map->canvas = Picture(map->Width, map->Height, FieldGreen);
    }
    for (Shape* frame : {&shpAreaMap2, &lineAreaMapH, &lineAreaMapV})
        frame->BorderColor = SelectionYellow;
    lineAreaMapH.Visible = false;
    lineAreaMapV.Visible = false;
    for (PictureBox& dot : picAreaMapUnit) {
        dot.Visible = false;  // until its unit is first drawn
        dot.Enabled = false;  // a click is one on the map
    }
}

void FieldForm::PutBars() {
    constexpr int BarCount = 4;
    constexpr int DigitsOfBar = 3;
    Put(imgBars, "imgBars", picSlateD, 423, 75, 210, 31);
    imgBars.Picture = StoredImage("imgBars.gif");
    imgBars.Tag = "off";
    for (int bar = 0; bar < BarCount; ++bar) {
        Put(imgBar[bar], "imgBar", picSlateD, 472, 77 + 8 * bar, 0, 3);
        imgBar[bar].Picture = StoredImage("imgBar" + std::to_string(bar) + ".bmp");
    }
    for (int digit = 0; digit < BarCount * DigitsOfBar; ++digit)
        Put(imgBar[BarCount + digit], "imgBar", picSlateD, 614 + 5 * (digit % DigitsOfBar),
            76 + 8 * (digit / DigitsOfBar), 5, 6);
    for (int i = 0; i <= imgBar.Upper; ++i)
        imgBar[i].index = i;
    // clang-format off
    //  control       name            in          left  top  width height
    Put(imgBarWunder, "imgBarWunder", picSlateD,   776,  31,    5,  42);
    Put(imgBarWcolor, "imgBarWcolor", picSlateD,   777,  72,    3,   0);
    Put(imgBarWcover, "imgBarWcover", picSlateD,   777,  32,    3,  40);
    // clang-format on
    imgBarWunder.Picture = StoredImage("imgBarWunder.bmp");
    imgBarWcover.Picture = StoredImage("imgBarWcover.bmp");
}

void FieldForm::PutStances() {
    static constexpr const char* Tips[] = {"prone", "crouch", "stand", "run"};
    for (int stance = 0; stance <= imgStance.Upper; ++stance) {
        ImageControl& image = imgStance[stance];
        Put(image, "imgStance", picSlateD, 471 + 35 * stance, 48, 32, 25);
        image.index = stance;
        image.Picture = StoredImage("stance" + std::to_string(stance) + "off.gif");
        image.ToolTipText = Tips[stance];
    }
    Put(imgStop, "imgStop", picSlateD, 616, 48, 32, 25);
    imgStop.Picture = StoredImage("stance4off.gif");
    imgStop.ToolTipText = "stop for fire";
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
