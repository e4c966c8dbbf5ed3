// How many of each thing lie in the squad's vehicle.
#pragma once

#include <map>
#include <string>

/// By the things' keys.
using StoreCount = std::map<std::string, int>;

/// Of the store as it is now.
StoreCount CountStore();
