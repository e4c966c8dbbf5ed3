// The thin trail that a flight leaves on the field while it lasts.
#pragma once

#include <string_view>

/// "initialize" begins one, "return" takes its newest stretch away for a repaint and
/// "store" puts it back after it, "finalize" shows the whole for a moment and takes it away. Without a flight
/// the two in the middle do nothing.
void BulletTrail(std::string_view mode);
