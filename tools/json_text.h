// JSON as the tools print it.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

/// A line for each value, keys in their order. Bytes that are no UTF-8, as names of files may have, are
/// replaced.
std::string JsonText(const nlohmann::ordered_json& json);
