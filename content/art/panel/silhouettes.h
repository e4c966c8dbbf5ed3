// Soldiers seen from the side, as black figures for buttons and plates. They look to the right.
#pragma once

#include <QPainterPath>

namespace art {

constexpr int SilhouetteStances = 4;

// A figure by stance (0 prone, 1 crouch, 2 stand, 3 run) within 26 by 20 units; a scale of 1 makes a unit a
// pixel.
QPainterPath Silhouette(int stance, double x, double y, double scale);

// The spikes of a muzzle flash that leaves a barrel's end to the right.
QPainterPath MuzzleFlash(double x, double y, double size);

}  // namespace art
