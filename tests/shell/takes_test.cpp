// Which file is heard for a sound that the rules ask for by one name.
#include "shell/takes.h"

#include <set>

#include "data/terrain.h"
#include "platform/files.h"
#include "tests/support/game_test.h"
#include "view/sound.h"

namespace {

class TakesTest : public GameTest {
  protected:
    TakesTest() {
        ClearField();
        PutUnit(0, 10, 10);
        std::filesystem::create_directories(folder.Path() / "own/wav/bump");
        for (const char* file : {"shot", "shot-2", "shot-4", "bump/step1", "bump/step1-2", "bump/step1-wood"})
            folder.Write("own/wav/" + std::string(file) + ".wav", "");
        SetProgramFolder(folder.Path() / "own");
    }

    std::string Heard(const std::string& name) { return takes.Of(SoundAt(name, AtScreenCentre)).fileName; }

    Takes takes;
};

TEST_F(TakesTest, AllThatAreThereAreHeardAndNoneTwiceInARow) {
    std::set<std::string> heard;
    std::string last;
    for (int i = 0; i < 60; ++i) {
        const std::string now = Heard("shot");
        EXPECT_NE(now, last);
        heard.insert(now);
        last = now;
    }
    EXPECT_EQ(heard, (std::set<std::string>{"\\wav\\shot.wav", "\\wav\\shot-2.wav", "\\wav\\shot-4.wav"}));
}

TEST_F(TakesTest, AStepSoundsByItsGroundWhereThereIsSuchAFile) {
    for (int i = 0; i < 3; ++i) {
        PutTile(10, 10, 20, Wooden);
        EXPECT_EQ(Heard("bump/step1"), "\\wav\\bump/step1-wood.wav");
        PutTile(10, 10, 0, Water);
        EXPECT_TRUE(Heard("bump/step1").starts_with("\\wav\\bump/step1")) << "no water here: grass";
    }
    UnitTable[0].cellX = 200;
    EXPECT_FALSE(Heard("bump/step1").empty()) << "beyond the field";
}

TEST_F(TakesTest, NothingElseOfTheRequestChanges) {
    SoundRequest sound = SoundAt("missing", 3);
    sound.slot = 3;
    const SoundRequest take = takes.Of(sound);
    EXPECT_EQ(take.fileName, sound.fileName);
    EXPECT_EQ(take.slot, 3);
    EXPECT_EQ(take.pan, sound.pan);
    EXPECT_EQ(take.volume, sound.volume);
    EXPECT_EQ(take.frequency, sound.frequency);
}

// The sounds of the game itself.
TEST_F(TakesTest, StepsOnEveryGroundHaveThreeTakes) {
    SetProgramFolder(folder.Path());
    constexpr TileRange Grounds[] = {{Surface, 0}, {Surface, 9}, {Surface, 10}, {Water, 14},
                                     {Trees, 5},   {Roads, 16},  {Highways, 19}};
    std::set<std::string> heard;
    for (const TileRange& ground : Grounds) {
        PutTile(10, 10, ground.first, ground.terrain);
        for (int i = 0; i < 40; ++i)
            heard.insert(Heard("bump/step2"));
    }
    EXPECT_EQ(heard.size(), 3 * std::size(Grounds));
}

}  // namespace
