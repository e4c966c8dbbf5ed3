// The campaign's binary files as bytes: a header record and what follows it.
#pragma once

#include <string>
#include <vector>

#include "place_source.h"

/// All RosterSize soldiers' records, those past the squad empty.
std::string RosterBytes(const std::vector<Unit>& soldiers);

std::string StoreBytes(const ThingPlace& store);

std::string GroundBytes(const std::vector<ThingPlace>& places);
