#include "kit/contact_sheets.h"

#include <algorithm>

#include "kit/canvas.h"
#include "kit/glyphs.h"
#include "kit/palette.h"

namespace art {
namespace {

constexpr int Gap = 6;
constexpr int LabelHeight = 12;
constexpr int TitleHeight = 20;

// Repeats the ground under a picture, so that see-through pictures stand on grass.
QImage OnGround(const QImage& picture, const QImage& ground) {
    QImage result = Sheet(picture.width(), picture.height(), Colour(Ink::Slate).rgb());
    if (!ground.isNull()) {
        for (int y = 0; y < picture.height(); y += ground.height()) {
            for (int x = 0; x < picture.width(); x += ground.width())
                Place(result, x, y, ground);
        }
    }
    Place(result, 0, 0, picture);
    return result;
}

}  // namespace

QImage ContactSheet(const std::string& title, const std::vector<QImage>& pictures, int across, int times,
                    const QImage& ground) {
    int widest = 1;
    int highest = 1;
    for (const QImage& picture : pictures) {
        widest = std::max(widest, picture.width() * times);
        highest = std::max(highest, picture.height() * times);
    }
    const int count = static_cast<int>(pictures.size());
    const int rows = (count + across - 1) / across;
    QImage sheet = Sheet(Gap + across * (widest + Gap), TitleHeight + rows * (highest + LabelHeight + Gap),
                         Colour(Ink::Iron).rgb());
    Print(sheet, Gap, Gap, title, Colour(Ink::Gold).rgb());
    for (int i = 0; i < count; ++i) {
        const int x = Gap + i % across * (widest + Gap);
        const int y = TitleHeight + i / across * (highest + LabelHeight + Gap);
        Print(sheet, x, y, std::to_string(i), Colour(Ink::Snow).rgb());
        Place(sheet, x, y + LabelHeight - 4,
              Enlarged(OnGround(pictures[static_cast<std::size_t>(i)], ground), times));
    }
    return sheet;
}

}  // namespace art
