// Pistols, blades, tools and grenades for the inventory.
#pragma once

#include <string>
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

// A thing with one look of its own, by its name.
struct SimpleThing {
    const char* name;
    bool wide;
    void (*draw)(Relief&);
};

const std::vector<SimpleThing>& SimpleThings();

}  // namespace art
