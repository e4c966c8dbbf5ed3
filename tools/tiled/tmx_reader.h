// Reads a map that the map editor Tiled has saved: what the writer wrote, in whatever order Tiled puts it.
#pragma once

#include <string>

#include "tools/tiled/game_map.h"

/// With faults the map isn't fit for use. Refuses what Tiled could also write and nobody needs here: other
/// encodings than CSV, tilesets in files of their own, turned tiles, maps without bounds.
GameMap ReadTmx(const std::string& text, SourceFaults& faults);
