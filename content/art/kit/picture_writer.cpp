#include "kit/picture_writer.h"

#include <fcntl.h>

#include <filesystem>
#include <memory>
#include <unordered_map>
#include <vector>

#include <gif_lib.h>

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtEndian>

#include "kit/fault.h"
#include "kit/palette.h"

namespace art {
namespace {

constexpr int GifColours = 128;  // the power of two that holds all inks and the see-through one
constexpr int SeeThrough = GifColours - 1;
static_assert(InkCount < GifColours);

[[noreturn]] void Fail(const std::string& path) {
    throw Fault("can't write " + path);
}

ColorMapObject* InkMap() {
    ColorMapObject* map = GifMakeMapObject(GifColours, nullptr);
    for (std::size_t i = 0; i < InkCount; ++i) {
        const QRgb colour = Inks[i].colour;
        map->Colors[i] = {static_cast<GifByteType>(qRed(colour)), static_cast<GifByteType>(qGreen(colour)),
                          static_cast<GifByteType>(qBlue(colour))};
    }
    return map;
}

// The colour's place in the table; settled pictures have no others.
int InkIndex(QRgb colour) {
    static const std::unordered_map<QRgb, int> places = [] {
        std::unordered_map<QRgb, int> table;
        for (std::size_t i = 0; i < InkCount; ++i)
            table.emplace(Inks[i].colour, static_cast<int>(i));
        return table;
    }();
    return qAlpha(colour) == 0 ? SeeThrough : places.at(colour);
}

std::vector<GifPixelType> InkRow(const QImage& picture, int y) {
    std::vector<GifPixelType> row;
    row.reserve(static_cast<std::size_t>(picture.width()));
    for (int x = 0; x < picture.width(); ++x)
        row.push_back(static_cast<GifPixelType>(InkIndex(picture.pixel(x, y))));
    return row;
}

bool PutGif(GifFileType* gif, const QImage& picture) {
    const std::unique_ptr<ColorMapObject, void (*)(ColorMapObject*)> map(InkMap(), GifFreeMapObject);
    EGifSetGifVersion(gif, true);
    const int w = picture.width();
    const int h = picture.height();
    GraphicsControlBlock control{DISPOSAL_UNSPECIFIED, false, 0, SeeThrough};
    GifByteType extension[4];
    EGifGCBToExtension(&control, extension);
    bool ok = EGifPutScreenDesc(gif, w, h, 8, 0, map.get()) == GIF_OK &&
              EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, sizeof extension, extension) == GIF_OK &&
              EGifPutImageDesc(gif, 0, 0, w, h, false, nullptr) == GIF_OK;
    for (int y = 0; ok && y < h; ++y) {
        std::vector<GifPixelType> row = InkRow(picture, y);
        ok = EGifPutLine(gif, row.data(), w) == GIF_OK;
    }
    return ok;
}

void WriteGif(const std::string& path, const QImage& picture) {
    int error = 0;
    // Given its name the library would make it for its owner's eyes alone, and an old file keeps its rights.
    std::filesystem::remove(path);
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    GifFileType* gif = file < 0 ? nullptr : EGifOpenFileHandle(file, &error);
    if (gif == nullptr) Fail(path);
    const bool put = PutGif(gif, picture);
    const bool closed = EGifCloseFile(gif, &error) == GIF_OK;
    if (!put || !closed) Fail(path);
}

// Qt leaves chance bytes at the ends of such rows; a picture drawn twice is to be the same file.
void WriteIndexedBmp(const std::string& path, const QImage& picture) {
    constexpr int OffsetPlace = 10;
    constexpr int RowUnit = 4;
    QBuffer content;
    bool ok = content.open(QIODevice::WriteOnly) && picture.save(&content, "BMP");
    QByteArray bytes = content.data();
    const int width = picture.width();
    const int gap = (RowUnit - width % RowUnit) % RowUnit;
    const auto first = qFromLittleEndian<quint32>(bytes.constData() + OffsetPlace);
    for (int y = 0; y < picture.height(); ++y)
        bytes.replace(first + static_cast<qsizetype>(y) * (width + gap) + width, gap, QByteArray(gap, 0));
    QFile file(QString::fromStdString(path));
    ok = ok && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    if (!ok) Fail(path);
}

}  // namespace

void PictureWriter::Write(const std::string& name, const QImage& picture) const {
    const std::filesystem::path path = std::filesystem::path(folder) / name;
    std::filesystem::create_directories(path.parent_path());
    if (path.extension() == ".gif") {
        WriteGif(path.string(), picture);
        return;
    }
    const bool flat = path.extension() == ".bmp";
    const bool indexed = picture.format() == QImage::Format_Indexed8;
    if (flat && indexed) return WriteIndexedBmp(path.string(), picture);
    const QImage stored = flat ? picture.convertToFormat(QImage::Format_RGB888) : picture;
    if (!stored.save(QString::fromStdString(path.string()), flat ? "BMP" : "PNG")) Fail(path.string());
}

}  // namespace art
