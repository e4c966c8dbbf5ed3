// The commands of sarnoth-lab. Each takes the words after its name and gives the exit code: 0 for well, 1
// when something was found. UsageError, RunTimeError and other exceptions are told by main.
#pragma once

#include <string>
#include <vector>

using Words = std::vector<std::string>;

/// Plays in a window and records it.
int PlayInWindow(const Words& words, char** arguments);

/// Replays a recording without a window or in one.
int ReplayFile(const Words& words, char** arguments);

/// Writes the lines of a recording anew.
int RecordFile(const Words& words);

/// Random missions in several processes.
int SoakSeeds(const Words& words);

/// The data's faults, as sarnoth-check tells them.
int CheckData(const Words& words);

/// The odds on the firing range.
int MeasureOdds(const Words& words);

/// Paints a window into a file.
int PaintShot(const Words& words, char** arguments);
