// Picture files: BMP of 8 and 24 bits, GIF with transparency, baseline JPEG.
#pragma once

#include <string_view>

#include "platform/picture.h"

/// The picture in `content`; `name` stands for it in messages. Throws RunTimeError (BadData), also for a file
/// that ends too early, a progressive JPEG and more than 2048 pixels either way.
Picture DecodePicture(std::string_view content, std::string_view name);

/// The picture of a file under the program's folder, named as "\pic\weapon.gif"; a file is read once. Throws
/// RunTimeError.
PictureRef ReadPictureFile(std::string_view name);
