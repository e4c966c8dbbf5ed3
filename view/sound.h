// The sounds of the game, placed in stereo by the column of the screen that they happen on.
#pragma once

#include <string>

constexpr int AtCurrentUnit = 88;  // the column of the current unit
constexpr int AtScreenCentre =
    20;  // ODDITY: map column 20 is taken for the middle of the view, wherever it is scrolled

/// Plays "\wav\<name>.wav" once. `column` is a map column or one of the codes above. A missing file is
/// skipped.
void PlaySoundAt(const std::string& name, int column);
