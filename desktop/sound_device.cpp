#define SDL_MAIN_HANDLED
#include "desktop/sound_device.h"

#include <fcntl.h>
#include <unistd.h>

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>
#include <string>

#include "platform/files.h"
#include "platform/run_time_error.h"

namespace {

constexpr int DeviceFrequency = 44100;
constexpr SDL_AudioFormat DeviceFormat = AUDIO_S16SYS;
constexpr int DeviceSides = 2;
constexpr int DeviceChunk = 1024;  // frames mixed at a time: a sound starts at most 23 ms late
constexpr int SlotCount = 5;       // 0 is never asked for

using Samples = std::vector<std::int16_t>;  // left and right in turn

// Looking for a device, the sound system tells standard error of every one that it doesn't find.
class QuietStandardError {
  public:
    QuietStandardError() : kept(dup(STDERR_FILENO)) {
        const int nowhere = open("/dev/null", O_WRONLY);
        if (nowhere < 0) return;
        dup2(nowhere, STDERR_FILENO);
        close(nowhere);
    }
    ~QuietStandardError() {
        if (kept < 0) return;
        dup2(kept, STDERR_FILENO);
        close(kept);
    }
    QuietStandardError(const QuietStandardError&) = delete;
    QuietStandardError& operator=(const QuietStandardError&) = delete;

  private:
    int kept;
};

[[noreturn]] void Refuse(const SoundRequest& sound) {
    throw RunTimeError(Fault::BadData,
                       ShownName(sound.fileName) + ": expected a WAV sound: " + SDL_GetError());
}

double FromHundredthsOfDecibel(int level) {
    return std::pow(10.0, level / 2000.0);
}

void ApplyGains(Samples& samples, const SoundRequest& sound) {
    const double common = FromHundredthsOfDecibel(sound.volume);
    const double gains[DeviceSides] = {common * FromHundredthsOfDecibel(-std::max(sound.pan, 0)),
                                       common * FromHundredthsOfDecibel(std::min(sound.pan, 0))};
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<std::int16_t>(std::lround(samples[i] * gains[i % DeviceSides]));
}

// The file's sound as the device plays it, at the rate that was asked for.
Samples Convert(const SDL_AudioSpec& wavFormat, std::span<const std::uint8_t> wave,
                const SoundRequest& sound) {
    SDL_AudioCVT conversion;
    if (SDL_BuildAudioCVT(&conversion, wavFormat.format, wavFormat.channels, sound.frequency, DeviceFormat,
                          DeviceSides, DeviceFrequency) < 0)
        Refuse(sound);
    std::vector<std::uint8_t> work(wave.size() * static_cast<std::size_t>(conversion.len_mult));
    std::copy(wave.begin(), wave.end(), work.begin());
    conversion.buf = work.data();
    conversion.len = static_cast<int>(wave.size());
    conversion.len_cvt = conversion.len;
    if (conversion.needed != 0 && SDL_ConvertAudio(&conversion) < 0) Refuse(sound);
    Samples samples(static_cast<std::size_t>(conversion.len_cvt) / sizeof(std::int16_t));
    std::memcpy(samples.data(), work.data(), samples.size() * sizeof(std::int16_t));
    return samples;
}

Samples Load(const SoundRequest& sound) {
    SDL_AudioSpec wavFormat{};
    Uint8* loaded = nullptr;
    Uint32 length = 0;
    if (SDL_LoadWAV(ProgramPath(sound.fileName).c_str(), &wavFormat, &loaded, &length) == nullptr)
        Refuse(sound);
    const std::unique_ptr<Uint8, decltype(&SDL_FreeWAV)> wave(loaded, SDL_FreeWAV);
    Samples samples = Convert(wavFormat, {wave.get(), length}, sound);
    ApplyGains(samples, sound);
    return samples;
}

}  // namespace

// The mixer reads both until the slot's channel ends or is halted.
struct SoundDevice::Slot {
    Samples samples;
    Mix_Chunk chunk{};
};

SoundDevice::SoundDevice() : slots(SlotCount) {}

SoundDevice::~SoundDevice() {
    Close();
}

void SoundDevice::Play(const SoundRequest& sound) {
    if (!Open()) return;
    Samples samples = Load(sound);
    Mix_HaltChannel(sound.slot);
    Slot& slot = slots.at(static_cast<std::size_t>(sound.slot));
    slot.samples = std::move(samples);
    slot.chunk.abuf = reinterpret_cast<Uint8*>(slot.samples.data());
    slot.chunk.alen = static_cast<Uint32>(slot.samples.size() * sizeof(std::int16_t));
    slot.chunk.volume = MIX_MAX_VOLUME;
    Mix_PlayChannel(sound.slot, &slot.chunk, 0);
}

bool SoundDevice::Playing() const {
    return state == State::Open && Mix_Playing(-1) > 0;
}

bool SoundDevice::Open() {
    if (state != State::Closed) return state == State::Open;
    const QuietStandardError quiet;
    SDL_SetMainReady();
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    state = State::Missing;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
    if (Mix_OpenAudioDevice(DeviceFrequency, DeviceFormat, DeviceSides, DeviceChunk, nullptr, 0) != 0) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    Mix_AllocateChannels(SlotCount);
    state = State::Open;
    return true;
}

void SoundDevice::Close() {
    if (state != State::Open) return;
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    state = State::Closed;
}
