// One thing as campaign sources write it, "ak count 1 durab 270 main 7ak 31/29 second - 0/0", checked against
// the weapons file by the rules for things.
#pragma once

#include "blocks.h"
#include "state/state.h"

/// The thing that the rest of the line tells. What it leaves out is taken from the row: a new thing without
/// rounds.
InvItem ReadItem(LineWords& line, SourceFaults& faults);
