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
    for (int row = 0; row < 8; ++row) {
        for (int column = 0; column < 8; ++column) {
            const bool inked = strip.Pixel(glyph * 9 + column, row) == Rgb(0, 0, 0);
            if (inked && on.Pixel(x + column, y + row) != strip.Pixel(glyph * 9 + column, 8 + row))
                return false;
        }
    }
    return true;
}

// Bounds of what was written on `on`, shadow included.
int LastInkedColumn(const Picture& on) {
    for (int x = on.Width() - 1; x >= 0; --x)
        for (int y = 0; y < on.Height(); ++y)
            if (on.Pixel(x, y) != Paper) return x;
    return -1;
}

class TypewriterTest : public GameTest {};

TEST_F(TypewriterTest, EveryCharacterHasItsGlyphAndAdvance) {
    struct Case {
        const char* text;
        int glyph, advance;
    };
    constexpr Case Cases[] = {{"A", 0, 10},  {"a", 0, 10},  {"Z", 25, 10}, {".", 26, 7},  {",", 27, 7},
                              {"'", 28, 7},  {"\"", 29, 7}, {":", 30, 7},  {";", 31, 7},  {"-", 32, 10},
                              {"_", 33, 10}, {"!", 34, 10}, {"?", 35, 10}, {"#", 36, 10}, {"%", 37, 10},
                              {"0", 38, 10}, {"9", 47, 10}};
    for (const Case& c : Cases) {
        Picture paper(40, 30, Paper);
        Typewriter(c.text, false, paper, 4, 6);
        EXPECT_TRUE(GlyphStands(paper, c.glyph, 4, 11)) << c.text;
        EXPECT_LT(LastInkedColumn(paper), 12) << c.text;
        EXPECT_EQ(penX, 4 + c.advance) << c.text;
        EXPECT_EQ(penY, 6);
    }
}

TEST_F(TypewriterTest, TheShadowLiesOnePixelToTheSouthEast) {
    Picture plain(40, 30, Paper);
    Picture shaded(40, 30, Paper);
    Typewriter("H", false, plain, 4, 6);
    Typewriter("H", true, shaded, 4, 6);
    const Picture& strip = frmDepot.picScript.canvas;
    int shadows = 0;
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
            const bool inked = plain.Pixel(x, y) != Paper;
            const int fromX = x - 5;
            const int fromY = y - 12;
            const bool inGlyph = fromX >= 0 && fromX < 8 && fromY >= 0 && fromY < 8;
            const bool shadow = inGlyph && strip.Pixel(7 * 9 + fromX, fromY) == Rgb(0, 0, 0);
            const Colour wanted = inked ? plain.Pixel(x, y) : shadow ? Rgb(0, 0, 0) : Paper;
            ASSERT_EQ(shaded.Pixel(x, y), wanted) << x << " " << y;
            shadows += !inked && shadow ? 1 : 0;
        }
    }
    EXPECT_GT(shadows, 5);
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

TEST_F(TypewriterTest, ACharacterWithoutAGlyphKeepsTheLastAdvance) {
    Picture paper(60, 30, Paper);
    Typewriter(".@A", false, paper, 0, 0);
    EXPECT_TRUE(GlyphStands(paper, 0, 14, 5));
}

TEST_F(TypewriterTest, NumbersArePaddedToFive) {
    EXPECT_EQ(PadNumber(0), "    0");
    EXPECT_EQ(PadNumber(9), "    9");
    EXPECT_EQ(PadNumber(10), "   10");
    EXPECT_EQ(PadNumber(255), "  255");
    EXPECT_EQ(PadNumber(99999), "99999");
}

TEST_F(TypewriterTest, ABarHasItsLengthItsRowsAndItsRamp) {
    struct Case {
        int value, length;
    };
    constexpr Case Cases[] = {
        {0, 10}, {1, 12}, {3, 14}, {100, 160}, {255, 392}};  // 11.5, 14.5 and 392.5 to the even
    for (const Case& c : Cases) {
        Form form;
        form.canvas = Picture(440, 40, Paper);
        penX = 9;
        StatBar(c.value, 20, form);
        for (const int row : {19, 25}) {
            EXPECT_EQ(form.canvas.Pixel(9, row), Paper);
            EXPECT_EQ(form.canvas.Pixel(10, row), Rgb(255, 255, 100));
            EXPECT_NE(form.canvas.Pixel(10 + c.length - 1, row), Paper) << c.value;
            EXPECT_EQ(form.canvas.Pixel(10 + c.length, row), Paper) << c.value;
        }
        EXPECT_EQ(form.canvas.Pixel(10, 18), Paper);
        EXPECT_EQ(form.canvas.Pixel(10, 26), Paper);
        if (c.value != 100) continue;
        EXPECT_EQ(form.canvas.Pixel(10 + 80, 22), Rgb(131, 131, 0)) << "step 31 of 63: 4 less each";
        EXPECT_EQ(form.canvas.Pixel(10 + 159, 22), Rgb(7, 7, 0)) << "step 62";
    }
}

TEST_F(TypewriterTest, TheSheetHasEverythingInItsPlace) {
    StartGame();
    Unit& unit = UnitTable[curUnit];
    unit.name = "abcdefghijklmnopqrstuvwxyz1234";
    unit.rank = 16;  // CPT
    unit.vitality = 100;
    unit.intelligence = 20;
    unit.stealth = 60;
    LoadInfo();
    const Picture& sheet = frmInfo.canvas;
    EXPECT_TRUE(GlyphStands(sheet, 2, 260, 85)) << "C of the rank, after two blanks";
    EXPECT_TRUE(GlyphStands(sheet, 0, 240, 115)) << "the name's first letter, three lines below";
    EXPECT_TRUE(GlyphStands(sheet, 25, 490, 115)) << "its 26th, the last that is shown";
    EXPECT_FALSE(GlyphStands(sheet, 39, 500, 115));
    EXPECT_TRUE(GlyphStands(sheet, 21, 440, 125)) << "V of the first row";
    EXPECT_TRUE(GlyphStands(sheet, 39, 587, 125))
        << "1 of 100, after 12 places of 10, a colon of 7 and two blanks";
    EXPECT_TRUE(GlyphStands(sheet, 4, 440, 125 + 13 * 20)) << "E of the last row";
    const Picture blank = StoredPicture("frmInfo.bmp");
    const auto barEnds = [&](int y) {
        int x = 441;
        while (sheet.Pixel(x, y) == frmInfo.canvas.Pixel(x, y - 1) && sheet.Pixel(x, y) != blank.Pixel(x, y))
            ++x;
        return x;
    };
    EXPECT_EQ(barEnds(135), 441 + 160);
    EXPECT_EQ(barEnds(235), 441 + 40) << "the intelligence's bar stands under the stealth";
    EXPECT_EQ(barEnds(215), 441 + 100) << "the stealth's bar stands under the intelligence";
}

}  // namespace
