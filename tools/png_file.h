// Writing pictures for people to look at.
#pragma once

#include <filesystem>

#include "platform/picture.h"

/// Throws RunTimeError (FileWrite) when it can't be written.
void WritePng(const std::filesystem::path& file, const Picture& picture);
