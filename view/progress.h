// The progress window, shown while the map is painted.
#pragma once

#include <string_view>

/// "Start" shows the window with an empty bar, "Add" lengthens the bar by 10 pixels, "Stop" takes the window
/// away.
void ShowProgress(std::string_view word);
