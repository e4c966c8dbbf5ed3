// The table of the game's pictures. --list, --only, hand files and the full run all go by it.
#pragma once

#include <vector>

#include "catalogue/entry.h"

namespace art {

std::vector<Entry> GamePictures();

}  // namespace art
