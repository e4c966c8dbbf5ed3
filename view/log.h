// The running log: one list on the panel, written by every part of the game.
#pragma once

#include <string>

/// Appends `text` to the line under construction. With `level` 1 the line is then ended and added to the
/// list.
void AddToLog(const std::string& text, int level);
