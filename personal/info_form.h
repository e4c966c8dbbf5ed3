// The window of one soldier's personal file as a record: its controls, and what it remembers for as long as
// it is open. Shown modally over the field.
#pragma once

#include "platform/controls.h"
#include "platform/numbers.h"

// Slots 0 to 9 are the hand, three long places, head, body, back and the belt.
constexpr int BackSlot = 6;
constexpr int FirstPocket = 10;  // slots 10 to 21, as many as the pack has pockets
constexpr int LastPocket = 21;
constexpr int FirstGround = 30;  // slots 30 to 59 stand for the ground, or for the vehicle store
constexpr int GroundPageSize = 10;
constexpr int GroundPages = 3;
constexpr int FirstSpareSlot = 22;
constexpr int LastSpareSlot = 29;
constexpr int LastBoardSlot = 59;
constexpr int PointerSlot = 100;  // the thing that is dragged lies here
constexpr int NoSlot = -1;
constexpr int AwardPlaces = 25;

constexpr Colour PaleBlue = Rgb(55, 89, 140);  // of words on the boxes

struct InfoForm : Form {
    InfoForm();

    Array<Button, 0, GroundPages - 1> cmdGndPage;
    TextBox txtAPC;
    Button cmdPrev;
    Button cmdNext;
    Timer timerArrow;
    TextBox txtFullname;
    PictureBox picB1;
    PictureBox Picture2;
    Label lblInv;
    PictureBox picScript;
    ImageControl imgFace;
    ImageControl imgChevron;
    ImageControl imgManFlag;
    ImageControl imgFlag;
    ImageControl imgPack;
    ImageControl imgDrag;
    ImageControl imgDragSwap;
    ImageControl imgGround;  // the plate on which the ground list lies
    ImageControl imgDel;
    Array<ImageControl, 1, 3> imgUpDn;
    ImageControl imgAwardBorder;
    Array<ImageControl, 0, AwardPlaces - 1> imgAward;
    Array<ImageControl, 0, PointerSlot> imgInv;  // 60 to 99 have no control

  private:
    void PutPictures();
    void PutSlots();
    void PutTexts();
    void PutButtons();
    void PutAwards();
};

extern InfoForm frmInfo;
