// The typewriter's pen, and the bars of the sheet that it writes.
#include "personal/typewriter.h"

#include "personal/dossier.h"
#include "personal/info_form.h"
#include "personal/personal_file.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/depot_form.h"
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

// The mask is laid on with AND, the colour below it with XOR, both 5 pixels below the pen.
TEST_F(TypewriterTest, AGlyphStandsUnderThePenOnItsShadow) {
    const Picture& strip = frmDepot.picScript.canvas;
    const auto lay = [&](Picture& paper, int glyph, int row, int x, int y, bool invert) {
        for (int j = 0; j < 8; ++j)
            for (int i = 0; i < 8; ++i) {
                const Colour ink = strip.Pixel(glyph * 9 + i, row + j) | ~Colour{0xFFFFFF};
                const Colour was = paper.Pixel(x + i, y + j);
                paper.SetPixel(x + i, y + j, invert ? was ^ (ink & 0xFFFFFF) : was & ink);
            }
    };
    for (const auto& [text, glyph] : {std::pair{"a", 0}, {"Z", 25}, {".", 26}, {"%", 37}, {"9", 47}}) {
        for (const bool shadow : {false, true}) {
            Picture paper(30, 30, Rgb(200, 150, 250));
            Picture expected = paper;
            if (shadow) lay(expected, glyph, 0, 5, 12, false);
            lay(expected, glyph, 0, 4, 11, false);
            lay(expected, glyph, 8, 4, 11, true);
            Typewriter(text, shadow, paper, 4, 6);
            EXPECT_TRUE(paper.SameAs(expected)) << text << shadow;
        }
    }
}

TEST_F(TypewriterTest, NumbersStandRightAlignedInFivePlaces) {
    for (const auto& [value, text] : {std::pair{0, "    0"},
                                      {9, "    9"},
                                      {10, "   10"},
                                      {99, "   99"},
                                      {100, "  100"},
                                      {1000, " 1000"},
                                      {65535, "65535"}})
        EXPECT_EQ(PadNumber(value), text);
}

TEST_F(TypewriterTest, ABarFadesFromYellowToDark) {
    Form form;
    form.canvas = Picture(420, 20);
    const Colour ground = form.canvas.Pixel(0, 0);
    penX = 10;
    StatBar(255, 5, form);  // 392.5 pixels, to the even neighbour
    struct Case {
        int x, y;
        Colour colour;
    };
    const Case cases[] = {{11, 4, Rgb(255, 255, 100)},
                          {11, 10, Rgb(255, 255, 100)},
                          {11, 3, ground},
                          {11, 11, ground},
                          {10, 5, ground},
                          {11 + 125, 5, Rgb(175, 175, 20)},     // 20 of 63 steps
                          {11 + 392 / 2, 5, Rgb(131, 131, 0)},  // 31
                          {11 + 391, 5, Rgb(7, 7, 0)},
                          {11 + 392, 5, ground}};
    for (const Case& c : cases)
        EXPECT_EQ(form.canvas.Pixel(c.x, c.y), c.colour) << c.x << " " << c.y;
}

TEST_F(TypewriterTest, ANameIsCutToTwentySixLetters) {
    StartGame();
    const auto sheetOf = [](const char* name) {
        UnitTable[curUnit].name = name;
        LoadInfo();
        return frmInfo.canvas;
    };
    const Picture whole = sheetOf("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_TRUE(whole.SameAs(sheetOf("ABCDEFGHIJKLMNOPQRSTUVWXYZ1234")));
    EXPECT_FALSE(whole.SameAs(sheetOf("ABCDEFGHIJKLMNOPQRSTUVWXY")));
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
