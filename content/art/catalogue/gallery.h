// All pictures by their paths, each made once, when it is first asked for: by hand if there is a hand file,
// drawn otherwise. Any thread may ask.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include <QImage>

#include "catalogue/entry.h"

namespace art {

class Gallery {
  public:
    explicit Gallery(std::filesystem::path handFolder);
    ~Gallery();
    Gallery(const Gallery&) = delete;
    Gallery& operator=(const Gallery&) = delete;

    const std::vector<Entry>& Entries() const { return entries; }

    std::filesystem::path HandFile(const Entry& entry) const;
    bool IsByHand(const Entry& entry) const;

    // Without masks, see-through where the picture may be.
    QImage Picture(const std::string& path) const;

    // As it goes into its file.
    QImage FilePicture(const Entry& entry) const;

  private:
    struct Made;

    QImage Make(const Entry& entry) const;

    std::filesystem::path folder;
    std::vector<Entry> entries;
    std::unordered_map<std::string, std::size_t> places;
    std::unique_ptr<Made[]> made;
};

}  // namespace art
