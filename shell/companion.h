// What goes along with a game for the person who plays it, and is no rule of it: the chronicle, the effects
// that linger, marks and words over the field. It only looks: no state, draw or pump of the rules differs
// with it. A front end asks it what to draw, and says when something may have changed.
#pragma once

#include "shell/chronicle.h"
#include "shell/effects.h"
#include "shell/guide.h"
#include "shell/moment.h"
#include "shell/onlooker.h"
#include "shell/sketch.h"

class Companion {
  public:
    /// The clock of what is shown for a while.
    using Clock = Moment (*)();
    explicit Companion(Clock whichClock = std::chrono::steady_clock::now);

    /// To be called whenever the windows are brought in line with their records: decides what is drawn now.
    void Look();

    /// Gives a person's event to the game through `door`, and notes why it came to nothing.
    void Pass(const InputEvent& event, const std::function<void()>& door);

    /// Whether what is drawn goes on changing by itself.
    bool IsMoving() const { return effects.Any(clock()) || guide.IsWaiting(); }

    /// In pixels of the field, and of the part of the window where the field is seen.
    const Sketch& OnField() const { return onField; }
    const Sketch& OnView() const { return onView; }

    /// Stands over the main window, where its Left and Top say.
    Form& Readout() { return guide.Readout(); }
    const Guide& TheGuide() const { return guide; }

    const Chronicle& TheChronicle() const { return chronicle; }

  private:
    void Witness(const Happening& happening);

    const Clock clock;
    Chronicle chronicle;
    Effects effects;
    Guide guide;
    Sketch onField;
    Sketch onView;
    Onlooker onlooker;
};
