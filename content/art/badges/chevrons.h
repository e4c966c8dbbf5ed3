// Badges of rank for the file window. The window types the rank's three letters behind the badge, so its
// middle is see-through.
#pragma once

#include "kit/drawing.h"

namespace art {

// The ranks by their three letters; 32 by 32.
Drawings ChevronDrawings();

}  // namespace art
