// Blades, tools, grenades and equipment for the inventory.
#pragma once

#include <vector>

#include "kit/relief.h"

namespace art {

// A thing with one look of its own, by its name.
struct SimpleThing {
    const char* name;
    bool wide;
    void (*draw)(Relief&);
    const char* routine;  // the name of `draw`
};

const std::vector<SimpleThing>& SimpleThings();

}  // namespace art
