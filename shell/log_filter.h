// Which of the chronicle's entries a player wants to read.
#pragma once

#include <cstddef>
#include <vector>

#include "shell/chronicle.h"

struct LogFilter {
    bool hits = true;  // and deaths
    bool sightings = true;
    bool refusals = true;

    bool operator==(const LogFilter&) const = default;
};

/// The places of those that are shown, in their order. The turns' own entries always are, but for one of the
/// enemy's in which nothing is.
std::vector<std::size_t> Filtered(const std::vector<ChronicleEntry>& entries, const LogFilter& filter);
