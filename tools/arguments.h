// The words of a tool's command line.
#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tools/usage_error.h"

/// Both included.
struct SeedRange {
    std::uint32_t first;
    std::uint32_t last;
};

class Arguments {
  public:
    /// `words` are options with a value ("--seed 7"), flags ("--json") and `plainWords` others. Throws
    /// UsageError for anything else.
    Arguments(const std::vector<std::string>& words, std::initializer_list<std::string_view> options,
              std::initializer_list<std::string_view> flags, std::size_t plainWords = 0);

    bool Has(const std::string& name) const { return values.count(name) > 0; }

    // The value of an option, `otherwise` where it wasn't given. These throw UsageError for a value that is
    // none of what is asked for.
    std::string Text(const std::string& name, const std::string& otherwise) const;
    std::uint32_t Number(const std::string& name, std::uint32_t otherwise, std::uint32_t least = 0,
                         std::uint32_t most = std::numeric_limits<std::uint32_t>::max()) const;
    /// "A..B", upward.
    SeedRange Seeds(const std::string& name, SeedRange otherwise) const;
    /// A folder that holds dat/.
    std::filesystem::path DataFolder(const std::string& name, const std::filesystem::path& otherwise) const;

    const std::vector<std::string>& Plain() const { return plain; }

  private:
    std::map<std::string, std::string> values;
    std::vector<std::string> plain;
};
