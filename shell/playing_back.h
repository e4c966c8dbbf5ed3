// A run that is played back on the windows for somebody to watch.
#pragma once

#include "shell/front_host.h"
#include "shell/watching.h"

/// What becomes of it at its end.
enum class AfterWatching { PlayGoesOn, ProcessEnds };

/// Plays it back from now on, at a pace that can be followed. Keys and clicks bring it to its end at once.
/// All must outlive that.
void ShowPlayedBack(Watching& watching, Companion& companion, AfterWatching after);
