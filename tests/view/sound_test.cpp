// Where sounds are placed, how they take their turns; the running log.
#include "view/sound.h"

#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"
#include "view/log.h"
#include "view/scrolling.h"

namespace {

class SoundTest : public GameTest {
  protected:
    SoundTest() { voiceCycle = 1; }
};

TEST_F(SoundTest, AColumnIsPannedByItsPlaceOnTheScreen) {
    struct Case {
        int column, unitColumn, scroll, pan, volume;
    };
    constexpr Case Cases[] = {
        {5, 0, 0, -750, -750},    {60, 0, 0, 2000, -2000}, {60, 0, 760, 100, -100},  // screen column 22
        {20, 0, 760, 0, 0},                             // the centre, however the field is scrolled
        {88, 0, 0, -1000, -1000}, {88, 20, 760, 0, 0},  // a unit in column 20 sounds centred
        {88, 30, 200, 0, 0},      {30, 0, 190, 0, 0},   // 30 - 9.5 is 20.5, to the even 20
        {31, 0, 190, 100, -100},                        // 21.5, to the even 22
    };
    for (const Case& c : Cases) {
        UnitTable[0].cellX = c.unitColumn;
        SetScrollValue(frmField.HScrollArea, c.scroll);
        PlaySoundAt("click", c.column);
        ASSERT_FALSE(host.sounds.empty());
        EXPECT_EQ(host.sounds.back().pan, c.pan) << c.column << " at " << c.scroll;
        EXPECT_EQ(host.sounds.back().volume, c.volume);
        EXPECT_EQ(host.sounds.back().frequency, 45000);
        EXPECT_EQ(host.sounds.back().fileName, "\\wav\\click.wav");
    }
}

TEST_F(SoundTest, FourSlotsTakeTurnsAndAMissingFileTakesNone) {
    for (const char* name : {"click", "no such sound", "bump\\death2", "bump/step1", "ric\\wood", "click"})
        PlaySoundAt(name, 20);
    std::vector<int> slots;
    for (const SoundRequest& sound : host.sounds)
        slots.push_back(sound.slot);
    EXPECT_EQ(slots, (std::vector<int>{1, 2, 3, 4, 1}));
}

TEST_F(SoundTest, VoicesAreSilentUntilTheyAreSwitchedOn) {
    std::filesystem::remove(folder.Path() / "wav");
    std::filesystem::create_directories(folder.Path() / "wav/voice");
    folder.Write("wav/voice/prone.wav", "");
    PlaySoundAt("voice\\prone", 20);
    EXPECT_TRUE(host.sounds.empty());
    voiceOn = 1;
    PlaySoundAt("voice\\prone", 20);
    EXPECT_EQ(host.sounds.size(), 1U);
}

TEST_F(SoundTest, ALogLineIsGatheredUntilItIsEnded) {
    AddToLog("a", 0);
    AddToLog("b", 2);
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(frmField.cmbLog.Tag, "ab");
    AddToLog("c", 1);
    AddToLog("", 1);
    EXPECT_EQ(Log(), "abc\n\n");
    EXPECT_EQ(frmField.cmbLog.Text, "");
}

}  // namespace
