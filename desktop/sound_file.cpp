#define SDL_MAIN_HANDLED
#include "desktop/sound_file.h"

#include <SDL.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <span>
#include <string>

#include "platform/files.h"
#include "platform/run_time_error.h"

namespace {

[[noreturn]] void Refuse(const SoundRequest& sound, const std::string& problem) {
    throw RunTimeError(Fault::BadData, ShownName(sound.fileName) + ": " + problem);
}

[[noreturn]] void Refuse(const SoundRequest& sound) {
    Refuse(sound, std::string("expected a WAV sound: ") + SDL_GetError());
}

std::size_t LittleEndian32(std::string_view bytes) {
    std::size_t value = 0;
    for (std::size_t i = 4; i > 0; --i)
        value = value << 8 | static_cast<unsigned char>(bytes[i - 1]);
    return value;
}

// The decoder takes the length of a chunk for granted and asks for that much memory, up to 4 GB.
void CheckChunks(std::string_view content, const SoundRequest& sound) {
    constexpr std::size_t FileHead = 12;
    constexpr std::size_t ChunkHead = 8;
    if (content.size() < FileHead || !content.starts_with("RIFF") || content.substr(8, 4) != "WAVE")
        Refuse(sound, "byte 0: expected a WAV sound");
    for (std::size_t at = FileHead; at + ChunkHead <= content.size();) {
        const std::size_t length = LittleEndian32(content.substr(at + 4, 4));
        const std::size_t left = content.size() - at - ChunkHead;
        if (length > left)
            Refuse(sound, "byte " + std::to_string(at + 4) + ": expected a chunk of up to " +
                              std::to_string(left) + " bytes, found " + std::to_string(length));
        at += ChunkHead + length + length % 2;
    }
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
    if (SDL_BuildAudioCVT(&conversion, wavFormat.format, wavFormat.channels, sound.frequency, AUDIO_S16SYS,
                          DeviceSides, DeviceFrequency) < 0)
        Refuse(sound);
    std::vector<std::uint8_t> work(wave.size() * static_cast<std::size_t>(conversion.len_mult));
    std::copy(wave.begin(), wave.end(), work.begin());
    conversion.buf = work.data();
    conversion.len = static_cast<int>(wave.size());
    conversion.len_cvt = conversion.len;
    if (conversion.needed != 0 && SDL_ConvertAudio(&conversion) < 0) Refuse(sound);
    Samples samples(static_cast<std::size_t>(conversion.len_cvt) / sizeof(std::int16_t));
    std::copy_n(work.begin(), samples.size() * sizeof(std::int16_t),
                reinterpret_cast<std::uint8_t*>(samples.data()));
    return samples;
}

}  // namespace

Samples DecodeSound(std::string_view content, const SoundRequest& sound) {
    CheckChunks(content, sound);
    SDL_AudioSpec wavFormat{};
    Uint8* loaded = nullptr;
    Uint32 length = 0;
    SDL_RWops* const bytes = SDL_RWFromConstMem(content.data(), static_cast<int>(content.size()));
    if (bytes == nullptr || SDL_LoadWAV_RW(bytes, 1, &wavFormat, &loaded, &length) == nullptr) Refuse(sound);
    const std::unique_ptr<Uint8, decltype(&SDL_FreeWAV)> wave(loaded, SDL_FreeWAV);
    Samples samples = Convert(wavFormat, {wave.get(), length}, sound);
    ApplyGains(samples, sound);
    return samples;
}
