#include "takes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace {

// Sounds whose name begins so.
struct Often {
    std::string_view begins;
    int takes;
    double spread;  // of pitch to either side, in octaves
};

// The refusal, the click and what a soldier does with his hands are signs to be known again: they have one.
// clang-format off
constexpr Often Repeated[] = {
    // begins             takes  octaves
    {"bump/step",           3,   0.20},
    {"bump/wound3",         4,   0.12},
    {"bump/death2",         3,   0.10},
    {"bump/glass2",         3,   0.14},
    {"ric/wood",            3,   0.14},  // the action that is stuck
    {"ric/",                4,   0.22},
    {"land/",               4,   0.20},
    {"weapons/smg",         3,   0.045}, // whatever fires bursts
    {"weapons/rifle",       3,   0.045},
    {"weapons/mg",          3,   0.045},
};
// clang-format on

const Often* RowOf(std::string_view name) {
    const auto* const row =
        std::find_if(std::begin(Repeated), std::end(Repeated),
                     [name](const Often& often) { return name.starts_with(often.begins); });
    return row == std::end(Repeated) ? nullptr : row;
}

// The loudest tenth of a second, about what the ear sums up.
double Loudness(const Signal& signal) {
    const std::size_t window = std::min(SampleCount(0.1), signal.size());
    double sum = 0;
    double loudest = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        sum += signal[i] * signal[i];
        if (i >= window) sum -= signal[i - window] * signal[i - window];
        loudest = std::max(loudest, sum);
    }
    return std::sqrt(loudest);
}

void Vary(Layer& layer, double pitch, double spread, std::mt19937& random) {
    const auto about = [&random](double octaves) { return std::exp2(octaves * Chance(random)); };
    constexpr double Later = 0.012;  // seconds at most, but for what begins the sound
    const double own = pitch * about(spread / 10);
    const bool counts = layer.source == Source::Grains;  // `from` is no pitch of theirs
    layer.from *= counts ? about(2 * spread) : own;
    layer.to *= own;
    layer.lowHz *= own;
    layer.highHz *= own;
    layer.decay *= about(2 * spread);
    layer.level *= about(2 * spread);
    if (layer.at > 0) layer.at = layer.at * about(spread) + Later * spread * (1 + Chance(random));
}

}  // namespace

int TakeCount(const std::string& name) {
    const Often* const row = RowOf(name);
    return row == nullptr ? 1 : row->takes;
}

Sound TakeOf(const Sound& sound, int number) {
    constexpr std::array<double, 3> Pitches = {-1, 1, -0.5};  // of the spread, by take
    const double spread = RowOf(sound.name)->spread;
    Sound take = sound;
    take.name += "-" + std::to_string(number);
    std::mt19937 random(SeedOf(take.name));
    const double pitch = std::exp2(spread * Pitches.at(static_cast<std::size_t>(number - 2)));
    for (Layer& layer : take.layers)
        Vary(layer, pitch, spread, random);
    return take;
}

void MatchLoudness(Signal& take, const Signal& first) {
    constexpr double HighestPeak = 0.94;
    double peak = 0;
    for (const double sample : take)
        peak = std::max(peak, std::abs(sample));
    if (peak == 0) return;
    const double gain = std::min(Loudness(first) / Loudness(take), HighestPeak / peak);
    for (double& sample : take)
        sample *= gain;
}
