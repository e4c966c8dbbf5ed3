// The firing range: the same command writes the same bytes, and what is certain by the rules comes out so.
#include "tests/support/game_test.h"
#include "tools/lab/line_chart.h"
#include "tools/lab/odds_charts.h"

namespace {

using OddsTest = GameTest;

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
    const Screen masonry = {"", Stone, 1, 1, 2};  // one cell alone can be passed at a joint
    struct Case {
        Drill drill;
        int time;
        bool mayHit;
    };
    const Case cases[] = {
        {{.weapon = "m4", .mode = 3, .east = 10}, 3 * 29, true},  // as far as the time goes
        {{.weapon = "m4", .east = 45}, 29, false},                // seven cells past its reach
        {{.weapon = "m4", .mode = 3, .east = 10, .screen = masonry}, 3 * 29, false},
        {{.weapon = "knife", .east = 1}, 12, true},
        {{.weapon = "knife", .east = 2}, 12, false},
        {{.weapon = "m67", .east = 5}, 30, true},
        {{.weapon = "m67", .east = 5, .screen = masonry}, 30, false},
    };
    constexpr int Orders = 40;
    FiringRange range;
    for (const Case& c : cases) {
        const Score score = range.Fire(c.drill, Orders, 3);
        const std::string what = c.drill.weapon + " over " + std::to_string(c.drill.east);
        EXPECT_EQ(score.time, Orders * c.time) << what;
        EXPECT_EQ(score.hitting > 0, c.mayHit) << what;
        EXPECT_EQ(score.damage > 0, c.mayHit) << what;
    }
}

TEST(LineChartTest, PlacesPointsByItsAxes) {
    const std::string svg =
        ChartSvg({"", {"cells", 10, 5}, {"percent", 100, 50}, {{"line", {{0, 0}, {5, 50}, {10, 100}}}}});
    EXPECT_NE(svg.find("M66 376L333 214L600 52"), std::string::npos) << svg;
}

}  // namespace
