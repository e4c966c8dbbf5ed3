// The sheet of a soldier's file: who he is, his bars, his ribbons, and the button for the rest.
#include "personal/dossier.h"

#include <cmath>

#include "personal/info_form.h"
#include "personal/personal_file.h"
#include "platform/keys.h"
#include "tests/support/game_test.h"
#include "view/depot_form.h"
#include "view/stored_pictures.h"

namespace {

class DossierTest : public GameTest {
  protected:
    DossierTest() { StartGame(); }

    Unit& unit = UnitTable[0];
};

TEST_F(DossierTest, TheInformationHasTenLinesAndAFaceThatIsMissingIsNamed) {
    unit.time = 7;
    unit.cellX = 70;
    for (const auto& [team, word] : {std::pair{0, "fighters"}, {1, "enemies"}, {2, "civilians"}, {3, ""}}) {
        unit.team = team;
        FillInfoPanel();
        EXPECT_EQ(frmInfo.lblInv.Caption,
                  "name: Marcus Hale\rteam: " + std::string(word) +
                      "\rhealth: 51\rtime: 7\rx: 70\ry: " + std::to_string(unit.cellY) +
                      "\rori: E\rweapon: m4\rweapon power: 57\rweapon accur: 80");
    }
    for (const auto& [type, file] : {std::pair{"j", "usa01.jpg"}, {"g", "usa01.gif"}}) {
        unit.faceType = type;
        EXPECT_NE(ErrorOf(LoadInfo).find(file), std::string::npos) << "no such face";
    }
}

TEST_F(DossierTest, ANameIsCutToTwentySixLetters) {
    const auto sheetOf = [this](const char* name) {
        unit.name = name;
        LoadInfo();
        return frmInfo.canvas;
    };
    const Picture whole = sheetOf("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_TRUE(whole.SameAs(sheetOf("ABCDEFGHIJKLMNOPQRSTUVWXYZ1234")));
    EXPECT_FALSE(whole.SameAs(sheetOf("ABCDEFGHIJKLMNOPQRSTUVWXY")));
}

// Each attribute has a value of its own, so that its bar has a length of its own: half as much again and ten.
TEST_F(DossierTest, FourBarsOfTheSheetStandUnderOtherLabels) {
    struct Case {
        u8 Unit::*attribute;
        int value, y, length;
    };
    constexpr Case Cases[] = {
        {&Unit::vitality, 1, 135, 12},      {&Unit::strength, 3, 155, 14},  // 11.5 and 14.5 to the even
        {&Unit::intelligence, 20, 235, 40}, {&Unit::marksmanship, 80, 255, 130},
        {&Unit::mood, 40, 275, 70},         {&Unit::stealth, 60, 215, 100}};
    for (const Case& c : Cases)
        unit.*c.attribute = c.value;
    LoadInfo();
    const Picture& blank = StoredPicture("frmInfo.bmp");
    for (const Case& c : Cases) {
        const int last = 440 + c.length;
        EXPECT_NE(frmInfo.canvas.Pixel(last, c.y), blank.Pixel(last, c.y)) << c.y;
        EXPECT_EQ(frmInfo.canvas.Pixel(last + 1, c.y), blank.Pixel(last + 1, c.y)) << c.y;
    }
}

// Relative luminance and contrast as accessibility guidelines define them.
double Luminance(Colour colour) {
    constexpr double Weights[] = {0.0722, 0.7152, 0.2126};  // blue, green, red
    double sum = 0;
    for (int channel = 0; channel < 3; ++channel) {
        const double share = static_cast<double>(colour >> 8 * channel & 0xFF) / 255;
        sum += Weights[channel] * (share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4));
    }
    return sum;
}

TEST_F(DossierTest, TheTextBoxesCanBeReadOnTheSheet) {
    for (const TextBox* box : {&frmInfo.txtAPC, &frmInfo.txtFullname}) {
        ASSERT_TRUE(box->SeeThrough);
        for (int y = box->Top + 1; y < box->Top + box->Height - 1; ++y) {
            for (int x = box->Left + 1; x < box->Left + box->Width - 1; ++x) {
                const double ground = Luminance(StoredPicture("frmInfo.bmp").Pixel(x, y));
                ASSERT_GE((ground + 0.05) / (Luminance(box->ForeColor) + 0.05), 4.5) << x << "," << y;
            }
        }
    }
}

// A look leaves 150 in perception; its bar is as long as ever, and goes beneath the list's plate.
TEST_F(DossierTest, TheLongestBarEndsBeneathTheGroundList) {
    UnitTable[curUnit].perception = 150;
    LoadInfo();
    constexpr int BarY = 195;
    constexpr int OnBar = 640;
    const Picture& sheet = StoredPicture("frmInfo.bmp");
    EXPECT_NE(frmInfo.canvas.Pixel(OnBar, BarY), sheet.Pixel(OnBar, BarY));
    const ImageControl& plate = frmInfo.imgGround;
    EXPECT_TRUE(plate.Visible);
    EXPECT_EQ(plate.Picture->Pixel(OnBar - plate.Left, BarY - plate.Top), sheet.Pixel(OnBar, BarY));
}

TEST_F(DossierTest, TheButtonBringsTheInformationAndThenLeavesTheFile) {
    groundPage = 1;
    LoadInfo();
    const auto face = [](int place) { return frmInfo.picB1.canvas.SameAs(*frmDepot.imgBut[place].Picture); };
    EXPECT_TRUE(face(8) && !frmInfo.Picture2.Visible);
    for (const auto& [pressed, released] : {std::pair{9, 6}, {7, 8}}) {
        Dispatch({EventKind::MouseDown, "frmInfo.picB1", -1, LeftButton});
        EXPECT_TRUE(face(pressed)) << pressed;
        EXPECT_EQ(host.sounds.back().fileName, "\\wav\\click.wav");
        Dispatch({EventKind::MouseUp, "frmInfo.picB1", -1, LeftButton});
        EXPECT_TRUE(face(released)) << released;
        EXPECT_EQ(frmInfo.Picture2.Visible, released == 6);
    }
    EXPECT_FALSE(frmInfo.Visible);
    EXPECT_EQ(groundPage, 0);
}

TEST_F(DossierTest, EachCountOfAnAwardHasItsPictureAndFromTheSecondItsNumber) {
    LoadInfo();
    for (const auto& [place, file, tip] : {std::tuple{0, "\\pic\\awards\\0001.bmp", "Medal of Honor"},
                                           {1, "", "Distinguished Service Cross"},
                                           {16, "\\pic\\awards\\1602.bmp", "Good Conduct Medal: 2"}}) {
        Dispatch({EventKind::MouseMove, "frmInfo.imgAward", place, 0, 0, 5, 5});
        EXPECT_EQ(frmInfo.imgAward[place].ToolTipText, tip);
        EXPECT_EQ(frmInfo.imgAward[place].PictureName, file);
    }
}

}  // namespace
