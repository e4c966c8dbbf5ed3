// The one gate through which every cost is paid.
#pragma once

#include <string_view>

/// Pays `amount` of "time", "energy", "ammo", "durab" from the current unit, or of "money"; false when there
/// is too little, or for any other kind. A negative amount always passes and gives back. A refusal of time or
/// energy is heard.
bool Spend(float amount, std::string_view kind);
