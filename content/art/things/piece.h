// What small things are made of: lifted a little towards chalk, so that they stand out from dark boards.
#pragma once

#include "kit/palette.h"
#include "kit/relief.h"

namespace art {

inline Solid Piece(Ink ink, float height = 1.6f, float base = 0, float round = 1.6f) {
    return {.colour = Between(ink, Ink::Chalk, 0.1),
            .height = height,
            .base = base,
            .round = round,
            .grain = 0.06f,
            .grainSize = 1.4f};
}

}  // namespace art
