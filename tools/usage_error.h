// What every tool says to a command line that it can't follow.
#pragma once

#include <stdexcept>

/// The text says why.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};
