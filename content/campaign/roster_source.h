// The squad as its source tells it, soldier by soldier.
#pragma once

#include <vector>

#include "blocks.h"
#include "state/state.h"

/// Throws SourceError: for a key that is unknown, comes twice or is missing, a value out of its range, a
/// thing in a slot that doesn't take it.
std::vector<Unit> ReadRoster(const std::vector<std::string>& lines);
