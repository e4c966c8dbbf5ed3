// The campaign's files: the roster (read only), the vehicle store (read, and rewritten at the mission's end),
// the things lying on a map (read only) and the dossier's small table of facings.
#pragma once

#include <string>
#include <vector>

#include "state/state.h"

/// Reads "\dat\save.dat" into the units 60 to 79 and teamLast[3]. Throws RunTimeError with file and record.
void LoadRoster();

/// Sees to it, before a game begins, that "\dat\apc.dat" is there and can be rewritten at the mission's end,
/// so that a player learns of trouble before he has played. See KeepForPlayer.
void KeepStore();

/// Reads "\dat\apc.dat" into storeItems. Throws RunTimeError with file and record.
void LoadStore();

/// Rewrites "\dat\apc.dat" from storeItems. At any moment the file is the old or the new one, whole. Throws
/// RunTimeError (FileWrite) and leaves the old one.
void SaveStore();

/// Reads "\map\<name>g.map" into groundItems, and returns the cells that it names, in the file's order.
/// Throws RunTimeError with file and record.
std::vector<Spot> LoadGroundItems(const std::string& name);

/// What the dossier shows for a facing, 0 to 7: the fourth value of its row in "\dat\ori.dat". Throws
/// RunTimeError.
std::string FacingText(int facing);
