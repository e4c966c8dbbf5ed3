// The firing range: the same command writes the same bytes, and what is certain by the rules comes out so.
#include <gtest/gtest.h>

#include "platform/files.h"
#include "tests/support/game_test.h"
#include "tools/lab/line_chart.h"
#include "tools/lab/odds_charts.h"

namespace lab {

namespace {

class OddsTest : public testing::Test {
  protected:
    OddsTest() { SetProgramFolder(folder.Path()); }

    ProgramFolder folder;
};

std::string AllDocuments(std::uint32_t seed) {
    const OddsPlan plan = {{"knife", "mp5"}, "mp5"};
    FiringRange range;
    OddsStudy study(range, 2, seed);
    std::string all = OddsMarkdown(plan, study);
    for (const ChartFile& chart : OddsCharts(plan, study))
        all += chart.name + chart.svg;
    return all + study.Json();
}

TEST_F(OddsTest, TheSameSeedWritesTheSameBytes) {
    const std::string once = AllDocuments(7);
    EXPECT_TRUE(AllDocuments(7) == once);
    EXPECT_FALSE(AllDocuments(8) == once);
}

// The middle marksman has 94 points of time.
TEST_F(OddsTest, AnOrderPaysItsRoundsAndHitsNobodyOutOfReach) {
    struct Case {
        const char* what;
        const char* weapon;
        int mode, distance;
        Screen screen;
        int time;
        bool mayHit;
    };
    const Screen masonry = {"", Stone, 1, 1, 2};  // one cell alone can be passed at a joint
    const Case cases[] = {
        {"one round", "m4", 0, 10, {}, 29, true},
        {"a burst of three", "m4", 2, 10, {}, 3 * 29, true},
        {"full auto, as far as the time goes", "m4", 3, 10, {}, 3 * 29, true},
        {"seven cells past the rifle's reach", "m4", 0, 45, {}, 29, false},
        {"behind masonry", "m4", 3, 10, masonry, 3 * 29, false},
        {"a blow at the next cell", "knife", 0, 1, {}, 12, true},
        {"a blow at the cell after", "knife", 0, 2, {}, 12, false},
        {"a grenade", "m67", 0, 5, {}, 30, true},
        {"a grenade whose blast the masonry takes", "m67", 0, 5, masonry, 30, false},
        {"a spadeful", "etool", 1, 1, {}, 20, false},
    };
    constexpr int Orders = 40;
    FiringRange range;
    for (const Case& c : cases) {
        const Score score = range.Fire(
            {.weapon = c.weapon, .mode = c.mode, .east = c.distance, .screen = c.screen}, Orders, 3);
        EXPECT_EQ(score.time, Orders * c.time) << c.what;
        EXPECT_EQ(score.energy, 0) << c.what;
        EXPECT_EQ(score.hitting > 0, c.mayHit) << c.what;
        EXPECT_EQ(score.damage > 0, c.mayHit) << c.what;
        EXPECT_LE(score.hitting, score.orders) << c.what;
    }
}

TEST_F(OddsTest, WhatTheRulesDontAskForChangesNothing) {
    FiringRange range;
    const auto fire = [&range](const Drill& drill) { return range.Fire(drill, 60, 5); };
    const Score open = fire({.weapon = "m4"});
    EXPECT_EQ(fire({.weapon = "m4", .mode = 1}), open) << "an aimed and a snap shot are alike";
    EXPECT_EQ(fire({.weapon = "m4", .shooterStance = Prone}), open) << "the shooter's stance";
    EXPECT_EQ(fire({.weapon = "m4", .screen = {"", Concrete, 1, 1, 1}}), open) << "concrete stops no bullet";
    EXPECT_NE(fire({.weapon = "m4", .targetStance = Prone}), open);
    // Over two cells a knife scatters within the target's cell, and hits 73 to 100 times in a hundred.
    EXPECT_GT(fire({.weapon = "knife", .mode = 1, .east = 2}).hitting, 30) << "every throw has its knife";
    EXPECT_EQ(fire({.weapon = "m4"}), open);
}

TEST(LineChartTest, PlacesPointsByItsAxes) {
    const std::string svg =
        ChartSvg({"a < b", {"cells", 10, 5}, {"percent", 100, 50}, {{"line", {{0, 0}, {5, 50}, {10, 100}}}}});
    EXPECT_NE(svg.find("M66 376L333 214L600 52"), std::string::npos) << svg;
    EXPECT_NE(svg.find("a &lt; b"), std::string::npos);
}

}  // namespace

}  // namespace lab
