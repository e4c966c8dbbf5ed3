#include "catalogue/hand_files.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include <QByteArray>
#include <QFile>

#include "kit/fault.h"
#include "map/nearest.h"

namespace art {
namespace {

constexpr QRgb Black = 0xff000000;

std::string Size(QSize size) {
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

std::string Code(QRgb colour) {
    std::array<char, 8> code{};
    std::snprintf(code.data(), code.size(), "#%06x", colour & 0xffffffu);
    return code.data();
}

std::size_t InksOf(const Entry& entry) {
    return entry.palette == Palette::Field ? FieldInkCount : InkCount;
}

bool MayBeClear(const Entry& entry) {
    return entry.kind == Kind::Clear || entry.kind == Kind::MasksBelow || entry.kind == Kind::MasksAbove;
}

bool IsInk(QRgb colour, std::size_t inks) {
    const auto end = Inks.begin() + static_cast<std::ptrdiff_t>(inks);
    return std::find_if(Inks.begin(), end, [&](const InkRow& ink) { return ink.colour == colour; }) != end;
}

std::string WrongColour(QRgb colour, const Entry& entry) {
    const InkRow& nearest = Inks[static_cast<std::size_t>(NearestInk(colour, 0, entry.palette))];
    const bool elsewhere = IsInk(colour, InkCount);
    return Code(colour) + (elsewhere ? " is an ink that pictures of the field don't use" : " is not an ink") +
           "; the nearest is \"" + nearest.name + "\" " + Code(nearest.colour);
}

// What is wrong with a pixel, empty for nothing.
std::string PixelFault(QRgb colour, int y, const Entry& entry) {
    const int alpha = qAlpha(colour);
    if (alpha == 0) return MayBeClear(entry) ? "" : "see-through; this picture has an ink everywhere";
    if (alpha != 255)
        return "half see-through (alpha " + std::to_string(alpha) +
               "); a pixel is either there (255) or see-through (0)";
    if (colour == Black && entry.blackFrom > 0 && y >= entry.blackFrom) return "";
    return IsInk(colour, InksOf(entry)) ? "" : WrongColour(colour, entry);
}

std::string PixelName(const std::string& path, int x, int y) {
    return path + ", pixel (" + std::to_string(x) + ", " + std::to_string(y) + "): ";
}

void CheckPixels(const std::string& path, const QImage& picture, const Entry& entry) {
    std::string first;
    int others = -1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const std::string fault = PixelFault(picture.pixel(x, y), y, entry);
            if (fault.empty()) continue;
            if (++others == 0) first.append(PixelName(path, x, y)).append(fault);
        }
    }
    if (others > 0)
        first +=
            "; " + std::to_string(others) + (others == 1 ? " more pixel is wrong" : " more pixels are wrong");
    if (!first.empty()) throw Fault(first);
}

// The file's bytes, which must be those of an indexed PNG.
QByteArray IndexedPng(const std::string& path) {
    constexpr qsizetype ColourTypePlace = 25;
    constexpr char IndexedType = 3;
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) throw Fault(path + ": can't be read");
    QByteArray bytes = file.readAll();
    if (!bytes.startsWith("\x89PNG\r\n\x1a\n") || bytes.size() <= ColourTypePlace)
        throw Fault(path + ": expected a PNG file");
    if (bytes[ColourTypePlace] != IndexedType)
        throw Fault(path + ": expected an indexed PNG; save it with a palette, not in true colour or grey");
    return bytes;
}

// A clear pixel is 0, whatever colour the file's palette has there.
QImage Cleared(const QImage& picture) {
    QImage cleared = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < cleared.height(); ++y) {
        for (int x = 0; x < cleared.width(); ++x) {
            if (qAlpha(cleared.pixel(x, y)) == 0) cleared.setPixel(x, y, 0u);
        }
    }
    return cleared;
}

}  // namespace

std::filesystem::path HandPath(const std::filesystem::path& folder, const Entry& entry) {
    return folder / (Stem(entry.path) + ".png");
}

QImage ReadHandFile(const std::filesystem::path& path, const Entry& entry) {
    const QImage picture = QImage::fromData(IndexedPng(path.string()), "PNG");
    if (picture.isNull()) throw Fault(path.string() + ": broken or cut off, can't be read as a PNG");
    if (picture.size() != entry.size)
        throw Fault(path.string() + ": is " + Size(picture.size()) + ", expected " + Size(entry.size) +
                    (entry.kind == Kind::MasksBelow || entry.kind == Kind::MasksAbove
                         ? ": the build makes the masks"
                         : ""));
    CheckPixels(path.string(), picture, entry);
    return Cleared(picture);
}

void WriteHandFile(const std::filesystem::path& path, const Entry& entry, const QImage& picture) {
    QList<QRgb> table;
    for (std::size_t i = 0; i < InksOf(entry); ++i)
        table.push_back(Inks[i].colour);
    if (entry.blackFrom > 0) table.push_back(Black);
    if (MayBeClear(entry)) table.push_back(0u);
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    indexed.setColorTable(table);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            indexed.setPixel(x, y, static_cast<uint>(table.indexOf(picture.pixel(x, y))));
    }
    std::filesystem::create_directories(path.parent_path());
    if (!indexed.save(QString::fromStdString(path.string()), "PNG"))
        throw Fault(path.string() + ": can't be written");
}

void CheckHandNames(const std::filesystem::path& folder, std::span<const Entry> entries) {
    if (!std::filesystem::is_directory(folder)) return;
    std::vector<std::string> names;
    for (const Entry& entry : entries) {
        if (entry.kind != Kind::ForLooking) names.push_back(Stem(entry.path) + ".png");
    }
    std::ranges::sort(names);
    for (const auto& file : std::filesystem::recursive_directory_iterator(folder)) {
        const std::string name = file.path().lexically_relative(folder).generic_string();
        const QString ending = QString::fromStdString(file.path().extension().string()).toLower();
        if (!file.is_regular_file() || ending != ".png" || std::ranges::binary_search(names, name)) continue;
        const std::string nearest = Nearest(name, names);
        throw Fault(
            file.path().string() + ": no picture of the game has this name" +
            (nearest.empty() ? "; sarnoth_art --list names them all" : "; did you mean " + nearest + "?"));
    }
}

}  // namespace art
