// The game's own badge: a pointed shield with three bars under a star.
#pragma once

#include <QImage>

#include "kit/relief.h"

namespace art {

QPainterPath Shield(double x, double y, double size);

// The badge around a middle, about `size` pixels high, raised from the surface at `base`.
void LayBadge(Relief& relief, double x, double y, double size, float base);

// A screw head with its slot.
void LayRivet(Relief& relief, double x, double y, double radius, float base);

// The program's icon, see-through around the badge.
QImage Icon(int size);

}  // namespace art
