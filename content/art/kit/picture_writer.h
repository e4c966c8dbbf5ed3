// Puts finished pictures on disk. Each routine prints what failed and ends the program: a build without its
// pictures is no build.
#pragma once

#include <string>

#include <QImage>

namespace art {

class PictureWriter {
  public:
    explicit PictureWriter(std::string targetFolder) : folder(std::move(targetFolder)) {}

    // The kind is told by the ending: .bmp (24 bits, or 8 of an indexed picture), .gif (the palette,
    // see-through where alpha is 0) or .png.
    void Write(const std::string& name, const QImage& picture) const;

  private:
    std::string folder;
};

// A number with leading zeros to at least two digits, as the numbered pictures are named.
std::string TwoDigits(int number);

}  // namespace art
