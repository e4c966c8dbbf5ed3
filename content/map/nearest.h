// What somebody may have meant who mistyped a word.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// How many characters must be put in, taken out, exchanged or swapped with their neighbour to make one word
/// of the other.
std::size_t EditDistance(std::string_view one, std::string_view other);

/// The nearest of `words`, the first of several; empty when none is within a third of the word's length, and
/// 1 at least.
std::string Nearest(std::string_view word, const std::vector<std::string>& words);
