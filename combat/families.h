// The family of action that the thing in a unit's hand and the chosen fire mode make.
#pragma once

#include <string_view>

/// The family of the current unit's held thing under the chosen fire mode, as "fire" or "cure"; empty when no
/// rule applies.
std::string_view ActionFamily();
