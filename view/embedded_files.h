// The files that the build embeds in the program; their list is made by the build.
#pragma once

#include <span>
#include <string_view>

struct EmbeddedFile {
    std::string_view name;
    std::string_view content;
};

/// All embedded files. The contents live as long as the program.
std::span<const EmbeddedFile> EmbeddedFiles();
