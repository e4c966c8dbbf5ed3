#include "wave_file.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>

namespace {

constexpr std::uint32_t SampleBytes = 2;
constexpr double FullScale = 32767;

void Append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFFu);
}

std::string Header(std::uint32_t dataBytes, std::uint32_t rate) {
    constexpr std::uint32_t FormatBytes = 16, Pcm = 1, Channels = 1, HeaderBytes = 36;
    std::string bytes = "RIFF";
    Append(bytes, HeaderBytes + dataBytes, 4);
    bytes += "WAVEfmt ";
    Append(bytes, FormatBytes, 4);
    Append(bytes, Pcm, 2);
    Append(bytes, Channels, 2);
    Append(bytes, rate, 4);
    Append(bytes, rate * Channels * SampleBytes, 4);
    Append(bytes, Channels * SampleBytes, 2);
    Append(bytes, 8 * SampleBytes, 2);
    bytes += "data";
    Append(bytes, dataBytes, 4);
    return bytes;
}

}  // namespace

void WriteWave(const std::filesystem::path& path, const Signal& signal, int rate) {
    std::string bytes =
        Header(static_cast<std::uint32_t>(signal.size()) * SampleBytes, static_cast<std::uint32_t>(rate));
    for (const double sample : signal) {
        const auto value = static_cast<std::int16_t>(std::lround(FullScale * std::clamp(sample, -1.0, 1.0)));
        Append(bytes, static_cast<std::uint16_t>(value), SampleBytes);
    }
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    file.close();
    if (!file) throw std::runtime_error("can't write " + path.string());
}
