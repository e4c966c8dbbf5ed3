// Makes the lines of a recording anew from its events: for one that was written by hand as a bare list of
// them, and after rules or data were changed on purpose.
#pragma once

#include <string>
#include <vector>

#include "tools/lab/recording.h"

/// Plays the events without a window, with the data of the program's folder, and gives the lines that follow
/// the seed. Events and pumps are numbered anew: a window gets its events as soon as it is open, whatever
/// pump they name; another event whose pump doesn't come waits until the order is done.
std::vector<std::string> RemakeLines(const Recording& recording);
