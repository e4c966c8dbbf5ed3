// The families of action: which one the thing in a unit's hand and the chosen fire mode make, and what sets
// each apart from a plain shot.
#pragma once

#include <string_view>

/// What becomes of a thing where its flight ends.
enum class AtEnd { Nothing, LiesThere, IsSet, Bursts };

struct Family {
    std::string_view word;
    bool secondFeed;  // its rounds come from the thing's second feed
    int pellets;      // that a round bursts into, and that share its power
    AtEnd atEnd;
    bool usesThingUp;    // with its last round the thing itself has left the hand
    const char* log;     // what the log says, nullptr for nothing
    const char* launch;  // the sound of a secondary barrel besides the shot's own, nullptr for none
};

/// The family of the current unit's held thing under the chosen fire mode, as "fire" or "cure"; empty when no
/// rule applies.
std::string_view ActionFamily();

/// The row of a family; that of a plain shot for any word without one.
const Family& FamilyNamed(std::string_view word);
