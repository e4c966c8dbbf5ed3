#include "ambience.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "creatures.h"
#include "sounds.h"

namespace {

// Filters remember less than this of what they were fed.
constexpr double Memory = 1;  // second

// Filters a loop as if it had always been going round.
template <typename Filter>
void Around(Signal& loop, const Filter& filter) {
    const auto memory = static_cast<std::ptrdiff_t>(SampleCount(Memory));
    Signal longer(loop.end() - memory, loop.end());
    longer.insert(longer.end(), loop.begin(), loop.end());
    filter(longer);
    loop.assign(longer.begin() + memory, longer.end());
}

Signal EndlessNoise(std::mt19937& random, double seconds, double lowHz, double highHz) {
    Signal noise = Noise(random, seconds);
    Around(noise, [=](Signal& signal) {
        HighPass(signal, lowHz);
        LowPass(signal, highHz);
    });
    return noise;
}

// Rises and falls between 0 and 1 without a rhythm, as long as the loop: waves of which whole numbers fit.
Signal Sway(std::mt19937& random, double seconds, double slowestHz, double fastestHz) {
    constexpr int Waves = 9;
    Signal sway(SampleCount(seconds), 0.0);
    for (int i = 0; i < Waves; ++i) {
        const double wanted = slowestHz * std::pow(fastestHz / slowestHz, (Chance(random) + 1) / 2);
        const double turns = std::max(1.0, std::round(wanted * seconds));
        const double begin = std::numbers::pi * Chance(random);
        for (std::size_t k = 0; k < sway.size(); ++k)
            sway[k] += std::sin(begin + 2 * std::numbers::pi * turns * static_cast<double>(k) /
                                            static_cast<double>(sway.size()));
    }
    for (double& value : sway)
        value = 0.5 + 0.5 * std::tanh(0.32 * value);
    return sway;
}

// Adds noise that sways: at its weakest `least` of its level.
void AddSwaying(Signal& loop, const Signal& noise, const Signal& sway, double level, double least,
                double power) {
    for (std::size_t i = 0; i < loop.size(); ++i)
        loop[i] += level * (least + (1 - least) * std::pow(sway[i], power)) * noise[i];
}

// What reaches past the loop's end goes on at its beginning.
void AddAround(Signal& loop, const Signal& piece, double level, double at) {
    const std::size_t begin = SampleCount(at);
    for (std::size_t i = 0; i < piece.size(); ++i)
        loop[(begin + i) % loop.size()] += level * piece[i];
}

// From some way off: duller, and with the valley's echo.
Signal FarOff(Signal piece, double highestHz, double echo) {
    constexpr double EchoSeconds = 1.2;
    piece.resize(piece.size() + SampleCount(EchoSeconds), 0.0);
    LowPass(piece, highestHz);
    AddRoom(piece, echo, EchoSeconds);
    return piece;
}

Signal Wind(std::mt19937& random, double seconds) {
    Signal loop(SampleCount(seconds), 0.0);
    const Signal gusts = Sway(random, seconds, 0.05, 0.24);
    AddSwaying(loop, EndlessNoise(random, seconds, 60, 220), gusts, 1.2, 0.35, 1);
    AddSwaying(loop, EndlessNoise(random, seconds, 180, 520), gusts, 0.9, 0.15, 1.5);
    AddSwaying(loop, EndlessNoise(random, seconds, 420, 1300), gusts, 0.45, 0.02, 2.5);
    return loop;
}

Signal River(std::mt19937& random, double seconds) {
    Signal loop(SampleCount(seconds), 0.0);
    AddSwaying(loop, EndlessNoise(random, seconds, 160, 600), Sway(random, seconds, 0.1, 0.6), 0.55, 0.6, 1);
    AddSwaying(loop, EndlessNoise(random, seconds, 600, 1800), Sway(random, seconds, 0.4, 2.5), 0.35, 0.4,
               1.5);
    AddSwaying(loop, EndlessNoise(random, seconds, 1800, 5200), Sway(random, seconds, 0.6, 3.5), 0.16, 0.25,
               2);
    const int bubbles = static_cast<int>(38 * seconds);
    for (int i = 0; i < bubbles; ++i) {
        const Signal bubble = Bubble(random, 330, 1900);
        const double level = 0.5 * std::pow((Chance(random) + 1) / 2, 3);
        AddAround(loop, bubble, level, seconds * (Chance(random) + 1) / 2);
    }
    return loop;
}

Signal Wood(std::mt19937& random, double seconds) {
    struct Song {
        double at;  // share of the loop
        Signal (*sing)(std::mt19937& random);
        double level, highestHz, echo;
    };
    constexpr Song Songs[] = {
        {0.02, Thrush, 0.50, 4200, 1.2}, {0.15, Tit, 0.34, 6500, 0.5},   {0.27, Pigeon, 0.50, 800, 1.0},
        {0.33, Finch, 0.30, 5200, 0.9},  {0.46, Tit, 0.17, 4800, 1.1},   {0.52, Thrush, 0.34, 3400, 1.4},
        {0.66, Finch, 0.46, 6500, 0.6},  {0.73, Pigeon, 0.34, 700, 1.3}, {0.80, Tit, 0.26, 5600, 0.8},
        {0.90, Thrush, 0.22, 2900, 1.6},
    };
    Signal loop(SampleCount(seconds), 0.0);
    const Signal rustle = Sway(random, seconds, 0.08, 0.6);
    AddSwaying(loop, EndlessNoise(random, seconds, 1400, 5600), rustle, 0.11, 0.2, 1.6);
    for (const Song& song : Songs)
        AddAround(loop, FarOff(song.sing(random), song.highestHz, song.echo), song.level, song.at * seconds);
    return loop;
}

Signal Meadow(std::mt19937& random, double seconds) {
    Signal loop(SampleCount(seconds), 0.0);
    AddSwaying(loop, EndlessNoise(random, seconds, 900, 4200), Sway(random, seconds, 0.08, 0.5), 0.12, 0.2,
               1.6);
    for (const double at : {0.04, 0.21, 0.30, 0.47, 0.63, 0.71, 0.88})
        AddAround(loop, Grasshopper(random), 0.40 + 0.15 * Chance(random), at * seconds);
    const int crickets = static_cast<int>(seconds / 0.62);
    const Signal near = Sway(random, seconds, 0.05, 0.2);
    for (int i = 0; i < crickets; ++i) {
        const double at = (i + 0.06 * Chance(random) + 0.1) * seconds / crickets;
        AddAround(loop, Cricket(random), 0.14 * near[SampleCount(at) % near.size()], at);
    }
    AddAround(loop, Bee(random), 0.12, 0.36 * seconds);
    AddAround(loop, Bee(random), 0.07, 0.80 * seconds);
    return loop;
}

Signal Quay(std::mt19937& random, double seconds) {
    Signal loop(SampleCount(seconds), 0.0);
    const int laps = static_cast<int>(seconds / 1.3);
    for (int i = 0; i < laps; ++i)
        AddAround(loop, Lap(random), 0.5 + 0.25 * Chance(random),
                  (i + 0.25 * Chance(random) + 0.3) * seconds / laps);
    for (const double at : {0.07, 0.26, 0.41, 0.68, 0.86})
        AddAround(loop, FarOff(Creak(random), 2400, 0.7), 7 + 3 * Chance(random), at * seconds);
    return loop;
}

void BringToMean(Signal& signal, double meanDb) {
    double sum = 0;
    for (const double sample : signal)
        sum += sample * sample;
    const double gain = std::pow(10, -meanDb / 20) / std::sqrt(sum / static_cast<double>(signal.size()));
    for (double& sample : signal)
        sample *= gain;
}

}  // namespace

// clang-format off
std::vector<Loop> AmbienceLoops() {
    return {
    // name              secs  thin  mean
    {"ambience/wind",     21,   4,   49, Wind},
    {"ambience/river",    20,   3,   47, River},
    {"ambience/wood",     26,   3,   52, Wood},
    {"ambience/meadow",   20,   3,   54, Meadow},
    {"ambience/quay",     22,   4,   52, Quay},
    };
}
// clang-format on

int LoopRate(const Loop& loop) {
    return SampleRate / loop.thinness;
}

Signal Render(const Loop& loop) {
    constexpr double Audible = 40;  // hertz
    std::mt19937 random(SeedOf(loop.name));
    Signal signal = loop.make(random, loop.seconds);
    const double highest = 0.44 * LoopRate(loop);
    Around(signal, [highest](Signal& longer) {
        HighPass(longer, Audible);
        for (int i = 0; i < 3; ++i)
            LowPass(longer, highest);
    });
    BringToMean(signal, loop.meanDb);
    Signal kept;
    for (std::size_t i = 0; i < signal.size(); i += static_cast<std::size_t>(loop.thinness))
        kept.push_back(signal[i]);
    return kept;
}
