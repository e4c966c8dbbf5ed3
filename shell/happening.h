// What happens in a game as a person would retell it, one record for each. Places are pixels of the field.
#pragma once

#include <string>

enum class HappeningKind {
    MissionBegins,
    TurnBegins,  // of team `unit`
    Selected,    // a soldier of the squad, `unit`, awaits orders
    Shot,        // a bullet of `unit` flew from one place to the other
    Hit,         // `unit` was hit by `by` and lost `amount` points of health; below 0 they were given back
    Death,       // of `unit`; `by` -1: of a wound
    Blast,       // three cells by three, around the place
    Sighting,    // `by` has sighted the enemy `unit`
};

struct Happening {
    HappeningKind kind = HappeningKind::MissionBegins;
    int unit = -1;
    int by = -1;
    int amount = 0;
    int x = 0;
    int y = 0;
    int toX = 0;
    int toY = 0;
    bool seen = true;       // by the squad, or to one of its own
    std::string text = {};  // of a shot, hit or death the weapon's key
    std::string mode = {};  // in which that weapon was used, as "Full auto"
};

/// Whether it is something that is done to somebody or something: a shot, a hit, a death, a blast.
constexpr bool IsAct(HappeningKind kind) {
    return kind == HappeningKind::Shot || kind == HappeningKind::Hit || kind == HappeningKind::Death ||
           kind == HappeningKind::Blast;
}
