// The pen of the typewriter, and the numbers that it writes.
#include "view/typewriter.h"

#include "tests/support/game_test.h"

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
        EXPECT_EQ(ThePen().x, 4 + c.right) << c.text;
        EXPECT_EQ(ThePen().y, 6 + c.down) << c.text;
    }
    Typewriter("D\rE", false, paper, AtThePen, 50);
    EXPECT_EQ(ThePen().x, 4 + 10) << "one coordinate at the pen is enough to go on; the line start stays";
    EXPECT_EQ(ThePen().y, 6 + 10);
}

TEST_F(TypewriterTest, NumbersStandRightAlignedInFivePlaces) {
    for (const auto& [value, text] : {std::pair{0, "    0"}, {100, "  100"}, {65535, "65535"}})
        EXPECT_EQ(PadNumber(value), text);
}

}  // namespace
