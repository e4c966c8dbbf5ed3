// The map compiler's choice of columns by place and neighbours.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "joints.h"
#include "map_source.h"

namespace {

// A field of "." with some rows put in from row 10, column 10 on; the legend tells what "." is.
std::vector<std::string> Source(std::vector<std::string> lines, const std::vector<std::string>& patch) {
    lines.emplace_back("field");
    const std::size_t first = lines.size();
    lines.resize(first + MapHeight, std::string(MapWidth, '.'));
    for (std::size_t i = 0; i < patch.size(); ++i)
        lines[first + 10 + i].replace(10, patch[i].size(), patch[i]);
    return lines;
}

// The columns of the patch, as letters from "a" for 0.
std::vector<std::string> Columns(const std::vector<std::string>& legend,
                                 const std::vector<std::string>& patch) {
    SourceFaults faults;
    const TileGrid grid = PlaceTiles(ReadMapSource(Source(legend, patch), faults), faults);
    EXPECT_TRUE(faults.Empty());
    std::vector<std::string> columns = patch;
    for (std::size_t y = 0; y < patch.size(); ++y)
        for (std::size_t x = 0; x < patch[y].size(); ++x)
            columns[y][x] = static_cast<char>('a' + grid[10 + y][10 + x].column);
    return columns;
}

using Rows = std::vector<std::string>;

TEST(MapSourceTest, CellsTakeTheirColumnByPlaceAndNeighbours) {
    const struct {
        const char* name;
        Rows legend, patch, columns;
    } cases[] = {
        {"laid", {". trees lay 0,19-21 2"}, {"....", "....", "...."}, {"atat", "uvuv", "atat"}},
        {"edges within",
         {". surface tile 0", "; surface tile 9 except ;= 16-28", "= trenches tile 0"},
         {";;;;", ";;;;", ";;=;", ";.;;"},
         {"uqqv", "sjjt", "srat", "}awx"}},
        {"edges without, corners, and the column of the way",
         {". surface tile 0 toward ; 1-4,5-8,9,_,11,12,13", "; surface tile 15"},
         {"......", ".;.;..", "......", "..;;..", "......"},
         {"mclcla", "epnpda", "abcnja", "aeppda", "aabbja"}},
        {"the first edge that fits",
         {". surface tile 0 toward g 1x13 toward f 2x13", "f surface tile 3", "g surface tile 4"},
         {".....", ".f.g.", "....."},
         {"ccbbb", "cdbeb", "ccbbb"}},
        {"most of its neighbours",
         {". surface tile 0", "$ various tile 1 amid wooden 5 26", "_ wooden tile 20"},
         {"$___", "_$$_", "____", "$..."},
         {"buuu", "u{{u", "uuuu", "baaa"}},
        {"banks toward a glyph keep the bank's shape",
         {". water banks 0 1-12 toward ; 20x13", "; surface tile 9", ", surface tile 0"},
         {",,;;;..", "...,;..", "......."},
         {"aajjjua", "bbgajua", "aakbuua"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Columns(c.legend, c.patch), c.columns) << c.name;
}

TEST(MapSourceTest, ColumnsThatTheRulesTakeForDifferentAreRefused) {
    const struct {
        const char* line;
        const char* fault;
    } cases[] = {
        {". trees pick 1,13", "columns 1 and 13 differ"},
        {". roads tile 15 toward . 16x13", "columns 15 and 16 differ"},
        {". wooden tile 20 amid stone 8 11", "columns 20 and 11 differ"},
        {". surface tile 0 toward . 1-12", "12 columns of edges"},
        {". surface tile 0 amid stone 9 1", "\"9\" is no number of neighbours"},
        {". surface lay 0,1 3", "\"3\" is no width"},
        {". water banks 0 1-11", "11 columns of edges"},
    };
    for (const auto& c : cases) {
        SourceFaults faults;
        ReadMapSource(Source({c.line}, {}), faults);
        ASSERT_FALSE(faults.Empty()) << c.line;
        EXPECT_NE(std::string(faults.Sorted().front().what()).find(c.fault), std::string::npos)
            << faults.Sorted().front().what();
    }
}

}  // namespace
