// What is seen of a shot, a hit or a blast for a moment longer than the rules show it: tracers that fade,
// flashes at the muzzle, puffs where a bullet ended, points over who was hit, smoke. The rules go on
// meanwhile. What decorates alone draws its chance from places and times, never from the game's.
#pragma once

#include <vector>

#include "shell/happening.h"
#include "shell/moment.h"
#include "shell/sketch.h"

class Effects {
  public:
    /// Begins what is seen of `happening`; nothing for one that the squad doesn't see.
    void Add(const Happening& happening, Moment now);

    /// Appends the strokes of all effects as they look at `now`, and forgets those that have ended.
    /// On the mini map a ring closes in on who is hit, and on a blast.
    void Draw(Moment now, Sketch& onField, Sketch& onMap);

    bool Any(Moment now) const;

    /// Whether a shot, a hit, a death or a blast is still to be seen.
    bool AnyAct(Moment now) const;

    void Clear() { running.clear(); }

  private:
    struct Effect {
        Happening cause;
        Moment begun;
        int ground = 0;  // terrain class where a shot ended
    };

    void TakeIn(Effect& hit);

    std::vector<Effect> running;
};
