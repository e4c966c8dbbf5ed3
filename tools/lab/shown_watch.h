// Watches what a player sees and hears: the field's picture cell by cell, what the windows show, and the
// sounds that are asked for.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/picture.h"

class ShownWatch {
  public:
    /// Takes the field as it is now, and listens to the host from now on.
    ShownWatch();

    /// What has changed since it last looked: a cell's square of the field a line, as "area 240,600 20x20
    /// HASH" with its left top corner in pixels, then the sounds as they came, as "sound weapons\ak -150"
    /// with the balance in hundredths of a decibel, left below 0.
    std::vector<std::string> Look();

    /// Of the field's picture when it last looked.
    std::uint64_t FieldHash() const { return fieldHash; }

    /// A look that some cell has had, by the hash of its line; nullptr for none.
    const Picture* LookWith(std::string_view hash) const;

  private:
    void LookAtCell(int x, int y, std::vector<std::string>& lines);

    std::vector<std::uint64_t> cells;  // hashes, row by row
    std::uint64_t fieldHash = 0;       // the sum of what the cells make
    Picture before;
    std::map<std::string, Picture, std::less<>> looks;
    std::shared_ptr<std::vector<std::string>> heard;  // the host may outlive the watch, or end before it
};

/// Of one cell's look.
std::uint64_t HashOfPicture(const Picture& picture);

/// Of all that is visible now besides the field: controls with their places, texts and pictures.
std::uint64_t HashOfWindows();
