// What is heard of the valley where which part of it is in view.
#include "shell/ambience.h"

#include "data/terrain.h"
#include "tests/support/game_test.h"

namespace {

struct Place {
    const char* what;
    TileRange tile;
    int columns;  // of the view's 38, from the left; the others are asphalt
    AmbienceLevels levels;
};

// clang-format off
constexpr Place Places[] = {
    //                                          wind  river wood  meadow quay
    {"asphalt",       {Highways, 19},   0,     {1.00, 0.00, 0.00, 0.00, 0.00}},
    {"grass",         {Surface,   0},  38,     {1.00, 0.00, 0.00, 1.00, 0.00}},
    {"water",         {Water,     0},  38,     {1.00, 1.00, 0.00, 0.00, 0.00}},
    {"a brook",       {Water,    15},   2,     {1.00, 0.46, 0.00, 0.00, 0.00}},
    {"reeds",         {Water,    17},  38,     {1.00, 1.00, 0.00, 0.91, 0.00}},
    {"wood",          {Trees,     0},  38,     {0.45, 0.00, 1.00, 0.00, 0.00}},
    {"saplings",      {Trees,     6},  19,     {0.91, 0.00, 0.76, 0.00, 0.00}},
    {"indoors",       {Wooden,   20},  38,     {0.45, 0.00, 0.00, 0.00, 0.00}},
    {"a jetty",       {Roads,    19},   1,     {1.00, 0.00, 0.00, 0.00, 0.51}},
    {"a ship",        {Ships,    20},  10,     {1.00, 0.00, 0.00, 0.00, 1.00}},
};
// clang-format on

using AmbienceTest = GameTest;

TEST_F(AmbienceTest, EachLoopIsAsLoudAsItsTerrainHasOfTheView) {
    for (const Place& place : Places) {
        for (int y = 0; y < FieldHeight; ++y)
            for (int x = 0; x < FieldWidth; ++x)
                if (x < place.columns)
                    PutTile(x, y, place.tile.first, place.tile.terrain);
                else
                    PutTile(x, y, 19, Highways);
        const AmbienceLevels levels = AmbienceAt(0, 0);
        for (std::size_t i = 0; i < levels.size(); ++i)
            EXPECT_NEAR(levels[i], place.levels[i], 0.01) << place.what << ", " << AmbienceFile(i);
    }
}

TEST_F(AmbienceTest, ItFollowsTheViewAndIsSilentWithoutAField) {
    Ambience ambience;
    EXPECT_EQ(ambience.Levels(), AmbienceLevels());
    StartGame();
    const AmbienceLevels here = ambience.Levels();
    EXPECT_GT(here[0], 0);
    frmField.HScrollArea.Value = FieldWidth * CellSize - ViewWidth;
    EXPECT_NE(ambience.Levels(), here);
    frmField.Visible = false;
    EXPECT_EQ(ambience.Levels(), AmbienceLevels());
}

}  // namespace
