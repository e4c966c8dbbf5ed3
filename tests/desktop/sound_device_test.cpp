// What is heard: the samples of a sound, and how long it plays on a sound device that writes a file.
#include "desktop/sound_device.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "desktop/sound_file.h"
#include "tests/support/game_test.h"
#include "view/sound.h"

namespace {

constexpr int PlayedRate = 45000;  // a second's samples of a file; the file itself says 22050
constexpr double Amplitude = 12000;

// One level throughout, 16 bits, one channel.
std::string Wave(int samples) {
    const auto dataSize = static_cast<std::uint32_t>(samples) * 2;
    std::string bytes;
    const auto append = [&bytes](const char* name, std::initializer_list<std::uint32_t> words) {
        bytes += name;
        for (const std::uint32_t word : words)
            bytes.append(reinterpret_cast<const char*>(&word), 4);
    };
    append("RIFF", {36 + dataSize});
    append("WAVEfmt ", {16, 1 << 16 | 1, 22050, 22050 * 2, 16 << 16 | 2});  // plain samples, one channel
    append("data", {dataSize});
    for (int i = 0; i < samples; ++i)
        bytes += "\xE0\x2E";  // the amplitude
    return bytes;
}

class SoundDeviceTest : public GameTest {
  protected:
    SoundDeviceTest() {
        folder.Remove("wav");  // a link to the game's
        std::filesystem::create_directory(folder.Path() / "wav");
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", raw.c_str(), 1);
        setenv("SDL_DISKAUDIODELAY", "0", 1);
    }

    SoundRequest Sound(const std::string& name, const std::string& content) const {
        folder.Write("wav/" + name + ".wav", content);
        SoundRequest sound;
        sound.fileName = "\\wav\\" + name + ".wav";
        sound.frequency = PlayedRate;
        return sound;
    }

    /// Waits for all that plays and tells for how many seconds anything was to be heard.
    double SecondsHeard() {
        while (device.Playing())
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        device.Close();
        const std::string bytes = folder.Read("heard.raw");
        return static_cast<double>(bytes.find_last_not_of('\0') - bytes.find_first_not_of('\0')) / 4 /
               DeviceFrequency;
    }

    const std::filesystem::path raw = folder.Path() / "heard.raw";
    SoundDevice device;
};

// From a sound's map column, by the game's formula, to the level of each side and the length.
TEST_F(SoundDeviceTest, EachColumnSoundsAtItsLevelsAndTheRateThatIsAskedFor) {
    struct ColumnCase {
        int column;
        double left, right;  // half a decibel down for each column off the middle, the far side twice that
    };
    constexpr ColumnCase Cases[] = {
        {0, -10, -20}, {10, -5, -10}, {20, 0, 0}, {35, -15, -7.5}, {60, -40, -20}};
    const std::string wave = Wave(PlayedRate / 5);
    Sound("level", wave);
    for (const ColumnCase& row : Cases) {
        PlaySoundAt("level", row.column);
        const Samples heard = DecodeSound(wave, host.sounds.back());
        const std::size_t middle = heard.size() / 4 * 2;
        EXPECT_NEAR(20 * std::log10(heard[middle] / Amplitude), row.left, 0.1) << row.column;
        EXPECT_NEAR(20 * std::log10(heard[middle + 1] / Amplitude), row.right, 0.1) << row.column;
        EXPECT_NEAR(static_cast<double>(heard.size()), 2 * DeviceFrequency / 5.0, 20);
    }
}

TEST_F(SoundDeviceTest, ANewSoundCutsTheOldOneOfItsSlotAlone) {
    const SoundRequest longSound = Sound("long", Wave(PlayedRate * 20));
    SoundRequest shortSound = Sound("short", Wave(PlayedRate / 10));
    for (const int slot : {1, 2}) {
        shortSound.slot = slot;
        device.Play(longSound);
        device.Play(shortSound);
        const double heard = SecondsHeard();
        if (slot == longSound.slot)
            EXPECT_LT(heard, 15);
        else
            EXPECT_NEAR(heard, 20, 0.1);
    }
}

TEST_F(SoundDeviceTest, ADeviceThatVanishesFallsSilentAndItsSuccessorIsHeard) {
    const SoundRequest sound = Sound("level", Wave(PlayedRate / 5));
    setenv("SDL_DISKAUDIOFILE", "/dev/full", 1);
    device.Play(sound);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    device.Play(sound);  // on the lost device
    device.Close();
    setenv("SDL_DISKAUDIOFILE", raw.c_str(), 1);
    device.Play(sound);
    EXPECT_NEAR(SecondsHeard(), 0.2, 0.01);
}

TEST_F(SoundDeviceTest, AHeaderThatAsksForGigabytesIsRefused) {
    std::string wave = Wave(10);
    wave.replace(40, 4, "\xF0\xFF\xFF\xFF");
    EXPECT_EQ(
        ErrorOf([&] { device.Play(Sound("broken", wave)); }),
        "Run-time error 4: Bad data: wav/broken.wav: byte 40: expected a chunk of up to 20 bytes, found "
        "4294967280");
}

TEST_F(SoundDeviceTest, AllSoundsAreAsLoudAsThePlayerWantsThem) {
    const SoundRequest sound = Sound("level", Wave(PlayedRate / 5));
    for (const int loudness : {100, 50, 0}) {
        device.SetLoudness(loudness);
        device.Play(sound);
        EXPECT_EQ(device.Playing(), loudness != 0);
        if (loudness == 0) break;
        SecondsHeard();
        const std::string bytes = folder.Read("heard.raw");
        std::int16_t sample = 0;
        std::memcpy(&sample, bytes.data() + bytes.find_first_not_of('\0') / 4 * 4 + 400, sizeof(sample));
        EXPECT_NEAR(sample, Amplitude * loudness / 100, 100);
    }
}

TEST_F(SoundDeviceTest, TheValleyIsHeardUntilItIsMutedAndTheDeviceIsIdle) {
    std::filesystem::create_directories(folder.Path() / "wav/ambience");
    folder.Write("wav/ambience/wind.wav", Wave(22050));
    folder.Write("wav/ambience/wood.wav", "no sound");
    device.SetAmbience({});
    EXPECT_FALSE(device.IsOpen()) << "for silence nothing is opened";
    testing::internal::CaptureStderr();
    device.SetAmbience({1, 1, 1, 1, 1});
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Sarnoth III: wav/ambience/wood.wav: byte 0: expected a WAV sound\n");
    ASSERT_TRUE(device.IsOpen());
    EXPECT_FALSE(device.Idle());
    EXPECT_FALSE(device.Playing()) << "it takes no slot";
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    device.LetAmbience(false);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_TRUE(device.Idle());
    device.LetAmbience(true);
    device.SetLoudness(0);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_TRUE(device.Idle());
    device.Close();
    EXPECT_NE(folder.Read("heard.raw").find_first_not_of('\0'), std::string::npos);
}

TEST_F(SoundDeviceTest, AFileWithoutSoundEndsNothingWhereTheRulesDidNotAskForIt) {
    const SoundRequest broken = Sound("broken", "no sound");
    testing::internal::CaptureStderr();
    device.PlayIfSound(broken);
    device.PlayIfSound(broken);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Sarnoth III: wav/broken.wav: byte 0: expected a WAV sound\n");
}

// The library's change of rate would click there.
TEST(SoundFileTest, ALoopEndsWhereItBegins) {
    std::string wave = Wave(0);
    constexpr int Length = 2205;
    for (const int at : {4, 40}) {
        const std::uint32_t size = 2 * Length + (at == 4 ? 36 : 0);
        wave.replace(static_cast<std::size_t>(at), 4, reinterpret_cast<const char*>(&size), 4);
    }
    for (int i = 0; i < Length; ++i) {
        const auto sample =
            static_cast<std::int16_t>(8000 * std::sin(2 * 3.14159265358979 * 21 * i / Length));
        wave.append(reinterpret_cast<const char*>(&sample), 2);
    }
    const Samples loop = DecodeLoop(wave, "loop");
    ASSERT_EQ(loop.size(), 2U * Length);
    for (std::size_t i = 0; i < loop.size(); ++i)
        EXPECT_LE(std::abs(loop[(i + 1) % loop.size()] - loop[i]), 242) << i;
}

using SoundDeviceDeathTest = SoundDeviceTest;

TEST_F(SoundDeviceDeathTest, WithoutADeviceNothingHappensAndNothingIsPrinted) {
    const auto play = [this] {
        setenv("SDL_AUDIODRIVER", "alsa", 1);
        setenv("AUDIODEV", "no-such-device", 1);
        device.Play(Sound("level", Wave(1000)));
        const int heard = device.Playing() ? 2 : 0;
        std::filesystem::remove_all(folder.Path());
        std::_Exit(heard);
    };
    EXPECT_EXIT(play(), testing::ExitedWithCode(0), "^$");
}

}  // namespace
