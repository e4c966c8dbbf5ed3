#include "shell/sound_gains.h"

#include <algorithm>
#include <cmath>

namespace {

double FromHundredthsOfDecibel(int level) {
    return std::pow(10.0, level / 2000.0);
}

}  // namespace

SideGains GainsOf(const SoundRequest& sound) {
    const double common = FromHundredthsOfDecibel(sound.volume);
    return {common * FromHundredthsOfDecibel(-std::max(sound.pan, 0)),
            common * FromHundredthsOfDecibel(std::min(sound.pan, 0))};
}
