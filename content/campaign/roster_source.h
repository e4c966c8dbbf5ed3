// The squad as its source tells it, soldier by soldier.
#pragma once

#include <vector>

#include "blocks.h"
#include "state/state.h"

/// A soldier and where the source tells what only the game's pictures can prove.
struct RosterEntry {
    Unit soldier;
    SourcePlace country;
    SourcePlace face;
};

/// A fault for each key that is unknown, comes twice or is missing, each value out of its range, each thing
/// in a slot that doesn't take it.
std::vector<RosterEntry> ReadRoster(const std::vector<std::string>& lines, SourceFaults& faults);

std::vector<Unit> Soldiers(const std::vector<RosterEntry>& roster);
