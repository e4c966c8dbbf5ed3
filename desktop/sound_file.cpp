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
#include "shell/sound_gains.h"

namespace {

[[noreturn]] void Refuse(const std::string& fileName, const std::string& problem) {
    throw RunTimeError(Fault::BadData, ShownName(fileName) + ": " + problem);
}

[[noreturn]] void Refuse(const std::string& fileName) {
    Refuse(fileName, std::string("expected a WAV sound: ") + SDL_GetError());
}

std::size_t LittleEndian32(std::string_view bytes) {
    std::size_t value = 0;
    for (std::size_t i = 4; i > 0; --i)
        value = value << 8 | static_cast<unsigned char>(bytes[i - 1]);
    return value;
}

// The decoder takes the length of a chunk for granted and asks for that much memory, up to 4 GB.
void CheckChunks(std::string_view content, const std::string& fileName) {
    constexpr std::size_t FileHead = 12;
    constexpr std::size_t ChunkHead = 8;
    if (content.size() < FileHead || !content.starts_with("RIFF") || content.substr(8, 4) != "WAVE")
        Refuse(fileName, "byte 0: expected a WAV sound");
    for (std::size_t at = FileHead; at + ChunkHead <= content.size();) {
        const std::size_t length = LittleEndian32(content.substr(at + 4, 4));
        const std::size_t left = content.size() - at - ChunkHead;
        if (length > left)
            Refuse(fileName, "byte " + std::to_string(at + 4) + ": expected a chunk of up to " +
                                 std::to_string(left) + " bytes, found " + std::to_string(length));
        at += ChunkHead + length + length % 2;
    }
}

void ApplyGains(Samples& samples, const SoundRequest& sound) {
    const auto [left, right] = GainsOf(sound);
    const double gains[DeviceSides] = {left, right};
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<std::int16_t>(std::lround(samples[i] * gains[i % DeviceSides]));
}

// As samples of 16 bits come; the wave was made at `rate`, and goes to `sides` at `newRate`.
Samples Convert(const SDL_AudioSpec& wavFormat, std::span<const std::uint8_t> wave, int rate, int sides,
                int newRate, const std::string& fileName) {
    SDL_AudioCVT conversion;
    if (SDL_BuildAudioCVT(&conversion, wavFormat.format, wavFormat.channels, rate, AUDIO_S16SYS,
                          static_cast<Uint8>(sides), newRate) < 0)
        Refuse(fileName);
    std::vector<std::uint8_t> work(wave.size() * static_cast<std::size_t>(conversion.len_mult));
    std::copy(wave.begin(), wave.end(), work.begin());
    conversion.buf = work.data();
    conversion.len = static_cast<int>(wave.size());
    conversion.len_cvt = conversion.len;
    if (conversion.needed != 0 && SDL_ConvertAudio(&conversion) < 0) Refuse(fileName);
    Samples samples(static_cast<std::size_t>(conversion.len_cvt) / sizeof(std::int16_t));
    std::copy_n(work.begin(), samples.size() * sizeof(std::int16_t),
                reinterpret_cast<std::uint8_t*>(samples.data()));
    return samples;
}

struct Wave {
    SDL_AudioSpec format{};
    std::unique_ptr<Uint8, decltype(&SDL_FreeWAV)> bytes{nullptr, &SDL_FreeWAV};
    Uint32 length = 0;

    std::span<const std::uint8_t> Bytes() const { return {bytes.get(), length}; }
};

Wave Load(std::string_view content, const std::string& fileName) {
    CheckChunks(content, fileName);
    Wave wave;
    Uint8* loaded = nullptr;
    SDL_RWops* const file = SDL_RWFromConstMem(content.data(), static_cast<int>(content.size()));
    if (file == nullptr || SDL_LoadWAV_RW(file, 1, &wave.format, &loaded, &wave.length) == nullptr)
        Refuse(fileName);
    wave.bytes.reset(loaded);
    return wave;
}

// The curve through four neighbours, `part` of the way from the second to the third.
float Between(const std::int16_t* four, float part) {
    const float a = four[0];
    const float b = four[1];
    const float c = four[2];
    const float d = four[3];
    return b + 0.5F * part * (c - a + part * (2 * a - 5 * b + 4 * c - d + part * (3 * (b - c) + d - a)));
}

}  // namespace

Samples DecodeSound(std::string_view content, const SoundRequest& sound) {
    const Wave wave = Load(content, sound.fileName);
    Samples samples =
        Convert(wave.format, wave.Bytes(), sound.frequency, DeviceSides, DeviceFrequency, sound.fileName);
    ApplyGains(samples, sound);
    return samples;
}

// The library's own change of rate knows silence alone before the beginning and after the end.
Samples DecodeLoop(std::string_view content, const std::string& fileName) {
    const Wave wave = Load(content, fileName);
    const int rate = wave.format.freq;
    Samples loop = Convert(wave.format, wave.Bytes(), rate, 1, rate, fileName);
    if (loop.empty() || rate <= 0) return {};
    const double pace = static_cast<double>(rate) / DeviceFrequency;
    Samples samples(static_cast<std::size_t>(static_cast<double>(loop.size()) / pace));
    const std::int16_t last = loop.back();
    for (std::size_t i = 0; i < 2; ++i)
        loop.push_back(loop[i]);
    loop.insert(loop.begin(), last);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double place = static_cast<double>(i) * pace;
        const auto at = static_cast<std::size_t>(place);
        const float value = Between(&loop[at], static_cast<float>(place - static_cast<double>(at)));
        samples[i] = static_cast<std::int16_t>(std::clamp(value, -32768.0F, 32767.0F));
    }
    return samples;
}
