// Pictures that somebody made in a pixel editor: content/art/hand/<path>.png stands for the game's picture of
// that path. Every fault is a Fault that names the file, the pixel and what was expected there.
#pragma once

#include <filesystem>
#include <span>

#include <QImage>

#include "catalogue/entry.h"

namespace art {

std::filesystem::path HandPath(const std::filesystem::path& folder, const Entry& entry);

// Reads and checks a hand file. Colours count, not their places in the file's palette: editors shorten and
// reorder it.
QImage ReadHandFile(const std::filesystem::path& path, const Entry& entry);

// Writes a picture as a hand file to start from; its palette has the inks in their order.
void WriteHandFile(const std::filesystem::path& path, const Entry& entry, const QImage& picture);

// No file may lie in the folder that no picture would read.
void CheckHandNames(const std::filesystem::path& folder, std::span<const Entry> entries);

}  // namespace art
