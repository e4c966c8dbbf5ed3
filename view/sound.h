// The sounds of the game, placed in stereo by the column of the screen that they happen on.
#pragma once

#include <string>

#include "state/audience.h"

/// Plays "\wav\<name>.wav" once. `column` is a map column or AtCurrentUnit or AtScreenCentre. A missing file
/// is skipped.
void PlaySoundAt(const std::string& name, int column);
