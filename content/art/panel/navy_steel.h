// The navy steel of the file window: ground, plates, wells and rivets, the sister of the field panel's green.
#pragma once

#include <QImage>

#include "kit/palette.h"
#include "kit/relief.h"

namespace art {

constexpr double NavyDither = 0.02;

void NavyGround(Relief& relief);

// A raised plate with an engraved rim.
void LayNavyPlate(Relief& relief, double x, double y, double width, double height);

// A sunk place with the measures of what lies in it.
void LayNavyWell(Relief& relief, double x, double y, double width, double height, Ink floor = Ink::Harbour);

void LayNavyRivet(Relief& relief, double x, double y, double radius);

// An engraved line.
void LayNavyGroove(Relief& relief, double x, double y, double toX, double toY);

// Small engraved capitals with their lit lower edge.
void EngraveText(QImage& picture, int x, int y, const char* text);

}  // namespace art
