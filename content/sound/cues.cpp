#include "sounds.h"

namespace {

constexpr Source N = Source::Noise, T = Source::Tone;

// The notes, hertz. All cues keep to D, so that two that come together agree.
constexpr double D2 = 73.4, A2 = 110.0, D3 = 146.8, F3 = 174.6, A3 = 220.0, Bb3 = 233.1, D4 = 293.7,
                 Fs4 = 370.0, A4 = 440.0, D5 = 587.3;

using Layers = std::vector<Layer>;

// A muted horn.
void AddNote(Layers& layers, double at, double hz, double level, double decay) {
    struct Partial {
        double multiple, level, decay;
    };
    constexpr Partial Partials[] = {
        {1, 0.60, 1.0}, {2, 0.38, 0.8}, {3, 0.22, 0.65}, {4, 0.10, 0.5}, {5, 0.06, 0.4}};
    constexpr double Attack = 0.022;
    constexpr double Scoop = 0.994;  // a player's lips find the pitch from below
    for (const Partial& partial : Partials) {
        const double pitch = hz * partial.multiple;
        layers.push_back(
            {T, at, level * partial.level, Attack, decay * partial.decay, 0, 0, Scoop * pitch, pitch});
    }
}

// A side drum with its snares off, far back.
void AddTap(Layers& layers, double at, double level) {
    layers.push_back({T, at, 0.8 * level, 0.002, 0.030, 0, 0, 210, 165});
    layers.push_back({N, at, 0.5 * level, 0.001, 0.022, 250, 3200, 0, 0});
}

// A bass drum.
void AddBeat(Layers& layers, double at, double level) {
    layers.push_back({T, at, level, 0.004, 0.110, 0, 0, 86, 58});
    layers.push_back({N, at, 0.4 * level, 0.002, 0.025, 60, 600, 0, 0});
}

Sound Cue(const char* name, double seconds, double peakDb, const Layers& layers) {
    return {std::string("cue/") + name, seconds, 0.0, 0.28, 0.7, peakDb, layers};
}

// A call of two notes: there!
Sound Sighted() {
    Layers layers;
    AddTap(layers, 0.00, 0.7);
    AddNote(layers, 0.00, A4, 0.8, 0.07);
    AddNote(layers, 0.11, D5, 1.0, 0.16);
    return Cue("sighted", 0.80, 11.1, layers);
}

Sound EnemysTurn() {
    Layers layers;
    AddBeat(layers, 0.00, 1.0);
    AddNote(layers, 0.02, D3, 0.8, 0.26);
    AddNote(layers, 0.02, A2, 0.6, 0.30);
    AddBeat(layers, 0.30, 0.7);
    return Cue("enemys-turn", 1.20, 12.2, layers);
}

Sound YourTurn() {
    Layers layers;
    AddTap(layers, 0.00, 0.8);
    AddTap(layers, 0.12, 0.5);
    AddNote(layers, 0.00, D4, 0.8, 0.10);
    AddNote(layers, 0.18, A4, 0.9, 0.24);
    AddNote(layers, 0.18, D4, 0.4, 0.24);
    return Cue("your-turn", 1.10, 14.3, layers);
}

Sound Victory() {
    Layers layers;
    for (const double at : {0.00, 0.12, 0.24})
        AddTap(layers, at, 0.8);
    AddNote(layers, 0.00, D4, 0.8, 0.14);
    AddNote(layers, 0.24, Fs4, 0.8, 0.14);
    AddNote(layers, 0.48, A4, 0.9, 0.18);
    AddBeat(layers, 0.78, 0.9);
    for (const double hz : {D3, A3, Fs4, D5})
        AddNote(layers, 0.78, hz, 0.7, 0.50);
    return Cue("victory", 3.00, 6.0, layers);
}

Sound Defeat() {
    Layers layers;
    AddBeat(layers, 0.00, 0.8);
    AddNote(layers, 0.00, D4, 0.8, 0.26);
    AddNote(layers, 0.45, Bb3, 0.8, 0.28);
    AddBeat(layers, 0.90, 0.8);
    AddNote(layers, 0.90, A3, 0.9, 0.34);
    AddBeat(layers, 1.50, 1.0);
    for (const double hz : {D2, A2, D3, F3})
        AddNote(layers, 1.50, hz, 0.7, 0.55);
    return Cue("defeat", 3.40, 8.2, layers);
}

}  // namespace

std::vector<Sound> CueSounds() {
    return {Sighted(), EnemysTurn(), YourTurn(), Victory(), Defeat()};
}
