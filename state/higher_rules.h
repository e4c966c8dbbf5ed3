// What the lower rooms ask of the higher ones: the few calls that go up. mission/ installs them once, so that
// every include goes down.
#pragma once

#include <string_view>

struct HigherRules {
    void (*selectNextUnit)();                      // mission/turns
    void (*endIfEliminated)();                     // mission/mission_end
    void (*listActions)();                         // combat/fire_modes
    void (*handSync)(std::string_view direction);  // combat/fire_modes
};

/// The installed ones; they must have been.
const HigherRules& TheHigherRules();
void InstallHigherRules(const HigherRules& rules);
