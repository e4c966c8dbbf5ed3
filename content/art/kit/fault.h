// What a maker has to put right: the message goes to standard error, the program ends with exit code 1.
#pragma once

#include <stdexcept>

namespace art {

class Fault : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace art
