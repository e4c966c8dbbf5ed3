// Recordings of games that are over, to be watched: each is played with the vehicle store that it began with,
// in a folder of its own, so the player's store stays as it is.
#pragma once

#include <filesystem>

#include "shell/journal.h"

/// Reads a recording, which is a journal that somebody kept. Throws RunTimeError for a file that is none, and
/// for one of another build or other data.
Journal RecordingToWatch(const std::filesystem::path& file);

/// From now on the game reads the journal's store and writes into the folder that it gives back, within the
/// player's. `program` is where its data lie.
std::filesystem::path BorrowStore(const Journal& journal, const std::filesystem::path& program);

/// Removes such a folder; does nothing for none.
void ReturnStore(const std::filesystem::path& folder);
