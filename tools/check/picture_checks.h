// Checks the pictures of a game, whether a thing or soldier names them or not.
#pragma once

#include <filesystem>

#include "tools/check/findings.h"

/// All BMP, GIF and JPEG files of pic/ in the folder `gameFolder`, decoded as the game does it.
void CheckPictures(const std::filesystem::path& gameFolder, Findings& findings);
