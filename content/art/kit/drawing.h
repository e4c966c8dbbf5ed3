// What the folders of drawings give to the catalogue.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QImage>

namespace art {

// A finished picture by its path in the game, drawn or by hand; without its masks.
using Pictures = std::function<QImage(const std::string& path)>;

using Draw = std::function<QImage(const Pictures& pictures)>;

// One picture of a family. `source` is "folder/file.cpp:Routine", empty where all of the family come from one
// routine; `note` says what sets this one apart: a row of a table, a number.
struct Drawing {
    std::string name;
    Draw draw;
    std::string source = {};
    std::string note = {};
    std::vector<std::string> of = {};  // names of the pictures that it is made of
};

using Drawings = std::vector<Drawing>;

// A number with leading zeros to at least two digits, as the numbered pictures are named.
inline std::string TwoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

// A draw that needs no other picture.
inline Draw Alone(std::function<QImage()> draw) {
    return [draw = std::move(draw)](const Pictures&) { return draw(); };
}

}  // namespace art
