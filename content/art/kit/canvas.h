// Finished pictures: settling on the palette, and putting small pictures together into sheets.
#pragma once

#include <QImage>

#include "kit/palette.h"

namespace art {

constexpr int CellSize = 20;

// The dither of grain: enough to break up bands, too little to show as a pattern.
constexpr double GroundDither = 0.035;

// Every pixel on its nearest ink. Alpha is decided at one half: a pixel is there or it isn't. `dither` is the
// lightness over which neighbouring inks are mixed by a fixed 4 by 4 pattern, 0 for none.
QImage Settle(const QImage& picture, double dither = GroundDither, Palette palette = Palette::Field);

// A settled, opaque picture in one byte a pixel, its colour table the inks.
QImage Indexed(const QImage& settled);

// Copies a picture onto another, see-through pixels leave what is there.
void Place(QImage& target, int x, int y, const QImage& picture);

// A picture and its mask for the pair of raster operations: black where it is see-through, the mask white
// there.
struct Masked {
    QImage picture;
    QImage mask;
};
Masked MaskOut(const QImage& settled);

// An opaque sheet of one colour.
QImage Sheet(int width, int height, QRgb colour = 0xff000000);

// One cell of a sheet of cells.
QImage CellOf(const QImage& sheet, int column, int row);

// Every pixel as a square of that many.
QImage Enlarged(const QImage& picture, int times);

}  // namespace art
