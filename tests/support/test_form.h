// A small window with a control of every kind, and a dialog before it.
#pragma once

#include "platform/controls.h"

struct TestForm : Form {
    TestForm() {
        name = "frmTest";
        Caption = "Test";
        Width = 400;
        Height = 300;
        // clang-format off
        Put(mnuGo,     "mnuGo",     *this,      0,   0,   0,   0);
        Put(picBoard,  "picBoard",  *this,    -50, -40, 300, 240);
        Put(imgMark,   "imgMark",   picBoard, 100,  80,  20,  20);
        Put(shpFrame,  "shpFrame",  picBoard, 130,  80,  20,  10);
        Put(picSlate,  "picSlate",  *this,      0, 200, 400, 100);
        Put(Line1,     "Line1",     picSlate, 300,  10,  50,   0);
        Put(HScroll,   "HScroll",   picSlate,   0,   0, 200,  17);
        Put(VScroll,   "VScroll",   *this,    380,   0,  17, 180);
        Put(cmbLog,    "cmbLog",    picSlate,   0,  20, 200,  21);
        Put(comboMode, "comboMode", picSlate,   0,  45, 200,  21);
        Put(cmdGo,     "cmdGo",     picSlate,   0,  70, 100,  25);
        PutArray(imgStance, "imgStance", picSlate, 250, 50, 32, 25);
        Put(lblNote,   "lblNote",   *this,    252,   0, 127, 140);
        Put(txtLine,   "txtLine",   *this,    252, 150, 120,  19);
        Put(timTick,   "timTick",   *this,      0,   0,   0,   0);
        Put(imgDrag,   "imgDrag",   *this,    340, 180,  42,  42);
        // clang-format on
        mnuGo.Caption = "&Go";
        picBoard.canvas = Picture(300, 240);
        picBoard.canvas.Fill(Rgb(10, 20, 30));
        picSlate.BackColor = Rgb(90, 80, 70);
        shpFrame.BorderColor = Line1.BorderColor = Rgb(255, 255, 0);
        for (ScrollBar* bar : {&HScroll, &VScroll}) {
            bar->Max = 760;
            bar->SmallChange = 20;
            bar->LargeChange = 760;
        }
        cmdGo.Caption = "Go";
        imgDrag.Enabled = false;  // it leaves the mouse to what lies beneath it
    }

    MenuItem mnuGo;
    PictureBox picBoard;
    ImageControl imgMark;
    Shape shpFrame;
    PictureBox picSlate;
    Shape Line1{ControlKind::Line};
    ScrollBar HScroll{ControlKind::HScrollBar};
    ScrollBar VScroll{ControlKind::VScrollBar};
    ComboBox cmbLog{ControlKind::Combo};
    ComboBox comboMode{ControlKind::List};
    Button cmdGo;
    Array<ImageControl, 0, 1> imgStance;
    Label lblNote;
    TextBox txtLine;
    Timer timTick;
    ImageControl imgDrag;
};

struct TestDialog : Form {
    TestDialog() {
        name = "frmDialog";
        Width = Height = 100;
        Visible = false;
        Put(cmdOk, "cmdOk", *this, 10, 10, 50, 25);
        Put(timTick, "timTick", *this, 0, 0, 0, 0);
    }

    Button cmdOk;
    Timer timTick;
};
