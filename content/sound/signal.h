// The pieces that sounds are made of: noise, tones, ringing metal, grains, a hoarse voice, filters,
// envelopes, a room. All work on mono signals of SampleRate; chance comes only from the generator handed in,
// so that a sound is the same on each build.
#pragma once

#include <cstddef>
#include <random>
#include <vector>

constexpr int SampleRate = 45000;  // hertz; the game plays every file at this rate

using Signal = std::vector<double>;  // full scale is -1 to 1

std::size_t SampleCount(double seconds);

/// -1 to 1.
double Chance(std::mt19937& random);

Signal Noise(std::mt19937& random, double seconds);

/// A sine that slides from one pitch to another, fast at first.
Signal Tone(double seconds, double fromHz, double toHz);

/// Struck metal: inharmonic partials above `hz`, the higher ones dying first, all within about `decay`
/// seconds.
Signal Ring(std::mt19937& random, double seconds, double hz, double decay);

/// Sparse clicks, `perSecond` of them on average, of random height: gravel, cloth, splinters.
Signal Grains(std::mt19937& random, double seconds, double perSecond);

/// A throat: pulses that slide from one pitch to another through the formants of an open vowel, with breath.
Signal Throat(std::mt19937& random, double seconds, double fromHz, double toHz);

void LowPass(Signal& signal, double hz);
void HighPass(Signal& signal, double hz);
void BandPass(Signal& signal, double hz, double quality);

/// Rises in `attack` seconds and falls by a factor e every `decay` seconds.
void Envelope(Signal& signal, double attack, double decay);

/// Adds `layer` times `level`, beginning at `at` seconds; what reaches past the end is left out.
void Add(Signal& signal, const Signal& layer, double level, double at);

/// Presses loud parts together, as a microphone near a shot does.
void Saturate(Signal& signal, double drive);

/// The walls around: echoes that die within about `seconds`.
void AddRoom(Signal& signal, double level, double seconds);

/// Takes out what lies below hearing, fades both ends to silence and brings the peak to `peakDb` below full
/// scale.
void Finish(Signal& signal, double peakDb);
