// Presses that came too late: the second one of a double click on "End Turn" when the squad already has its
// turn back, and clicks and keys for a soldier who has handed over meanwhile because his order used up his
// time. Whoever takes events from windows asks here first; what is swallowed never enters the game.
#pragma once

#include <optional>
#include <set>

#include "platform/input_event.h"
#include "shell/moment.h"

class Slips {
  public:
    struct HandOver {
        int to = 0;  // unit
        Moment when;
    };

    /// To be called whenever something is about to be shown.
    void Note(Moment now);

    /// Whether the event came within 0.3 s of what its player can't have seen yet; or it repeats a key that
    /// has been held since before the hand-over.
    bool Swallows(const InputEvent& event, Moment now) const;

    /// The event is about to enter the game.
    void Enters(const InputEvent& event);

    /// What a hand-over leads to is seen only now: the presses until now came too late.
    void SeeHandOver(Moment now);

    /// The last time that a soldier of the squad was selected by no wish of the player's; nothing before the
    /// first.
    const std::optional<HandOver>& LastHandOver() const { return handOver; }

  private:
    void NoteUnit(Moment now);

    bool away = false;  // the turn is the computer's, or about to be
    Moment cameBack;
    int shown = -1;       // the squad's current unit, when it was looked at last
    bool selects = true;  // the last order, or the game's start, was to select one
    std::optional<HandOver> handOver;
    std::set<int> held;       // codes of the keys that are down
    std::set<int> outlasted;  // of those, the ones pressed before the hand-over
};
