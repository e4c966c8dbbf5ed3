// The typewriter: its pen and its glyphs.
#include "personal/typewriter.h"

#include "platform/blit.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/depot_form.h"

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

TEST_F(TypewriterTest, AGlyphStandsUnderThePenOnItsShadow) {
    const Picture& strip = frmDepot.picScript.canvas;
    for (const auto& [text, glyph] : {std::pair{"a", 0}, {"Z", 25}, {".", 26}, {"%", 37}, {"9", 47}}) {
        for (const bool shadow : {false, true}) {
            Picture paper(30, 30, Rgb(200, 150, 250));
            Picture expected = paper;
            if (shadow) BitBlt(expected, 5, 12, 8, 8, strip, glyph * 9, 0, RasterOp::SRCAND);
            BitBlt(expected, 4, 11, 8, 8, strip, glyph * 9, 0, RasterOp::SRCAND);
            BitBlt(expected, 4, 11, 8, 8, strip, glyph * 9, 8, RasterOp::SRCINVERT);
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

}  // namespace
