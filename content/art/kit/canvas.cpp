#include "kit/canvas.h"

#include <array>

#include <QPainter>

namespace art {
namespace {

constexpr std::array<std::array<int, 4>, 4> Pattern{
    {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}}};
constexpr int AlphaHalf = 128;

double Threshold(int x, int y) {
    return (Pattern[static_cast<std::size_t>(y % 4)][static_cast<std::size_t>(x % 4)] - 7.5) / 16;
}

}  // namespace

QImage Settle(const QImage& picture, double dither, Palette palette) {
    QImage settled(picture.size(), QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb colour = picture.pixel(x, y);
            const bool shown = qAlpha(colour) >= AlphaHalf;
            const Ink ink = NearestInk(colour, dither * Threshold(x, y), palette);
            settled.setPixel(x, y, shown ? Inks[static_cast<std::size_t>(ink)].colour : 0u);
        }
    }
    return settled;
}

QImage Indexed(const QImage& settled) {
    QList<QRgb> table;
    for (const InkRow& ink : Inks)
        table.push_back(ink.colour);
    QImage indexed(settled.size(), QImage::Format_Indexed8);
    indexed.setColorTable(table);
    for (int y = 0; y < settled.height(); ++y) {
        for (int x = 0; x < settled.width(); ++x)
            indexed.setPixel(x, y, static_cast<uint>(NearestInk(settled.pixel(x, y), 0, Palette::Whole)));
    }
    return indexed;
}

void Place(QImage& target, int x, int y, const QImage& picture) {
    QPainter painter(&target);
    painter.drawImage(x, y, picture);
}

Masked MaskOut(const QImage& settled) {
    Masked result{Sheet(settled.width(), settled.height()), Sheet(settled.width(), settled.height())};
    for (int y = 0; y < settled.height(); ++y) {
        for (int x = 0; x < settled.width(); ++x) {
            const QRgb colour = settled.pixel(x, y);
            if (qAlpha(colour) == 0) {
                result.mask.setPixel(x, y, 0xffffffff);
            } else {
                result.picture.setPixel(x, y, colour);
            }
        }
    }
    return result;
}

QImage Sheet(int width, int height, QRgb colour) {
    QImage sheet(width, height, QImage::Format_ARGB32);
    sheet.fill(colour);
    return sheet;
}

QImage CellOf(const QImage& sheet, int column, int row) {
    return sheet.copy(column * CellSize, row * CellSize, CellSize, CellSize);
}

QImage Enlarged(const QImage& picture, int times) {
    return picture.scaled(picture.size() * times, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

}  // namespace art
