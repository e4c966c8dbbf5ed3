// One picture of the game: where it lies, what it may hold and who makes it.
#pragma once

#include <string>
#include <vector>

#include <QSize>

#include "kit/drawing.h"
#include "kit/palette.h"

namespace art {

enum class Kind {
    Opaque,
    Clear,       // pixels may be see-through
    MasksBelow,  // see-through; the file has a mask of the same size below the picture
    MasksAbove,  // or above it
    Indexed,     // opaque, the file one byte a pixel
    ForLooking   // for looking only: of no fixed size, and never made by hand
};

struct Entry {
    std::string path;  // of the file, from the folder that holds stored/, pic/ and sheets/
    QSize size;        // without masks
    Kind kind;
    Palette palette;
    std::string source;  // "folder/file.cpp:Routine"; empty for a picture that is kept as a hand file
    std::string note;
    std::vector<std::string> of;  // names of the pictures that it is made of
    Draw draw;                    // none for a picture that is kept as a hand file
    int blackFrom = 0;            // from this row on the picture may be black; 0 for nowhere
};

// "pic/faces/usa03.bmp" is "pic/faces/usa03" without its ending.
inline std::string Stem(const std::string& path) {
    return path.substr(0, path.rfind('.'));
}

}  // namespace art
