// FNV-1a of 64 bits: simple, and the same on every machine.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

class Fnv {
  public:
    void Add(std::string_view text) {
        for (const char character : text)
            Add(static_cast<unsigned char>(character));
    }
    /// A number counts as one step.
    void Add(std::uint32_t number) { sum = (sum ^ number) * 1099511628211U; }

    std::uint64_t Sum() const { return sum; }

    /// Sixteen hexadecimal digits.
    static std::string Text(std::uint64_t number) {
        char text[17];
        std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(number));
        return text;
    }

  private:
    std::uint64_t sum = 14695981039346656037U;
};
