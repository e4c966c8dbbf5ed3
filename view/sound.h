// The sounds of the game, placed in stereo by the column of the screen that they happen on.
#pragma once

#include <string>

#include "platform/host.h"
#include "state/audience.h"

/// "\wav\<name>.wav" as it is heard from a map column, AtCurrentUnit or AtScreenCentre. Its slot is still to
/// be chosen.
SoundRequest SoundAt(const std::string& name, int column);

/// Plays "\wav\<name>.wav" once. `column` is a map column or AtCurrentUnit or AtScreenCentre. A missing file
/// is skipped.
void PlaySoundAt(const std::string& name, int column);
