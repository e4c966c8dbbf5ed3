// Where journals lie in the player's folder: that of the game that runs or was broken off, the last five that
// are over, and those that couldn't be continued.
#pragma once

#include <string>

constexpr const char* CurrentJournal = "\\journal\\current.txt";

/// Removes the current journal, in which nothing happened.
void RemoveJournal();

/// Makes the current journal "finished-1.txt"; the others move on by one, and the fifth goes. Killed in its
/// middle it has lost none of the newer ones. False, with errno, when it couldn't be renamed.
bool ShelveFinished();

/// Renames the current journal to the first free "other-1.txt", "other-2.txt", ... and gives the name that
/// messages show; empty, with errno, when it couldn't be renamed.
std::string ShelveOther();
