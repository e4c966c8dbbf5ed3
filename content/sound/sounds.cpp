#include "sounds.h"

#include <cmath>

namespace {

Signal MakeSource(const Layer& layer, std::mt19937& random, double seconds) {
    switch (layer.source) {
        case Source::Tone:
            return Tone(seconds, layer.from, layer.to);
        case Source::Ring:
            return Ring(random, seconds, layer.from, layer.decay);
        case Source::Grains:
            return Grains(random, seconds, layer.from);
        case Source::Throat:
            return Throat(random, seconds, layer.from, layer.to);
        default:
            return Noise(random, seconds);
    }
}

// Makes filtered layers as loud as unfiltered ones, so that levels in the tables compare.
void Level(Signal& signal) {
    double sum = 0;
    for (const double sample : signal)
        sum += sample * sample;
    if (sum == 0) return;
    constexpr double Loudness = 0.3;
    const double gain = Loudness / std::sqrt(sum / static_cast<double>(signal.size()));
    for (double& sample : signal)
        sample *= gain;
}

Signal MakeLayer(const Layer& layer, std::mt19937& random) {
    constexpr double Decays = 8;  // after so many a layer can't be heard
    Signal signal = MakeSource(layer, random, layer.attack + Decays * layer.decay);
    if (layer.lowHz > 0) HighPass(signal, layer.lowHz);
    if (layer.highHz > 0) LowPass(signal, layer.highHz);
    if (layer.source != Source::Ring) Level(signal);
    Envelope(signal, layer.attack, layer.decay);
    return signal;
}

}  // namespace

std::uint32_t SeedOf(const std::string& name) {
    std::uint32_t hash = 2166136261u;
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
    return hash;
}

Signal Render(const Sound& sound) {
    std::mt19937 random(SeedOf(sound.name));
    Signal signal(SampleCount(sound.seconds), 0.0);
    for (const Layer& layer : sound.layers)
        Add(signal, MakeLayer(layer, random), layer.level, layer.at);
    if (sound.drive > 0) Saturate(signal, sound.drive);
    if (sound.room > 0) AddRoom(signal, sound.room, sound.roomSeconds);
    Finish(signal, sound.peakDb);
    return signal;
}
