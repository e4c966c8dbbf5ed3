// The program's options.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace art {

// Does what the arguments say; `handFolder` is where hand files lie. Exit code 0, 1 for what a maker has to
// put right, 2 for a call that isn't understood.
int Run(const std::vector<std::string>& arguments, const std::string& handFolder, std::ostream& out,
        std::ostream& errors);

}  // namespace art
