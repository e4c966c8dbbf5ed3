// Where a cell meets another ground: the kind of edge by the sides on which the other ground lies.
#pragma once

#include <functional>

/// The kinds in the order in which the legend lists their columns: other ground to the north, south, west,
/// east; north and west, north and east, south and west, south and east; only at the north-west corner,
/// north-east, south-west, south-east; and on opposite sides or more than two.
enum class EdgeKind { North, SouthEast = 7, CornerNorthWest, HemmedIn = 12, None };

constexpr int BankKinds = 12;  // water can't be hemmed in
constexpr int EdgeKinds = 13;

/// `foreign` says whether other ground lies so many cells to the east and south.
EdgeKind EdgeKindOf(const std::function<bool(int dx, int dy)>& foreign);
