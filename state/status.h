// The current unit's status: what its health makes of it, and the report of its figures, which the panel
// shows and by which a spent soldier hands over.
#pragma once

#include <string_view>

/// Derives the current unit's status from its health.
void CheckStatus();

/// Reports what changed: "stance", "time", "energy", "health", "durab", or "" for the first four. Only for a
/// unit of the player; one with too little time left then hands over to the next.
void ShowStatus(std::string_view what);
