// A key that goes down or up on a window, as a front end gets it.
#pragma once

#include <cstdint>

struct KeyInput {
    int code = 0;      // as platform/keys has it; 0 for a key that has none
    char sign = '\0';  // what stands on it where the keyboard is: a capital, a digit, '+'; '\0': nothing
    int shift = 0;     // modifiers held, as platform/keys has them
    bool isMetaHeld = false;  // of which the game knows nothing
    bool isRepeat = false;    // of a key that is held
    std::uint64_t time = 0;   // milliseconds from some beginning
};
