#define SDL_MAIN_HANDLED
#include "desktop/sound_device.h"

#include <fcntl.h>
#include <unistd.h>

#include <SDL.h>
#include <SDL_mixer.h>

#include <cstdint>

#include "desktop/sound_file.h"
#include "platform/files.h"

namespace {

constexpr SDL_AudioFormat DeviceFormat = AUDIO_S16SYS;
constexpr int DeviceChunk = 1024;  // frames mixed at a time: a sound starts at most 23 ms late
constexpr int SlotCount = 5;       // 0 is never asked for

int MixVolume(int hundredths) {
    return (hundredths * MIX_MAX_VOLUME + 50) / 100;
}

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
    if (loudness == 0 || !Open()) return;
    Samples samples = DecodeSound(ReadWholeFile(sound.fileName), sound);
    Mix_HaltChannel(sound.slot);
    Slot& slot = slots.at(static_cast<std::size_t>(sound.slot));
    slot.samples = std::move(samples);
    slot.chunk.abuf = reinterpret_cast<Uint8*>(slot.samples.data());
    slot.chunk.alen = static_cast<Uint32>(slot.samples.size() * sizeof(std::int16_t));
    slot.chunk.volume = MIX_MAX_VOLUME;
    Mix_Volume(sound.slot, MixVolume(loudness));
    Mix_PlayChannel(sound.slot, &slot.chunk, 0);
}

void SoundDevice::SetLoudness(int hundredths) {
    loudness = hundredths;
    if (state == State::Open) Mix_Volume(-1, MixVolume(loudness));
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
