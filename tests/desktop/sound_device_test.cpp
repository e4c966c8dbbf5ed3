// What is heard, measured on a sound device that writes a file.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numbers>
#include <string>
#include <thread>

#include <unistd.h>

#include "desktop/sound_device.h"
#include "platform/files.h"
#include "platform/headless_host.h"
#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/field_form.h"
#include "view/forms.h"
#include "view/sound.h"

namespace {

constexpr int FileRate = 22050;
constexpr int PlayedRate = 45000;
constexpr int DeviceRate = 44100;
constexpr int Period = 50;  // samples of the file: 900 Hz when played
constexpr int Amplitude = 12000;

// A sine, 16 bits, one channel.
std::string SineWave(int samples) {
    const auto dataSize = static_cast<std::uint32_t>(samples) * 2;
    std::string bytes;
    const auto append = [&bytes](const char* name, std::initializer_list<std::uint32_t> words) {
        bytes += name;
        for (const std::uint32_t word : words)
            bytes.append(reinterpret_cast<const char*>(&word), 4);
    };
    append("RIFF", {36 + dataSize});
    append("WAVEfmt ",
           {16, 1 << 16 | 1, FileRate, FileRate * 2, 16 << 16 | 2});  // plain samples, one channel
    append("data", {dataSize});
    for (int i = 0; i < samples; ++i) {
        const auto sample =
            static_cast<std::int16_t>(std::lround(Amplitude * std::sin(2 * std::numbers::pi * i / Period)));
        bytes.append(reinterpret_cast<const char*>(&sample), 2);
    }
    return bytes;
}

struct Heard {
    double left = 0, right = 0;  // decibels below the sine's own level, over the sound's length
    double seconds = 0, hertz = 0;
};

class SoundDeviceTest : public testing::Test {
  protected:
    SoundDeviceTest() {
        std::filesystem::create_directories(folder / "wav");
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", raw.c_str(), 1);
        setenv("SDL_DISKAUDIODELAY", "0", 1);
        SetProgramFolder(folder);
    }
    ~SoundDeviceTest() override {
        SetProgramFolder(".");
        std::filesystem::remove_all(folder);
    }

    SoundRequest Sound(const std::string& name, const std::string& content) const {
        std::ofstream(folder / "wav" / (name + ".wav"), std::ios::binary) << content;
        SoundRequest sound;
        sound.fileName = "\\wav\\" + name + ".wav";
        sound.frequency = PlayedRate;
        return sound;
    }

    Heard Hear() {
        for (int i = 0; i < 1000 && device.Playing(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        device.Close();
        std::ifstream file(raw, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        return Measure(reinterpret_cast<const std::int16_t*>(bytes.data()), bytes.size() / 4);
    }

    static Heard Measure(const std::int16_t* samples, std::size_t frames) {
        std::size_t first = frames;
        std::size_t last = 0;
        int rises = 0;
        Heard heard;
        for (std::size_t i = 0; i < frames; ++i) {
            const double left = samples[2 * i];
            const double right = samples[2 * i + 1];
            if (left == 0 && right == 0) continue;
            first = std::min(first, i);
            last = i;
            heard.left += left * left;
            heard.right += right * right;
            if (i > 0 && left > 0 && samples[2 * i - 2] <= 0) ++rises;
        }
        const auto length = static_cast<double>(last - first + 1);
        for (double* side : {&heard.left, &heard.right})
            *side = 20 * std::log10(std::sqrt(*side / length) * std::numbers::sqrt2 / Amplitude);
        heard.seconds = length / DeviceRate;
        heard.hertz = rises / heard.seconds;
        return heard;
    }

    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("sarnoth_sound_" + std::to_string(getpid()));
    const std::filesystem::path raw = folder / "heard.raw";
    SoundDevice device;
};

// The whole way of a sound: from its map column, by the game's formula, to what is heard on each side.
TEST_F(SoundDeviceTest, EachColumnSoundsAtItsLevels) {
    struct ColumnCase {
        int column;
        double left, right;  // half a decibel down for each column off the middle, the far side twice that
    };
    constexpr ColumnCase Cases[] = {
        {0, -10, -20}, {10, -5, -10}, {20, 0, 0}, {35, -15, -7.5}, {60, -40, -20}};
    Sound("sine", SineWave(PlayedRate / 5));
    ResetState();
    ResetForms();
    voiceCycle = 1;
    for (const ColumnCase& row : Cases) {
        HeadlessHost host([](const InputEvent&) {});
        PlaySoundAt("sine", row.column);
        device.Play(host.sounds.at(0));
        const Heard heard = Hear();
        EXPECT_NEAR(heard.left, row.left, 0.5) << row.column;
        EXPECT_NEAR(heard.right, row.right, 0.5) << row.column;
    }
}

TEST_F(SoundDeviceTest, TheRateIsTheRequestsAndNotTheFiles) {
    device.Play(Sound("sine", SineWave(PlayedRate / 2)));
    const Heard heard = Hear();
    EXPECT_NEAR(heard.hertz, 900, 9);
    EXPECT_NEAR(heard.seconds, 0.5, 0.01);
}

TEST_F(SoundDeviceTest, ANewSoundCutsTheOldOneOfItsSlotAlone) {
    const SoundRequest longSound = Sound("long", SineWave(PlayedRate * 20));
    SoundRequest shortSound = Sound("short", SineWave(PlayedRate / 10));
    for (const int slot : {1, 2}) {
        shortSound.slot = slot;
        device.Play(longSound);
        device.Play(shortSound);
        const Heard heard = Hear();
        if (slot == longSound.slot)
            EXPECT_LT(heard.seconds, 15);
        else
            EXPECT_NEAR(heard.seconds, 20, 0.1);
    }
}

TEST_F(SoundDeviceTest, ADeviceThatVanishesFallsSilentAndItsSuccessorIsHeard) {
    const SoundRequest sound = Sound("sine", SineWave(PlayedRate / 5));
    setenv("SDL_DISKAUDIOFILE", "/dev/full", 1);
    device.Play(sound);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    device.Play(sound);  // on the lost device
    device.Close();
    setenv("SDL_DISKAUDIOFILE", raw.c_str(), 1);
    device.Play(sound);
    EXPECT_NEAR(Hear().seconds, 0.2, 0.01);
}

TEST_F(SoundDeviceTest, ABrokenFileIsNamedAndAHeaderThatAsksForGigabytesRefused) {
    const auto errorOf = [this](const std::string& content) {
        return ErrorOf([&] { device.Play(Sound("broken", content)); });
    };
    EXPECT_TRUE(errorOf("no sound at all").starts_with("Run-time error 4: Bad data: wav/broken.wav"));
    std::string wave = SineWave(10);
    wave.replace(40, 4, "\xF0\xFF\xFF\xFF");
    EXPECT_EQ(
        errorOf(wave),
        "Run-time error 4: Bad data: wav/broken.wav: byte 40: expected a chunk of up to 20 bytes, found "
        "4294967280");
}

using SoundDeviceDeathTest = SoundDeviceTest;

TEST_F(SoundDeviceDeathTest, WithoutADeviceNothingHappensAndNothingIsPrinted) {
    const auto play = [this] {
        setenv("SDL_AUDIODRIVER", "alsa", 1);
        setenv("AUDIODEV", "no-such-device", 1);
        device.Play(Sound("sine", SineWave(1000)));
        const int heard = device.Playing() ? 2 : 0;
        std::filesystem::remove_all(folder);
        std::_Exit(heard);
    };
    EXPECT_EXIT(play(), testing::ExitedWithCode(0), "^$");
}

}  // namespace
