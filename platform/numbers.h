// Checked integers of fixed width for the records: what doesn't fit throws "Overflow" where it is stored.
// Reading one gives a plain int, so that arithmetic runs wide and only the result is checked.
#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include "platform/rounding.h"
#include "platform/run_time_error.h"

template <typename T>
concept PlainNumber = (std::integral<T> && !std::same_as<T, bool>) || std::floating_point<T>;

template <std::integral Stored>
class Checked {
  public:
    constexpr Checked() = default;

    /// A float is rounded half to even before it is stored. Throws RunTimeError (Overflow).
    template <PlainNumber From>
    constexpr Checked(From from) : value(Fit(from)) {}

    template <typename Enum>
    requires std::is_enum_v<Enum>
    constexpr Checked(Enum from) : Checked(static_cast<int>(from)) {}

    template <std::integral Other>
    constexpr Checked(Checked<Other> from) : Checked(static_cast<int>(from)) {}

    constexpr operator int() const { return value; }

    template <PlainNumber By>
    constexpr Checked& operator+=(By by) {
        return *this = Checked(Wide<By>(value) + by);
    }
    template <PlainNumber By>
    constexpr Checked& operator-=(By by) {
        return *this = Checked(Wide<By>(value) - by);
    }
    constexpr Checked& operator+=(Checked by) { return *this += static_cast<int>(by); }
    constexpr Checked& operator-=(Checked by) { return *this -= static_cast<int>(by); }
    constexpr Checked& operator++() { return *this += 1; }
    constexpr Checked& operator--() { return *this -= 1; }

  private:
    // Sums of a stored value and a float are doubles, all others 64 bits wide.
    template <typename By>
    using Wide = std::conditional_t<std::floating_point<By>, double, std::int64_t>;

    template <typename From>
    static constexpr Stored Fit(From from) {
        if constexpr (std::floating_point<From>) {
            const double rounded = RoundHalfEven(static_cast<double>(from));
            if (rounded >= Lowest && rounded <= Highest) return static_cast<Stored>(rounded);
        } else {
            if (std::in_range<Stored>(from)) return static_cast<Stored>(from);
        }
        Refuse(from);
    }

    // Stands alone so that Fit is short enough to be inlined: millions of numbers fit, and next to none
    // doesn't.
    template <typename From>
    [[noreturn, gnu::noinline]] static void Refuse(From from) {
        throw RunTimeError(Fault::Overflow, std::to_string(from) + " is not within " +
                                                std::to_string(Lowest) + " to " + std::to_string(Highest));
    }

    static constexpr Stored Lowest = std::numeric_limits<Stored>::min();
    static constexpr Stored Highest = std::numeric_limits<Stored>::max();

    Stored value = 0;
};

using i16 = Checked<std::int16_t>;
using u8 = Checked<std::uint8_t>;
using i32 = Checked<std::int32_t>;

/// Truth values as the records store them.
constexpr int True = -1;
constexpr int False = 0;
