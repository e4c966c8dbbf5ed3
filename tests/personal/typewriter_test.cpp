// The typewriter and the sheet that it writes, checked on the pictures themselves.
#include "personal/typewriter.h"

#include "personal/dossier.h"
#include "personal/info_form.h"
#include "personal/personal_file.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/depot_form.h"
#include "view/stored_pictures.h"

namespace {

constexpr Colour Paper = Rgb(90, 110, 130);

// Whether glyph number `glyph` stands at (x, y): its mask blacks the paper and its colour is laid over.
bool GlyphStands(const Picture& on, int glyph, int x, int y) {
    const Picture& strip = frmDepot.picScript.canvas;
    for (int i = 0; i < 64; ++i) {
        const bool inked = strip.Pixel(glyph * 9 + i % 8, i / 8) == Rgb(0, 0, 0);
        if (inked && on.Pixel(x + i % 8, y + i / 8) != strip.Pixel(glyph * 9 + i % 8, 8 + i / 8))
            return false;
    }
    return true;
}

class TypewriterTest : public GameTest {};

TEST_F(TypewriterTest, EveryCharacterHasItsGlyphAndAdvance) {
    struct Case {
        const char* text;
        int glyph, advance;
    };
    constexpr Case Cases[] = {{"A", 0, 10},  {"z", 25, 10}, {".", 26, 7},  {";", 31, 7},
                              {"-", 32, 10}, {"%", 37, 10}, {"0", 38, 10}, {"9", 47, 10}};
    for (const Case& c : Cases) {
        Picture paper(40, 30, Paper);
        Typewriter(c.text, false, paper, 4, 6);
        EXPECT_TRUE(GlyphStands(paper, c.glyph, 4, 11)) << c.text;
        EXPECT_EQ(penX, 4 + c.advance) << c.text;
    }
    Picture paper(60, 30, Paper);
    Typewriter(".@A", false, paper, 0, 0);
    EXPECT_TRUE(GlyphStands(paper, 0, 14, 5)) << "a character without a glyph keeps the last advance";
}

TEST_F(TypewriterTest, TheShadowLiesOnePixelToTheSouthEast) {
    Picture plain(40, 30, Paper);
    Picture shaded(40, 30, Paper);
    Typewriter("H", false, plain, 4, 6);
    Typewriter("H", true, shaded, 4, 6);
    for (int y = 11; y < 20; ++y)
        for (int x = 4; x < 13; ++x) {
            const bool shadow = plain.Pixel(x, y) == Paper && plain.Pixel(x - 1, y - 1) != Paper;
            ASSERT_EQ(shaded.Pixel(x, y), shadow ? Rgb(0, 0, 0) : plain.Pixel(x, y)) << x << " " << y;
        }
}

TEST_F(TypewriterTest, BlanksReturnsAndThePenCarryOn) {
    Picture paper(100, 60, Paper);
    Typewriter("A B\rC", false, paper, 10, 5);
    EXPECT_TRUE(GlyphStands(paper, 0, 10, 10));
    EXPECT_TRUE(GlyphStands(paper, 1, 30, 10));
    EXPECT_TRUE(GlyphStands(paper, 2, 10, 20));
    Typewriter("D\rE", false, paper, AtThePen, 50);
    EXPECT_TRUE(GlyphStands(paper, 3, 20, 20)) << "one coordinate at the pen is enough to go on there";
    EXPECT_TRUE(GlyphStands(paper, 4, 10, 30)) << "the line start stays";
}

TEST_F(TypewriterTest, ABarHasItsLengthAndItsRamp) {
    Form form;
    for (const auto& [value, length] : {std::pair{0, 10}, {1, 12}, {3, 14}, {255, 392}, {100, 160}}) {
        form.canvas = Picture(440, 40, Paper);  // 11.5, 14.5 and 392.5 to the even
        penX = 9;
        StatBar(value, 20, form);
        EXPECT_NE(form.canvas.Pixel(9 + length, 19), Paper) << value;
        EXPECT_EQ(form.canvas.Pixel(10 + length, 25), Paper) << value;
    }
    EXPECT_EQ(form.canvas.Pixel(10 + 80, 22), Rgb(131, 131, 0)) << "step 31 of 63: 4 less each";
}

TEST_F(TypewriterTest, TheSheetHasEverythingInItsPlace) {
    StartGame();
    Unit& unit = UnitTable[curUnit];
    unit.name = "abcdefghijklmnopqrstuvwxyz1234";
    unit.rank = 16;  // CPT
    unit.vitality = 100;
    unit.intelligence = 20;
    unit.stealth = 60;
    unit.mood = 40;
    unit.marksmanship = 80;
    LoadInfo();
    const Picture& sheet = frmInfo.canvas;
    EXPECT_TRUE(GlyphStands(sheet, 2, 260, 85)) << "C of the rank, after two blanks";
    EXPECT_TRUE(GlyphStands(sheet, 25, 490, 115)) << "the name's 26th letter, the last that is shown";
    EXPECT_FALSE(GlyphStands(sheet, 39, 500, 115));
    EXPECT_TRUE(GlyphStands(sheet, 39, 587, 125)) << "1 of 100, after 12 of 10, a colon of 7 and two blanks";
    EXPECT_TRUE(GlyphStands(sheet, 4, 440, 125 + 13 * 20)) << "E of the last row";
    const Picture blank = StoredPicture("frmInfo.bmp");
    const auto barLength = [&](int y) {
        int x = 441;
        while (sheet.Pixel(x, y) == sheet.Pixel(x, y - 1) && sheet.Pixel(x, y) != blank.Pixel(x, y))
            ++x;
        return x - 441;
    };
    EXPECT_EQ(barLength(135), 160);
    EXPECT_EQ(barLength(235), 40) << "the intelligence's bar stands under the stealth";
    EXPECT_EQ(barLength(255), 130) << "the marksmanship's under the mood";
    EXPECT_EQ(barLength(275), 70) << "and the other way round";
    EXPECT_EQ(barLength(215), 100) << "the stealth's bar stands under the intelligence";
}

}  // namespace
