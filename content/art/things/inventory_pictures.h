// All pictures of things in the inventory, under the names by which the game asks for them.
//
// A weapon that takes magazines has a picture for each size of its feed and one, with 0, without. Ammunition
// has two names for each size: as it lies in a slot and as the pointer carries it out of a weapon. A weapon
// that is added to the catalogue needs a row in one of the tables from which this is made.
#pragma once

#include "kit/drawing.h"

namespace art {

Drawings LongThings();   // 117 by 42
Drawings SmallThings();  // 42 by 42

// The open packs of 3, 6, 9 and 12 pockets, 142 by 192.
Drawings PackBoards();

}  // namespace art
