// A filled soldier's file, put together as the game does it, for looking at the pictures in their places.
#pragma once

#include "kit/drawing.h"

namespace art {

QImage MockFile(const Pictures& pictures);  // 760 by 640

}  // namespace art
