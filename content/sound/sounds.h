// A sound as a list of layers, and how it is rendered. The tables of all sounds are in guns.cpp,
// effects.cpp, ground.cpp and cues.cpp.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "signal.h"

enum class Source { Noise, Tone, Ring, Grains, Throat };

/// One layer: a source, filtered and shaped. Times in seconds, pitches in hertz.
struct Layer {
    Source source;
    double at;  // where it begins
    double level;
    double attack;
    double decay;   // falls by a factor e in this time
    double lowHz;   // nothing below; 0 for no limit
    double highHz;  // nothing above; 0 for no limit
    double from;    // pitch of tones and rings; grains a second
    double to;      // pitch at the end of a tone
};

struct Sound {
    std::string name;  // under the sound folder, without extension
    double seconds;
    double drive;        // how hard the layers are pressed together; 0 not at all
    double room;         // level of the walls' echoes
    double roomSeconds;  // how long they last
    double peakDb;       // decibels under full scale
    std::vector<Layer> layers;
};

/// Of the chance that a sound draws from.
std::uint32_t SeedOf(const std::string& name);

/// The sound's samples. Its chance is its own, seeded by its name.
Signal Render(const Sound& sound);

/// Every shot named in the weapons file, and the launches of second barrels.
std::vector<Sound> GunSounds();

/// Blows, tools, explosions, wounds, the click of a button.
std::vector<Sound> EffectSounds();

/// Steps by ground, and where a bullet ends, by material.
std::vector<Sound> GroundSounds();

/// What says to the player that something has come about.
std::vector<Sound> CueSounds();
