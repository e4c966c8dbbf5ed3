// Mixes endless loops, each at a level that moves slowly to the one wished for. What is asked of it may come
// from another thread than the one that fetches the samples.
#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <span>
#include <vector>

#include "desktop/sound_file.h"

class LoopMixer {
  public:
    explicit LoopMixer(std::size_t loopCount) : loops(loopCount) {}

    /// One channel of samples at the device's frequency. The right ear hears the loop half its length later,
    /// so that it surrounds.
    void SetSamples(std::size_t loop, Samples samples);

    /// 0 to 1. From silence to 1 a level takes some seconds.
    void SetLevel(std::size_t loop, double level);

    /// What all are multiplied by, 0 to 1; it is followed at once.
    void SetMaster(double level);

    /// Whether nothing is heard, now and until a level is asked for.
    bool Silent() const;

    /// Adds what is heard next to samples for left and right in turn.
    void Mix(std::span<std::int16_t> heard);

  private:
    struct Loop {
        Samples samples;
        std::size_t at = 0;
        double level = 0;
        double wanted = 0;
    };

    void MixLoop(Loop& loop, double masterNow, std::span<std::int16_t> heard);

    mutable std::mutex access;
    std::vector<Loop> loops;
    double master = 0;
    double wantedMaster = 0;
};
