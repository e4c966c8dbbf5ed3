// How loud a sound is at each ear, as factors of its samples.
#pragma once

#include "platform/host.h"

struct SideGains {
    double left = 1;
    double right = 1;
};

/// By the volume and the pan that `sound` asks for.
SideGains GainsOf(const SoundRequest& sound);

/// What all sounds are multiplied by at a loudness in hundredths, as the settings have it.
constexpr double LoudnessGain(int hundredths) {
    return hundredths / 100.0;
}
