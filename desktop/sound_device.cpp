#define SDL_MAIN_HANDLED
#include "desktop/sound_device.h"

#include <fcntl.h>
#include <unistd.h>

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include "desktop/sound_file.h"
#include "platform/files.h"
#include "shell/own_sounds.h"
#include "shell/sound_gains.h"

namespace {

constexpr SDL_AudioFormat DeviceFormat = AUDIO_S16SYS;
constexpr int DeviceChunk = 1024;           // frames mixed at a time: a sound starts at most 23 ms late
constexpr int SlotCount = LastOwnSlot + 1;  // 0 is never asked for

int MixVolume(int hundredths) {
    return static_cast<int>(std::lround(LoudnessGain(hundredths) * MIX_MAX_VOLUME));
}

bool HasAny(const AmbienceLevels& levels) {
    return std::any_of(levels.begin(), levels.end(), [](double level) { return level > 0; });
}

// The mixer's thread asks for what plays below the sounds.
void MixLoops(void* loops, Uint8* stream, int bytes) {
    static_cast<LoopMixer*>(loops)->Mix(
        {reinterpret_cast<std::int16_t*>(stream), static_cast<std::size_t>(bytes) / sizeof(std::int16_t)});
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

void SoundDevice::PlayIfSound(const SoundRequest& sound) {
    try {
        Play(sound);
    } catch (const RunTimeError& error) {
        Complain(error);
    }
}

void SoundDevice::Complain(const RunTimeError& error) {
    if (!complained) std::fprintf(stderr, "Sarnoth III: %s\n", error.About().c_str());
    complained = true;
}

void SoundDevice::SetLoudness(int hundredths) {
    loudness = hundredths;
    if (state == State::Open) Mix_Volume(-1, MixVolume(loudness));
    ApplyAmbience();
}

void SoundDevice::SetAmbience(const AmbienceLevels& levels) {
    if (levels == ambience && state != State::Closed) return;
    ambience = levels;
    ApplyAmbience();
}

void SoundDevice::LetAmbience(bool on) {
    hasAmbience = on;
    ApplyAmbience();
}

void SoundDevice::ApplyAmbience() {
    const int audible = hasAmbience ? loudness : 0;
    loops.SetMaster(LoudnessGain(audible));
    if (state == State::Closed && (audible == 0 || !HasAny(ambience))) return;
    if (!Open()) return;
    for (std::size_t i = 0; i < ambience.size(); ++i) {
        if (ambience[i] > 0 && audible > 0 && !loaded[i]) LoadLoop(i);
        loops.SetLevel(i, ambience[i]);
    }
}

void SoundDevice::LoadLoop(std::size_t loop) {
    const std::string file = AmbienceFile(loop);
    loaded[loop] = true;
    if (!FileExists(file)) return;
    try {
        loops.SetSamples(loop, DecodeLoop(ReadWholeFile(file), file));
    } catch (const RunTimeError& error) {
        Complain(error);
    }
}

bool SoundDevice::Playing() const {
    return state == State::Open && Mix_Playing(-1) > 0;
}

bool SoundDevice::Idle() const {
    if (state != State::Open) return false;
    return SDL_HasEvent(SDL_AUDIODEVICEREMOVED) == SDL_TRUE || (!Playing() && loops.Silent());
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
    Mix_HookMusic(MixLoops, &loops);
    state = State::Open;
    return true;
}

void SoundDevice::Close() {
    if (state != State::Open) return;
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    state = State::Closed;
}
