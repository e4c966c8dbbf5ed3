// The faces of the twelve soldiers of the roster, in its order.
#pragma once

#include <string>
#include <vector>

#include <QImage>

namespace art {

// 140 by 140 each.
std::vector<QImage> Portraits();

}  // namespace art
