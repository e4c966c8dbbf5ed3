// Pistols from the side, muzzle to the right.
#pragma once

#include <vector>

#include "kit/palette.h"
#include "kit/relief.h"

namespace art {

struct Pistol {
    const char* name;
    const char* feedKind;              // key of its magazines, empty for a pistol that is loaded by hand
    double slide, barrel, grip, rake;  // lengths in pixels; rake is how far the grip leans back
    bool slim;                         // a bare barrel in front of the frame
    Ink metal, plates;
};

const std::vector<Pistol>& Pistols();

void LayPistol(Relief& relief, const Pistol& pistol, int capacity);

}  // namespace art
