// Puts finished pictures on disk. What can't be written is a Fault.
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

}  // namespace art
