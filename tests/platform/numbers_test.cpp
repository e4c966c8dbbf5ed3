// Checked numbers, bounded arrays, rounding and the random source.
#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/arrays.h"
#include "platform/random.h"
#include "platform/rounding.h"

namespace {

TEST(Rounding, TiesGoToTheEvenNeighbour) {
    constexpr double Cases[][2] = {{1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {2.4999, 2}, {2.5001, 3}};
    for (const auto& [value, rounded] : Cases)
        EXPECT_EQ(RoundHalfEven(value), rounded) << value;
}

TEST(Rounding, DivisionFloorsTowardMinusInfinity) {
    EXPECT_EQ(FloorDivide(39, 20), 1);
    EXPECT_EQ(FloorDivide(-20, 20), -1);
    EXPECT_EQ(FloorDivide(-21, 20), -2);
}

TEST(CheckedNumbers, OverflowIsThrownAtTheFirstValueThatDoesNotFit) {
    i16 word = 32767;
    EXPECT_THROW(++word, RunTimeError);
    EXPECT_EQ(word, 32767) << "a refused store leaves the old value";
    word = -32768;
    EXPECT_THROW(word -= 1, RunTimeError);
    u8 byte = 255;
    EXPECT_THROW(byte += 1, RunTimeError);
    EXPECT_THROW(i16{std::numeric_limits<double>::quiet_NaN()}, RunTimeError);
}

TEST(CheckedNumbers, FloatsAreRoundedHalfEvenWhereTheyAreStored) {
    i16 word = 4.5;
    EXPECT_EQ(word, 4);
    word += 1.5;  // 5.5
    EXPECT_EQ(word, 6);
    EXPECT_EQ(u8(255.4), 255);
    EXPECT_THROW(u8(255.5), RunTimeError);
}

TEST(BoundedArrays, AnIndexOutsideTheDeclaredBoundsIsAnError) {
    Array<int, -20, 40> spots;
    spots[-20] = 1;
    spots[40] = 2;
    EXPECT_EQ(spots[-20] + spots[40], 3);
    EXPECT_THROW(spots[-21], RunTimeError);
    EXPECT_THROW(spots[41], RunTimeError);
}

// The generator is the standard's mt19937, whose 10,000th value from the seed 5489 the standard itself
// states: 4123659995. Its upper 24 bits are the float.
TEST(RandomSource, DrawsTheStandardEnginesUpper24Bits) {
    SeedRandom(5489);
    EXPECT_EQ(NextRandom(), static_cast<float>(3499211612U >> 8) / 16777216.0F);
    for (int i = 2; i < 10000; ++i)
        NextRandom();
    EXPECT_EQ(NextRandom(), static_cast<float>(4123659995U >> 8) / 16777216.0F);
}

TEST(RandomSource, WholeNumbersCoverBothEndsAndNoMore) {
    // With the bounds exchanged the upper end is reached only by a draw of exactly 0.
    struct Case {
        int high, low, least, most;
    };
    constexpr Case Cases[] = {{15, 10, 10, 15}, {0, 0, 0, 0}, {-10, 0, -9, -1}};
    SeedRandom(1);
    for (const Case& c : Cases) {
        int least = 1000;
        int most = -1000;
        for (int i = 0; i < 2000; ++i) {
            const int drawn = RandomInt(c.high, c.low);
            least = std::min(least, drawn);
            most = std::max(most, drawn);
        }
        EXPECT_EQ(least, c.least);
        EXPECT_EQ(most, c.most);
    }
}

}  // namespace
