// Writes a map for the map editor Tiled.
#pragma once

#include <string>

#include "tools/tiled/game_map.h"

/// The text of the .tmx. Its tile sheet is the file SheetFile beside it.
std::string TmxText(const GameMap& map);
