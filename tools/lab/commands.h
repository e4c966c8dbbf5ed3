// The commands of sarnoth-lab. Each adds its options to the command's line and gives its work.
#pragma once

#include "tools/command_line.h"

/// Plays in a window and records it.
Work AddPlay(CLI::App& command);

/// Replays a recording without a window or in one.
Work AddReplay(CLI::App& command);

/// Rewrites the lines of a recording.
Work AddRecord(CLI::App& command);

/// Records a mission of a player in code.
Work AddMission(CLI::App& command);

/// Random missions.
Work AddSoak(CLI::App& command);

/// The odds on the firing range.
Work AddOdds(CLI::App& command);

/// The squad as a page.
Work AddRoster(CLI::App& command);

/// Paints a window into a file.
Work AddShot(CLI::App& command);
