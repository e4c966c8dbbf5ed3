// Magazines, belts and boxes for the inventory.
#pragma once

#include <array>
#include <vector>

#include "kit/palette.h"
#include "kit/relief.h"

namespace art {

enum class Holder { Straight, Curved, Belt, Box, Clip, Shells, Round, Arrows, Darts, Long };

struct AmmoKind {
    const char* name;
    std::array<int, 4> sizes;  // rounds in one, 0 after the last
    Holder holder;
    Ink body, tip;
};

const std::vector<AmmoKind>& AmmoKinds();

// The sizes in which a kind comes; empty for a kind that nothing holds.
std::vector<int> SizesOf(const char* kind);

// One of that many rounds, 42 by 42.
void LayAmmo(Relief& relief, const AmmoKind& kind, int size);

}  // namespace art
