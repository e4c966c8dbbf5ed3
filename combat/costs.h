// The one gate through which every cost is paid, and the working copy of the held thing's feed.
#pragma once

#include <string_view>

/// Pays `amount` of "time", "energy", "ammo", "durab" from the current unit, or of "money"; false when there
/// is too little, or for any other kind. A negative amount always passes and gives back. A refusal of time or
/// energy is heard.
bool Spend(float amount, std::string_view kind);

/// "real2fake" takes the current unit's feed and rounds from the thing in its hand, "fake2real" puts them
/// back there. Which feed follows from the action family.
void HandSync(std::string_view direction);
