// How strong, quick and lasting the things of a group are: figures outside are more likely a slip than a
// thing. docs/arsenal.md explains the scale.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

struct FigureRange {
    int low, high;
};

constexpr std::size_t FigureCount = 5;
constexpr std::array<const char*, FigureCount> FigureNames = {"power", "accur", "time", "range", "durab"};

struct GroupScale {
    const char* group;  // column 0 of weapons.dat
    const char* kinds;  // the letters of column 1 that it may have
    std::array<FigureRange, FigureCount> figures;
};

/// All groups, in the order of the file.
std::span<const GroupScale> GroupScales();

/// nullptr for an unknown group.
const GroupScale* ScaleOf(std::string_view group);
