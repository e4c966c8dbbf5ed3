// The squad's vehicle, one drawing over four by two cells.
#pragma once

#include <array>
#include <cstddef>

#include <QImage>

namespace art {

constexpr int VehicleColumns = 4;
constexpr int VehicleRows = 2;
constexpr std::size_t VehicleCellCount = 8;

// Its cells: the upper row west to east, then the lower one.
std::array<QImage, VehicleCellCount> VehicleCells();

}  // namespace art
