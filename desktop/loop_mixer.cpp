#include "desktop/loop_mixer.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "shell/ambience.h"

namespace {

std::int16_t Sum(std::int16_t heard, float gain, std::int16_t added) {
    constexpr float Highest = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(
        std::clamp(static_cast<float>(heard) + gain * static_cast<float>(added), -Highest, Highest));
}

}  // namespace

void LoopMixer::SetSamples(std::size_t loop, Samples samples) {
    const std::scoped_lock lock(access);
    loops.at(loop).samples = std::move(samples);
    loops.at(loop).at = 0;
}

void LoopMixer::SetLevel(std::size_t loop, double level) {
    const std::scoped_lock lock(access);
    loops.at(loop).wanted = level;
}

void LoopMixer::SetMaster(double level) {
    const std::scoped_lock lock(access);
    wantedMaster = level;
}

bool LoopMixer::Silent() const {
    const std::scoped_lock lock(access);
    if (master == 0 && wantedMaster == 0) return true;
    return std::all_of(loops.begin(), loops.end(), [](const Loop& loop) {
        return loop.samples.empty() || (loop.level == 0 && loop.wanted == 0);
    });
}

void LoopMixer::Mix(std::span<std::int16_t> heard) {
    const std::scoped_lock lock(access);
    for (Loop& loop : loops)
        MixLoop(loop, master, heard);
    master = wantedMaster;
}

// All levels move in straight lines from one stretch of samples to the next, so that no step is heard.
void LoopMixer::MixLoop(Loop& loop, double masterNow, std::span<std::int16_t> heard) {
    const std::size_t frames = heard.size() / DeviceSides;
    const std::size_t length = loop.samples.size();
    if (length == 0 || frames == 0) return;
    const double reach = static_cast<double>(frames) / (AmbienceFadeSeconds * DeviceFrequency);
    const double before = loop.level * masterNow;
    loop.level = std::clamp(loop.wanted, loop.level - reach, loop.level + reach);
    const double after = loop.level * wantedMaster;
    if (before == 0 && after == 0) return;
    auto gain = static_cast<float>(before);
    const auto step = static_cast<float>((after - before) / static_cast<double>(frames));
    std::size_t left = loop.at;
    std::size_t right = (loop.at + length / 2) % length;
    for (std::size_t i = 0; i < frames; ++i) {
        heard[2 * i] = Sum(heard[2 * i], gain, loop.samples[left]);
        heard[2 * i + 1] = Sum(heard[2 * i + 1], gain, loop.samples[right]);
        gain += step;
        if (++left == length) left = 0;
        if (++right == length) right = 0;
    }
    loop.at = left;
}
