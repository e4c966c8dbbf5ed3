// Fixed arrays with a declared lower and upper bound, as the game's tables have them. An index outside throws
// "Subscript out of range".
#pragma once

#include <array>
#include <string>

#include "platform/run_time_error.h"

[[noreturn]] inline void ThrowSubscript(int index, int lower, int upper) {
    throw RunTimeError(Fault::Subscript, "index " + std::to_string(index) + " is not within " +
                                             std::to_string(lower) + " to " + std::to_string(upper));
}

template <typename T, int LowerBound, int UpperBound>
class Array {
    static_assert(LowerBound <= UpperBound);

  public:
    static constexpr int Lower = LowerBound;
    static constexpr int Upper = UpperBound;

    // Not constexpr on purpose: the large tables are then made at start-up and take no room in the program's
    // file.
    Array() {}  // NOLINT(modernize-use-equals-default)

    T& operator[](int index) { return places[Place(index)]; }
    const T& operator[](int index) const { return places[Place(index)]; }

    bool operator==(const Array&) const = default;

    auto begin() { return places.begin(); }
    auto end() { return places.end(); }
    auto begin() const { return places.begin(); }
    auto end() const { return places.end(); }

  private:
    static std::size_t Place(int index) {
        if (index < LowerBound || index > UpperBound) ThrowSubscript(index, LowerBound, UpperBound);
        return static_cast<std::size_t>(index - LowerBound);
    }

    std::array<T, static_cast<std::size_t>(UpperBound - LowerBound) + 1> places{};
};
