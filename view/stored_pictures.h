// The pictures that belong to the program itself, embedded in it: sheets of tiles and sprites, the panel and
// its frames, marks and bars. They are decoded at their first use.
#pragma once

#include <string_view>

#include "platform/picture.h"

/// The stored picture of a file name, as "picMap.bmp". Throws RunTimeError for a name that isn't embedded.
const Picture& StoredPicture(std::string_view name);

/// The same to be shown in an image control.
PictureRef StoredImage(std::string_view name);
