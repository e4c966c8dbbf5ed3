// The words after a command of sarnoth-lab.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lab {

class Arguments {
  public:
    /// `words` are options with a value ("--seed 7"), flags ("--json") and at most `plainWords` others.
    /// Throws UsageError for anything else.
    Arguments(const std::vector<std::string>& words, std::initializer_list<std::string_view> options,
              std::initializer_list<std::string_view> flags, std::size_t plainWords);

    bool Has(const std::string& name) const { return values.count(name) > 0; }

    /// The value of an option, `otherwise` where it wasn't given.
    std::string Text(const std::string& name, const std::string& otherwise) const;

    /// Throws UsageError for what is no whole number from 0 to 4294967295.
    std::uint32_t Number(const std::string& name, std::uint32_t otherwise) const;

    const std::vector<std::string>& Plain() const { return plain; }

  private:
    std::map<std::string, std::string> values;
    std::vector<std::string> plain;
};

/// Throws UsageError for what is no whole number from 0 to 4294967295.
std::uint32_t ReadNumber(const std::string& text);

}  // namespace lab
