// The typewriter's pen, and the bars of the sheet that it writes.
#include "personal/typewriter.h"

#include "personal/info_form.h"
#include "personal/personal_file.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/stored_pictures.h"

namespace {

using TypewriterTest = GameTest;

TEST_F(TypewriterTest, EachCharacterMovesThePen) {
    struct Case {
        const char* text;
        int right, down;  // from where the line starts
    };
    constexpr Case Cases[] = {{"A", 10, 0},      {"z9-", 30, 0}, {".;", 14, 0}, {" ", 10, 0},
                              {"AB\rC", 10, 10}, {".@", 14, 0}};  // one without a glyph: as before
    Picture paper(200, 60);
    for (const Case& c : Cases) {
        Typewriter(c.text, false, paper, 4, 6);
        EXPECT_EQ(penX, 4 + c.right) << c.text;
        EXPECT_EQ(penY, 6 + c.down) << c.text;
    }
    Typewriter("D\rE", false, paper, AtThePen, 50);
    EXPECT_EQ(penX, 4 + 10) << "one coordinate at the pen is enough to go on; the line start stays";
    EXPECT_EQ(penY, 6 + 10);
}

TEST_F(TypewriterTest, FourBarsOfTheSheetStandUnderOtherLabels) {
    StartGame();
    Unit& unit = UnitTable[curUnit];
    unit.vitality = 1;
    unit.strength = 3;
    unit.intelligence = 20;
    unit.stealth = 60;
    unit.mood = 40;
    unit.marksmanship = 80;
    LoadInfo();
    struct Case {
        const char* attribute;
        int y, length;  // half as much again and ten
    };
    constexpr Case Cases[] = {{"vitality", 135, 12},     {"strength", 155, 14},  // 11.5 and 14.5 to the even
                              {"intelligence", 235, 40}, {"marksmanship", 255, 130},
                              {"mood", 275, 70},         {"stealth", 215, 100}};
    const Picture& blank = StoredPicture("frmInfo.bmp");
    for (const Case& c : Cases) {
        const int last = 440 + c.length;
        EXPECT_NE(frmInfo.canvas.Pixel(last, c.y), blank.Pixel(last, c.y)) << c.attribute;
        EXPECT_EQ(frmInfo.canvas.Pixel(last + 1, c.y), blank.Pixel(last + 1, c.y)) << c.attribute;
    }
}

}  // namespace
