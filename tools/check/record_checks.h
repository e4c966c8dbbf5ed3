// Checks the binary files: roster, vehicle store, things on a map. Where a field stands comes from the tables
// that the game reads by.
#pragma once

#include <filesystem>

#include "tile_grid.h"
#include "tools/check/findings.h"

/// "dat/save.dat". Soldiers' faces and flags are looked for in the folder `gameFolder`.
void CheckRosterFile(const std::filesystem::path& file, const std::filesystem::path& gameFolder,
                     Findings& findings);

/// "dat/apc.dat".
void CheckStoreFile(const std::filesystem::path& file, Findings& findings);

/// "map/<name>g.map". Nobody reaches what lies where nobody can stand; without a grid anything goes.
void CheckGroundFile(const std::filesystem::path& file, const TileGrid* grid, Findings& findings);
