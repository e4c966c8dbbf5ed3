// Where sounds are placed, how they take their turns.
#include "view/sound.h"

#include "platform/files.h"
#include "tests/support/game_test.h"
#include "view/field_view.h"

namespace {

using SoundTest = GameTest;

TEST_F(SoundTest, AColumnIsPannedByItsPlaceOnTheScreen) {
    struct Case {
        int column, unitColumn, scroll, pan;
    };
    constexpr Case Cases[] = {
        {5, 0, 0, -750},   {60, 0, 760, 100},                    // screen column 22
        {20, 0, 760, 0},                                         // the centre, however the field is scrolled
        {88, 0, 0, -1000}, {88, 20, 760, 0},  {88, 30, 200, 0},  // the current unit's
        {30, 0, 190, 0},   {31, 0, 190, 100},                    // 20.5 and 21.5 to the even
    };
    for (const Case& c : Cases) {
        UnitTable[0].cellX = c.unitColumn;
        SetScrollValue(frmField.HScrollArea, c.scroll);
        PlaySoundAt("click", c.column);
        ASSERT_FALSE(host.sounds.empty());
        EXPECT_EQ(host.sounds.back().pan, c.pan) << c.column << " at " << c.scroll;
        EXPECT_EQ(host.sounds.back().volume, -std::abs(c.pan));
        EXPECT_EQ(host.sounds.back().frequency, 45000);
    }
}

TEST_F(SoundTest, VoicesAreHeardOnlyWhenTheyAreOn) {
    std::filesystem::create_directories(folder.Path() / "own/wav/voice");
    folder.Write("own/wav/voice/prone.wav", "");
    SetProgramFolder(folder.Path() / "own");
    for (const int on : {0, 1}) {
        voiceOn = on;
        host.sounds.clear();
        PlaySoundAt("voice\\prone", 20);
        ASSERT_EQ(host.sounds.size(), static_cast<std::size_t>(on));
    }
    EXPECT_EQ(host.sounds.back().fileName, "\\wav\\voice\\prone.wav");
}

TEST_F(SoundTest, FourSlotsTakeTurnsAndAMissingFileTakesNone) {
    frmField.voiceCycle = 1;
    for (const char* name : {"click", "no such sound", "bump\\death2", "bump/step1", "ric\\wood", "click"})
        PlaySoundAt(name, 20);
    std::vector<int> slots;
    for (const SoundRequest& sound : host.sounds)
        slots.push_back(sound.slot);
    EXPECT_EQ(slots, (std::vector<int>{1, 2, 3, 4, 1}));
}

}  // namespace
