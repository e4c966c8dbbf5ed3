// A filled soldier's file, put together as the game does it, for looking at the pictures in their places.
#pragma once

#include <vector>

#include <QImage>

#include "things/inventory_pictures.h"

namespace art {

struct FileParts {
    QImage sheet;
    QImage face;
    std::vector<QImage> awards;  // in their places from the first on; null for none
    const std::vector<NamedPicture>* things;
    const std::vector<NamedPicture>* packs;
};

QImage MockFile(const FileParts& parts);

}  // namespace art
