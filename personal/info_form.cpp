#include "personal/info_form.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

#include "platform/blit.h"
#include "view/stored_pictures.h"

namespace {

constexpr Colour DeepBlue = Rgb(24, 44, 79);

// A run of slots, side by side in rows.
struct SlotRun {
    int first;
    int count;
    int columns;
    int left, top;
    int stepX, stepY;
    int width, height;
    const char* tag;
};

// clang-format off
constexpr SlotRun SlotRuns[] = {
    // first count cols left  top stepX stepY width height tag
    {  0,    1,    1,  152,  218,    0,    0,  117,  42, "base-large"},  // the hand
    {  1,    1,    1,   27,  218,    0,    0,  117,  42, "base-large"},
    {  2,    1,    1,  152,  268,    0,    0,  117,  42, "base-large"},
    {  3,    1,    1,   27,  268,    0,    0,  117,  42, "base-large"},
    {  4,    2,    1,  227,  120,    0,   48,   42,  42, ""},            // head, body
    {  6,    1,    1,  277,  168,    0,    0,   42,  42, ""},            // back
    {  7,    3,    1,   27,   68,    0,   50,   42,  42, ""},            // belt
    { 10,   12,    3,  277,  218,   50,   50,   42,  42, ""},            // the pack's pockets
    { 22,    8,    8,    8,  624,   16,    0,    9,  10, ""},
    { 30,   10,    1,  622,   68,    0,   50,  117,  42, "base-large"},  // the ground, three pages
    { 40,   10,    1,  622,   68,    0,   50,  117,  42, "base-large"},
    { 50,   10,    1,  622,   68,    0,   50,  117,  42, "base-large"},
    {100,    1,    1,  504,  144,    0,    0,   42,  42, ""},            // the hand of the pointer
};
// clang-format on

// The ground list's plate lies over the ends of the attributes' bars: a look makes perception 150, and its
// bar runs on into the list.
constexpr int GroundEdge = 615;
constexpr int GroundTop = 54;

PictureRef PartOf(const Picture& whole, const Control& place) {
    Picture part(place.Width, place.Height);
    BitBlt(part, 0, 0, place.Width, place.Height, whole, place.Left, place.Top, RasterOp::SRCCOPY);
    return std::make_shared<const Picture>(std::move(part));
}

void Paint(TextBox& box, const char* text) {
    box.Text = text;
    box.BackColor = DeepBlue;
    box.ForeColor = PaleBlue;
}

}  // namespace

InfoForm frmInfo;

InfoForm::InfoForm() {
    name = "frmInfo";
    Caption = "Sarnoth III :: Personal Info";
    Width = 760;
    Height = 640;
    Visible = false;
    canvas = StoredPicture("frmInfo.bmp");
    PutPictures();
    PutSlots();
    PutAwards();
    PutTexts();
    PutButtons();
    Put(imgDrag, "imgDrag", *this, 328, 168, 42, 42);  // in front of everything
    imgDrag.Enabled = false;
}

void InfoForm::PutPictures() {
    // clang-format off
    //  control      name           in     left top width height
    Put(picScript,   "picScript",   *this,   0,   0, 450,  16);
    Put(imgFace,     "imgFace",     *this,  78,  69, 140, 140);
    Put(imgChevron,  "imgChevron",  *this, 264,  72,  32,  32);
    Put(imgManFlag,  "imgManFlag",  *this, 490,  90,  18,  12);
    Put(imgPack,     "imgPack",     *this, 277, 218, 142, 192);
    Put(imgDragSwap, "imgDragSwap", *this, 376, 168,  42,  42);
    Put(imgGround,   "imgGround",   *this, GroundEdge, GroundTop, 750 - GroundEdge, 358);
    // clang-format on
    picScript.canvas = StoredPicture("picScript.bmp");
    picScript.Visible = false;
    imgManFlag.Picture = StoredImage("imgManFlag.gif");
    imgDragSwap.Visible = false;
    imgGround.Picture = PartOf(StoredPicture("frmInfo.bmp"), imgGround);
    for (ImageControl* behindSlots : {&imgFace, &imgPack, &imgDragSwap, &imgGround})
        behindSlots->Enabled = false;  // the window gets the mouse
}

void InfoForm::PutSlots() {
    for (const SlotRun& run : SlotRuns) {
        for (int i = 0; i < run.count; ++i) {
            ImageControl& image = imgInv[run.first + i];
            Put(image, "imgInv", *this, run.left + i % run.columns * run.stepX,
                run.top + i / run.columns * run.stepY, run.width, run.height);
            image.index = run.first + i;
            image.Tag = run.tag;
            image.Enabled = false;  // the window gets the mouse
        }
    }
    // The spare row never shows what lies in it, so whatever was laid there would be lost.
    for (int slot = FirstSpareSlot; slot <= LastSpareSlot; ++slot)
        imgInv[slot].Visible = false;
}

void InfoForm::PutAwards() {
    constexpr int Columns = 5;
    for (int i = 0; i < AwardPlaces; ++i) {
        Put(imgAward[i], "imgAward", *this, 26 + i % Columns * 110, 417 + i / Columns * 40, 105, 41);
        imgAward[i].index = i;
    }
    imgAward[0].ToolTipText = "Medal of Honor";
    Put(imgAwardBorder, "imgAwardBorder", *this, 368, 112, 102, 34);
    imgAwardBorder.Picture = StoredImage("imgAwardBorder.gif");
    imgAwardBorder.Visible = false;
    imgAwardBorder.Enabled = false;
}

void InfoForm::PutTexts() {
    // clang-format off
    //  control      name           in     left  top width height
    Put(txtAPC,      "txtAPC",      *this,  528,  56,   49,  13);
    Put(txtFullname, "txtFullname", *this,  224,  24,  297,  19);
    Put(Picture2,    "Picture2",    *this,  448, 264,  145, 158);
    Put(lblInv,      "lblInv",      Picture2, 9,   9,  127, 140);
    // clang-format on
    Paint(txtAPC, "   APC  ");
    Paint(txtFullname, "");
    txtAPC.SeeThrough = txtFullname.SeeThrough = true;  // the sheet has light cards in their places
    Picture2.canvas = StoredPicture("Picture2.bmp");
    Picture2.Visible = false;
    lblInv.BackColor = Rgb(64, 64, 64);
    lblInv.ForeColor = Rgb(200, 198, 112);
}

void InfoForm::PutButtons() {
    static constexpr const char* Pages[] = {"1", "2", "3"};
    for (int page = 0; page < GroundPages; ++page) {
        Put(cmdGndPage[page], "cmdGndPage", *this, 680 + 16 * page, 40, 17, 25);
        cmdGndPage[page].index = page;
        cmdGndPage[page].Caption = Pages[page];
    }
    cmdGndPage[0].Enabled = false;
    // clang-format off
    //  control        name         in     left  top width height
    Put(cmdPrev,       "cmdPrev",   *this,  528,  72,   25,  33);
    Put(cmdNext,       "cmdNext",   *this,  552,  72,   25,  33);
    Put(picB1,         "picB1",     *this,  536, 424,   49,  17);
    Put(imgFlag,       "imgFlag",   *this,  246, 219,   18,  12);
    Put(imgDel,        "imgDel",    *this,  253, 219,   14,  12);
    Put(imgUpDn[1],    "imgUpDn",   *this,  154, 246,   14,  12);
    Put(imgUpDn[2],    "imgUpDn",   *this,  253, 233,   14,  12);
    Put(imgUpDn[3],    "imgUpDn",   *this,  253, 246,   14,  12);
    Put(timerArrow,    "timerArrow", *this,   0,   0,    0,   0);
    // clang-format on
    cmdPrev.Caption = "<";
    cmdNext.Caption = ">";
    picB1.Tag = "8";
    imgFlag.Picture = StoredImage("imgFlag.gif");
    imgDel.Picture = StoredImage("imgDel.gif");
    imgDel.Visible = false;
    for (int i = imgUpDn.Lower; i <= imgUpDn.Upper; ++i) {
        imgUpDn[i].index = i;
        imgUpDn[i].Picture = StoredImage("imgUpDn" + std::to_string(i) + ".gif");
        imgUpDn[i].Visible = false;
    }
    timerArrow.Enabled = false;
}
