// Places with things, the vehicle store and the piles on a map, as their sources tell them.
#pragma once

#include <string>
#include <vector>

#include "source_text.h"
#include "state/state.h"

constexpr int Nowhere = -1;

struct ThingPlace {
    int x = 0, y = 0;            // Nowhere when their line has a fault
    std::vector<InvItem> items;  // at most CellItemSlots
    SourcePlace place;           // of its head line
};

/// The one block "store".
ThingPlace ReadStore(const std::vector<std::string>& lines, SourceFaults& faults);

/// Blocks "place X Y", each on a cell of its own.
std::vector<ThingPlace> ReadGround(const std::vector<std::string>& lines, SourceFaults& faults);
