// A player's journal as a recording, so that it can be replayed and compared like one.
#pragma once

#include <filesystem>

#include "tools/lab/recording.h"

/// Whether `file` begins as a journal does.
bool IsJournal(const std::filesystem::path& file);

/// Plays the journal without a window to see what its events come to, with the vehicle store that it began
/// with, which is left in `game`, the game folder in use. Throws RunTimeError for a file that is no journal,
/// and for one that was played with other data.
Recording RecordingOfJournal(const std::filesystem::path& file, const std::filesystem::path& game);
