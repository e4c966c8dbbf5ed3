// The main window and the progress window as records: which controls they hold, where, and the values that
// belong to the window rather than to the game.
#pragma once

#include "platform/controls.h"
#include "platform/numbers.h"

constexpr int UnitPlaces = 40;  // units that are ever drawn: the squad and the computer's team

constexpr int ViewLeft = 20;  // where the field is seen on the window, and stands when nothing is scrolled
constexpr int ViewTop = 10;
constexpr int ViewWidth = 760;
constexpr int ViewHeight = 460;

struct FieldForm : Form {
    FieldForm();

    MenuItem mnuInfo;
    MenuItem mnuExit;

    PictureBox picSlateU;
    PictureBox picSlateStripes;
    PictureBox picShade;
    ImageControl imgMarkH;
    PictureBox picSlateL;
    PictureBox picSlateR;
    ScrollBar VScrollArea{ControlKind::VScrollBar};
    ImageControl imgMarkV;
    PictureBox picSlateD;
    PictureBox picAreaWhole;  // the big map, in the field's place while it is up
    PictureBox area;          // the field, moved behind its window
    Array<Label, 0, 0> lblChk;
    Shape shpSelect;
    ImageControl imgBlowup;
    ImageControl imgCover;

    ScrollBar HScrollArea{ControlKind::HScrollBar};
    ComboBox cmbLog{ControlKind::Combo};
    PictureBox picAreaMap;
    PictureBox picAreaMapCover;  // the lit window
    Shape shpAreaMap2;
    Shape lineAreaMapH{ControlKind::Line};
    Shape lineAreaMapV{ControlKind::Line};
    Array<PictureBox, 0, UnitPlaces - 1> picAreaMapUnit;
    Shape Line1{ControlKind::Line};
    ImageControl imgBars;
    Array<ImageControl, 0, 15> imgBar;  // 0 to 3 the bars, then three digits for each
    ImageControl imgBarWunder;
    ImageControl imgBarWcolor;
    ImageControl imgBarWcover;
    Array<ImageControl, 0, 3> imgStance;
    ImageControl imgStop;
    ImageControl imgEnemyCount;
    PictureBox picBarWeapon;
    Array<ImageControl, 0, 0> imgInv;
    ImageControl imgFlag;
    ComboBox comboMode{ControlKind::List};
    Button cmdNextTurn;

    PictureBox picForest;                         // sheet of tree tops, never shown
    Array<Picture, 0, UnitPlaces - 1> picBuffer;  // the pixels of area under each unit

    bool bigMapShown = false;
    bool mapIsPainted = false;  // the whole map: units and the mini map wait meanwhile
    i16 voiceCycle = 1;         // the next of the sound slots 1 to 4

  private:
    void PutTopLevel();
    void PutPanel();
    void PutMiniMap();
    void PutBars();
    void PutStances();
};

struct ProgressForm : Form {
    ProgressForm();

    ImageControl imgProgress;
    Shape Shape1;
    PictureBox imgProgress1;  // the bar
};

extern FieldForm frmField;
extern ProgressForm frmProgress;
