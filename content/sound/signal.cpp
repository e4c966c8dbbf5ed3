#include "signal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr double Tau = 2 * std::numbers::pi;
constexpr double FlatQuality = 0.7071;  // of a filter without a hump at its edge

struct Biquad {
    double b0, b1, b2, a1, a2;
};

void Run(Signal& signal, const Biquad& filter) {
    double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
    for (double& sample : signal) {
        const double y =
            filter.b0 * sample + filter.b1 * x1 + filter.b2 * x2 - filter.a1 * y1 - filter.a2 * y2;
        x2 = x1;
        x1 = sample;
        y2 = y1;
        y1 = y;
        sample = y;
    }
}

struct Turn {
    double cosine, alpha;
};

Turn TurnOf(double hz, double quality) {
    const double angle = Tau * std::min(hz, 0.45 * SampleRate) / SampleRate;
    return {std::cos(angle), std::sin(angle) / (2 * quality)};
}

double Decibels(double value) {
    return std::pow(10.0, value / 20);
}

// One echo line of the room: what comes back is duller each time.
void AddEchoes(Signal& wet, const Signal& dry, double delay, double seconds) {
    constexpr double Dullness = 0.35;
    constexpr double Fall = 0.001;  // -60 dB, after `seconds`
    const std::size_t length = SampleCount(delay);
    const double feedback = std::pow(Fall, delay / seconds);
    Signal line(length, 0.0);
    double dull = 0;
    for (std::size_t i = 0; i < dry.size(); ++i) {
        double& cell = line[i % length];
        wet[i] += cell;
        dull += (1 - Dullness) * (cell - dull);
        cell = dry[i] + feedback * dull;
    }
}

// Smears echoes so that they don't flutter.
void Diffuse(Signal& signal, double delay) {
    constexpr double Gain = 0.6;
    const std::size_t length = SampleCount(delay);
    Signal line(length, 0.0);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        double& cell = line[i % length];
        const double out = cell - Gain * signal[i];
        cell = signal[i] + Gain * out;
        signal[i] = out;
    }
}

void Fade(Signal& signal, double inSeconds, double outSeconds) {
    const std::size_t in = std::min(SampleCount(inSeconds), signal.size());
    const std::size_t out = std::min(SampleCount(outSeconds), signal.size());
    const auto part = [](std::size_t i, std::size_t n) {
        return 0.5 - 0.5 * std::cos(std::numbers::pi * static_cast<double>(i) / static_cast<double>(n));
    };
    for (std::size_t i = 0; i < in; ++i)
        signal[i] *= part(i, in);
    for (std::size_t i = 0; i < out; ++i)
        signal[signal.size() - 1 - i] *= part(i, out);
}

}  // namespace

std::size_t SampleCount(double seconds) {
    return static_cast<std::size_t>(std::llround(seconds * SampleRate));
}

double Chance(std::mt19937& random) {
    constexpr double Half = 2147483648.0;
    return static_cast<double>(random()) / Half - 1;
}

Signal Noise(std::mt19937& random, double seconds) {
    Signal signal(SampleCount(seconds));
    for (double& sample : signal)
        sample = Chance(random);
    return signal;
}

Signal Tone(double seconds, double fromHz, double toHz) {
    constexpr double SlidesIn = 0.25;  // of the length, the time in which most of the way is gone
    Signal signal(SampleCount(seconds));
    double phase = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(signal.size());
        phase += Tau * (toHz + (fromHz - toHz) * std::exp(-part / SlidesIn)) / SampleRate;
        signal[i] = std::sin(phase);
    }
    return signal;
}

Signal Ring(std::mt19937& random, double seconds, double hz, double decay) {
    constexpr std::array<double, 6> Partials = {1.0, 1.47, 2.09, 2.56, 3.43, 4.71};
    constexpr double Spread = 0.03;
    Signal signal(SampleCount(seconds), 0.0);
    for (const double partial : Partials) {
        const double pitch = hz * partial * (1 + Spread * Chance(random));
        if (pitch > 0.45 * SampleRate) continue;
        const double fall = decay / partial;
        for (std::size_t i = 0; i < signal.size(); ++i) {
            const double t = static_cast<double>(i) / SampleRate;
            signal[i] += std::sin(Tau * pitch * t) * std::exp(-t / fall) / partial;
        }
    }
    return signal;
}

Signal Grains(std::mt19937& random, double seconds, double perSecond) {
    Signal signal(SampleCount(seconds), 0.0);
    const double chance = 2 * perSecond / SampleRate - 1;
    for (double& sample : signal) {
        if (Chance(random) < chance) sample = Chance(random);
    }
    return signal;
}

Signal Throat(std::mt19937& random, double seconds, double fromHz, double toHz) {
    struct Formant {
        double hz, quality, level;
    };
    constexpr std::array<Formant, 3> Formants = {{{620, 6, 1.0}, {1050, 8, 0.55}, {2450, 9, 0.2}}};
    constexpr double Breath = 0.12;
    constexpr double Roughness = 0.05;
    Signal pulses(SampleCount(seconds), 0.0);
    double phase = 0;
    for (std::size_t i = 0; i < pulses.size(); ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(pulses.size());
        phase += (fromHz + (toHz - fromHz) * part) * (1 + Roughness * Chance(random)) / SampleRate;
        phase -= std::floor(phase);
        pulses[i] = (1 - phase) * (1 - phase) - 1.0 / 3 + Breath * Chance(random);
    }
    Signal signal(pulses.size(), 0.0);
    for (const Formant& formant : Formants) {
        Signal band = pulses;
        BandPass(band, formant.hz, formant.quality);
        Add(signal, band, formant.level, 0);
    }
    return signal;
}

void LowPass(Signal& signal, double hz) {
    const auto [cosine, alpha] = TurnOf(hz, FlatQuality);
    const double a0 = 1 + alpha, b = (1 - cosine) / a0;
    Run(signal, {b / 2, b, b / 2, -2 * cosine / a0, (1 - alpha) / a0});
}

void HighPass(Signal& signal, double hz) {
    const auto [cosine, alpha] = TurnOf(hz, FlatQuality);
    const double a0 = 1 + alpha, b = (1 + cosine) / a0;
    Run(signal, {b / 2, -b, b / 2, -2 * cosine / a0, (1 - alpha) / a0});
}

void BandPass(Signal& signal, double hz, double quality) {
    const auto [cosine, alpha] = TurnOf(hz, quality);
    const double a0 = 1 + alpha;
    Run(signal, {alpha / a0, 0, -alpha / a0, -2 * cosine / a0, (1 - alpha) / a0});
}

void Envelope(Signal& signal, double attack, double decay) {
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double t = static_cast<double>(i) / SampleRate;
        signal[i] *= t < attack ? t / attack : std::exp(-(t - attack) / decay);
    }
}

void Add(Signal& signal, const Signal& layer, double level, double at) {
    const std::size_t begin = SampleCount(at);
    for (std::size_t i = 0; i < layer.size() && begin + i < signal.size(); ++i)
        signal[begin + i] += level * layer[i];
}

void Saturate(Signal& signal, double drive) {
    for (double& sample : signal)
        sample = std::tanh(drive * sample);
}

void AddRoom(Signal& signal, double level, double seconds) {
    constexpr std::array<double, 5> Delays = {0.0297, 0.0371, 0.0411, 0.0437,
                                              0.0533};  // seconds, no common factor
    constexpr std::array<double, 2> Smears = {0.0050, 0.0017};
    Signal wet(signal.size(), 0.0);
    for (const double delay : Delays)
        AddEchoes(wet, signal, delay, seconds);
    for (const double smear : Smears)
        Diffuse(wet, smear);
    Add(signal, wet, level / static_cast<double>(Delays.size()), 0);
}

void Finish(Signal& signal, double peakDb) {
    constexpr double Audible = 28;       // hertz
    constexpr double FadeIn = 0.0004;    // seconds
    constexpr double FadeOutPart = 0.3;  // of the length
    HighPass(signal, Audible);
    Fade(signal, FadeIn, FadeOutPart * static_cast<double>(signal.size()) / SampleRate);
    double peak = 0;
    for (const double sample : signal)
        peak = std::max(peak, std::abs(sample));
    const double gain = peak > 0 ? Decibels(-peakDb) / peak : 0;
    for (double& sample : signal)
        sample *= gain;
}
