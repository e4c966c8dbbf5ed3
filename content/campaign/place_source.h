// Places with things, the vehicle store and the piles on a map, as their sources tell them.
#pragma once

#include <string>
#include <vector>

#include "state/state.h"

struct ThingPlace {
    int x = 0, y = 0;
    std::vector<InvItem> items;  // at most CellItemSlots
};

/// The one block "store". Throws SourceError, as does ReadGround.
ThingPlace ReadStore(const std::vector<std::string>& lines);

/// Blocks "place X Y", each on a cell of its own.
std::vector<ThingPlace> ReadGround(const std::vector<std::string>& lines);
