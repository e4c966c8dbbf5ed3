// The clock of everything that is shown for a while.
#pragma once

#include <chrono>

using Moment = std::chrono::steady_clock::time_point;
