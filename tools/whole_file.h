// Files that a tool writes.
#pragma once

#include <filesystem>
#include <string_view>

/// Makes `path` a file of `content`. Throws std::runtime_error when it can't be written.
void WriteWholeFile(const std::filesystem::path& path, std::string_view content);
