// How each award looks. A ribbon is told by its stripes from the left edge to the middle and mirrored.
#pragma once

#include <cstdint>
#include <vector>

#include "kit/palette.h"

namespace art {

enum class AwardForm : std::uint8_t { Medal, Ribbon, Bar, Counter };
enum class Pendant : std::uint8_t { None, Star, Cross, Disc, Heart, Octagon, Hexagon, Shield, Buoy };
enum class Relic : std::uint8_t { None, Star, Disc, Eagle, Sword, Rays, Wire, Torch, Wreath };

struct Stripe {
    Ink ink;
    double width;  // share of a half ribbon, in any unit
};

struct AwardLook {
    const char* key;
    AwardForm form;
    Pendant pendant;
    Ink metal, field;  // of the pendant or bar, and of its middle
    Relic relic;
    Ink relicInk;
    std::vector<Stripe> stripes;
    int stars = 0;  // woven into the ribbon
};

// In the order of the game's table of awards.
const std::vector<AwardLook>& AwardLooks();

}  // namespace art
