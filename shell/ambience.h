// The valley as it sounds when nothing happens: a few loops, each as loud as the part of the field in view
// has of what it belongs to. A front end plays them, fading slowly from one level to the next, each at the
// right ear half its length later, so that it surrounds.
#pragma once

#include <array>
#include <cstddef>

constexpr std::size_t AmbienceLoopCount = 5;

/// By loop, 0 to 1.
using AmbienceLevels = std::array<double, AmbienceLoopCount>;

/// In which a level moves from silence to 1, at one pace.
constexpr double AmbienceFadeSeconds = 4;

/// The loop's file.
const char* AmbienceFile(std::size_t loop);

/// With that pixel of the field in the left top corner of the view.
AmbienceLevels AmbienceAt(int left, int top);

class Ambience {
  public:
    /// What is to be heard now; silence while no field is shown.
    const AmbienceLevels& Levels();

  private:
    AmbienceLevels levels = {};
    int left = -1;  // of the view that they are for
    int top = -1;
};
