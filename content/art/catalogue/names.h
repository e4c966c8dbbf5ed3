// How pictures are called on the command line: by path, by path without its ending, or by a pattern of both.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/entry.h"

namespace art {

// "*" stands for anything, "?" for one character.
bool Matches(const std::string& path, const std::string& name);

// Those that a name matches; when there are none, a UsageFault that names the nearest.
std::vector<const Entry*> Named(const std::vector<Entry>& entries, const std::string& name);

// The program was called in a way that it doesn't understand: exit code 2.
class UsageFault : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// ", did you mean --only?" or nothing.
std::string Meant(std::string_view word, const std::vector<std::string>& words);

}  // namespace art
