// The main window as it would look in play, put together from the finished pictures. For looking only.
#pragma once

#include "kit/drawing.h"

namespace art {

QImage MockWindow(const Pictures& pictures);  // 799 by 636

}  // namespace art
