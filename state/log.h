// The running log, written by every part of the game, line by line.
#pragma once

#include <string>

/// Appends `text` to the line under construction, openLine. With `level` 1 the line is then ended and
/// reported to the audience.
void AddToLog(const std::string& text, int level);
