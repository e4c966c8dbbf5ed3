// The green steel around the field: frames, marks, stripes, and the pieces from which the panel is built.
#pragma once

#include <QImage>

#include "kit/palette.h"
#include "kit/relief.h"

namespace art {

// Brushed steel over the whole relief.
void SteelGround(Relief& relief, Ink dark, Ink light);

// A raised plate and a sunk well with the measures of what lies in it.
void LayPlate(Relief& relief, double x, double y, double width, double height);
void LayWell(Relief& relief, double x, double y, double width, double height, Ink floor = Ink::Engraving);

QImage UpperFrame();  // 801 by 10, grooves every cell from 20 on
QImage RightFrame();  // 20 by 470, grooves every cell from 10 on
QImage LeftFrame();   // 20 by 470, grooves every cell from 0 on
QImage Stripes();     // 801 by 12
QImage ColumnMark();  // 20 by 10, points down
QImage RowMark();     // 10 by 20, points left

}  // namespace art
