#include "creatures.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double Tau = 2 * std::numbers::pi;

double Between(std::mt19937& random, double low, double high) {
    return low + (high - low) * (Chance(random) + 1) / 2;
}

// A piece that swells and dies, hump-shaped over its length.
void Swell(Signal& signal) {
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(signal.size());
        signal[i] *= std::pow(std::sin(std::numbers::pi * part), 1.2);
    }
}

// One note of a bird.
struct Note {
    double seconds;
    double fromHz;
    double toHz;
    double trembleHz = 0;
    double tremble = 0;  // share of the pitch
};

Signal Whistle(const Note& note) {
    constexpr double Reed = 0.08;  // of the octave above
    Signal signal(SampleCount(note.seconds));
    double phase = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double t = static_cast<double>(i) / SampleRate;
        const double slide = note.fromHz + (note.toHz - note.fromHz) * t / note.seconds;
        phase += Tau * slide * (1 + note.tremble * std::sin(Tau * note.trembleHz * t)) / SampleRate;
        signal[i] = std::sin(phase) + Reed * std::sin(2 * phase);
    }
    Swell(signal);
    return signal;
}

}  // namespace

Signal Bubble(std::mt19937& random, double lowestHz, double highestHz) {
    const double hz = lowestHz * std::pow(highestHz / lowestHz, Between(random, 0, 1));
    const double decay = 14 / hz;
    Signal signal(SampleCount(8 * decay));
    double phase = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double t = static_cast<double>(i) / SampleRate;
        phase += Tau * hz * (1 + 0.12 * t / decay) / SampleRate;
        signal[i] = std::sin(phase);
    }
    Envelope(signal, decay / 8, decay);
    return signal;
}

// Two notes, again and again.
Signal Tit(std::mt19937& random) {
    const double hz = Between(random, 4100, 4700);
    const int times = 3 + static_cast<int>(Between(random, 0, 3));
    Signal song(SampleCount(0.30 * times + 0.1), 0.0);
    for (int i = 0; i < times; ++i) {
        Add(song, Whistle({0.09, 1.02 * hz, hz}), 1.0, 0.30 * i);
        Add(song, Whistle({0.13, 0.77 * hz, 0.75 * hz}), 0.8, 0.30 * i + 0.12);
    }
    return song;
}

// A trill that runs down and ends in a flourish.
Signal Finch(std::mt19937& random) {
    const double hz = Between(random, 4300, 5000);
    Signal song(SampleCount(2.2), 0.0);
    double at = 0;
    for (int i = 0; i < 11; ++i) {
        const double top = hz * (1 - 0.032 * i);
        Add(song, Whistle({0.075, top, 0.68 * top}), 0.5 + 0.05 * i, at);
        at += 0.155 - 0.007 * i;
    }
    Add(song, Whistle({0.16, 0.50 * hz, 0.92 * hz}), 1.0, at + 0.03);
    Add(song, Whistle({0.12, 0.80 * hz, 0.55 * hz}), 0.8, at + 0.22);
    return song;
}

// Slow flutes.
Signal Thrush(std::mt19937& random) {
    Signal song(SampleCount(3.0), 0.0);
    double at = 0;
    for (int i = 0; i < 6; ++i) {
        const double hz = Between(random, 1650, 2750);
        const double seconds = Between(random, 0.14, 0.34);
        Add(song, Whistle({seconds, hz, hz * Between(random, 0.86, 1.18), 26, 0.012}),
            Between(random, 0.6, 1), at);
        at += seconds + Between(random, 0.02, 0.16);
    }
    return song;
}

Signal Pigeon(std::mt19937& random) {
    const double hz = Between(random, 440, 500);
    constexpr Note Coos[] = {
        {0.30, 0.96, 1.0}, {0.62, 1.08, 1.0}, {0.40, 1.0, 0.97}, {0.30, 0.98, 0.96}, {0.36, 0.97, 0.94}};
    Signal song(SampleCount(2.8), 0.0);
    double at = 0;
    for (const Note& coo : Coos) {
        Add(song, Whistle({coo.seconds, hz * coo.fromHz, hz * coo.toHz, 21, 0.008}), 1.0, at);
        at += coo.seconds + 0.12;
    }
    LowPass(song, 900);
    return song;
}

Signal Grasshopper(std::mt19937& random) {
    const double seconds = Between(random, 0.9, 1.8);
    const double strokes = Between(random, 24, 32);  // of the leg, a second
    Signal call = Noise(random, seconds);
    HighPass(call, 4300);
    LowPass(call, 6600);
    for (std::size_t i = 0; i < call.size(); ++i) {
        const double t = static_cast<double>(i) / SampleRate;
        const double stroke = t * strokes - std::floor(t * strokes);
        call[i] *= stroke < 0.6 ? std::sin(std::numbers::pi * stroke / 0.6) : 0.0;
    }
    Swell(call);
    return call;
}

// Three beats of the wings.
Signal Cricket(std::mt19937& random) {
    const double hz = Between(random, 4150, 4350);
    Signal call(SampleCount(0.14), 0.0);
    for (int i = 0; i < 3; ++i)
        Add(call, Whistle({0.022, hz, 0.985 * hz}), 0.7 + 0.15 * i, 0.036 * i);
    return call;
}

Signal Bee(std::mt19937& random) {
    const double seconds = Between(random, 2.5, 4);
    const double hz = Between(random, 185, 220);
    Signal flight(SampleCount(seconds), 0.0);
    for (int partial = 1; partial <= 7; ++partial)
        Add(flight, Whistle({seconds, partial * hz, 0.94 * partial * hz, 5.5, 0.012}), 1.0 / partial, 0);
    Swell(flight);
    return flight;
}

// Wood that sticks and slips: knocks that come faster and slower, through the plank's own tones.
Signal Creak(std::mt19937& random) {
    const double seconds = Between(random, 0.6, 1.3);
    const double slowest = Between(random, 14, 24);
    const double pitch = Between(random, 0.85, 1.2);
    Signal knocks(SampleCount(seconds), 0.0);
    for (double at = 0.01; at < seconds;) {
        knocks[SampleCount(at) % knocks.size()] = Between(random, 0.4, 1);
        const double haste = 1 + 1.6 * std::sin(std::numbers::pi * at / seconds);
        at += Between(random, 0.85, 1.15) / (slowest * haste);
    }
    Signal creak(knocks.size(), 0.0);
    for (const double hz : {260.0, 540.0, 930.0, 1700.0}) {
        Signal tone = knocks;
        BandPass(tone, pitch * hz, 11);
        Add(creak, tone, 1, 0);
    }
    Swell(creak);
    return creak;
}

Signal Lap(std::mt19937& random) {
    Signal wave = Noise(random, 1.1);
    HighPass(wave, 140);
    LowPass(wave, Between(random, 500, 1100));
    Envelope(wave, Between(random, 0.12, 0.22), 0.16);
    for (int i = 0; i < 7; ++i)
        Add(wave, Bubble(random, 170, 620), Between(random, 0.1, 0.5), Between(random, 0.05, 0.6));
    return wave;
}
