// How loops fade, and that no step is heard.
#include "desktop/loop_mixer.h"

#include <cstdlib>

#include <gtest/gtest.h>

namespace {

constexpr std::size_t Frames = 1024;

class LoopMixerTest : public testing::Test {
  protected:
    LoopMixerTest() { mixer.SetSamples(0, Samples(5000, 10000)); }

    // Mixes that long; the result is the last sample, and `largestStep` the largest between two.
    int Listen(double seconds) {
        std::vector<std::int16_t> heard(2 * Frames);
        for (double gone = 0; gone < seconds; gone += static_cast<double>(Frames) / DeviceFrequency) {
            std::fill(heard.begin(), heard.end(), std::int16_t{0});
            mixer.Mix(heard);
            for (std::size_t i = 0; i < heard.size(); i += 2) {
                largestStep = std::max(largestStep, std::abs(heard[i] - last));
                last = heard[i];
            }
        }
        return last;
    }

    LoopMixer mixer{2};
    int last = 0;
    int largestStep = 0;
};

TEST_F(LoopMixerTest, ALevelIsReachedSlowlyAndTheMasterFollowedAtOnce) {
    EXPECT_TRUE(mixer.Silent());
    mixer.SetMaster(1);
    mixer.SetLevel(0, 0.5);
    EXPECT_FALSE(mixer.Silent());
    EXPECT_NEAR(Listen(1), 2500, 100);
    EXPECT_NEAR(Listen(2), 5000, 5);
    EXPECT_LE(largestStep, 1) << "a stretch of samples doesn't begin with a step";
    mixer.SetMaster(0.5);
    EXPECT_NEAR(Listen(0.05), 2500, 5);
    mixer.SetMaster(0);
    EXPECT_EQ(Listen(0.05), 0);
    EXPECT_TRUE(mixer.Silent());
    mixer.SetMaster(1);
    mixer.SetLevel(0, 0);
    Listen(3);
    EXPECT_TRUE(mixer.Silent());
}

TEST_F(LoopMixerTest, ItAddsToWhatIsThereAndNeverWraps) {
    mixer.SetMaster(1);
    mixer.SetLevel(0, 1);
    Listen(5);
    std::vector<std::int16_t> heard(2 * Frames, 30000);
    mixer.Mix(heard);
    EXPECT_EQ(heard.front(), 32767);
    EXPECT_EQ(heard.back(), 32767);
}

TEST_F(LoopMixerTest, TheRightEarIsHalfALoopBehindAndTheEndGoesOverIntoTheBeginning) {
    Samples ramp(3000);
    for (std::size_t i = 0; i < ramp.size(); ++i)
        ramp[i] = static_cast<std::int16_t>(i);
    mixer.SetSamples(0, Samples());
    mixer.SetSamples(1, ramp);
    mixer.SetMaster(1);
    mixer.SetLevel(1, 1);
    std::vector<std::int16_t> heard(2 * 3000);
    for (int i = 0; i < 70; ++i)
        mixer.Mix(heard);
    std::fill(heard.begin(), heard.end(), std::int16_t{0});
    mixer.Mix(heard);
    for (const std::size_t i : {0, 1499, 1500, 2999}) {
        EXPECT_EQ(heard[2 * i], static_cast<int>(i));
        EXPECT_EQ(heard[2 * i + 1], static_cast<int>((i + 1500) % 3000));
    }
}

}  // namespace
