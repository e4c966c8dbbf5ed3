// Countries' flags for soldiers' files and weapons' makers.
#pragma once

#include "kit/drawing.h"

namespace art {

// Every country that a soldier or a maker can come from, by two capitals, and "void" for no country; 18
// by 12.
Drawings FlagDrawings();

// The flag that the panel shows before any weapon was looked up: the squad's own.
QImage OwnFlag();

}  // namespace art
