// The takes of a sound: files beside it, "step1-2.wav" to "step1-9.wav" of "step1.wav". The rules ask for a
// sound by its one name and know of no takes; here it is decided which of them is heard. The choice draws
// from a generator of its own.
#pragma once

#include <cstddef>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "platform/host.h"

class Takes {
  public:
    /// The same request for one of the sound's takes, never the one that was heard last. A step sounds by
    /// the ground under the current unit, "step1-gravel.wav", where there is such a file.
    SoundRequest Of(const SoundRequest& sound);

  private:
    struct Choice {
        std::vector<std::string> files;  // those that are there; empty for none
        std::size_t last = 0;
    };

    Choice& ChoiceOf(const std::string& stem);

    std::map<std::string, Choice> choices;  // by the file's name without its extension
    std::minstd_rand chance;
};
