// What goes along with a game for the person who plays it, and is no rule of it: the chronicle, the effects
// that linger, the computer's turn as a film, banner and report over the field, ambience and cues. It only
// looks: no state, draw, pump or sound of the rules differs with it. A front end asks it what to draw, and
// says when something may have changed.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/input_event.h"
#include "shell/ambience.h"
#include "shell/chronicle.h"
#include "shell/effects.h"
#include "shell/film.h"
#include "shell/guide.h"
#include "shell/moment.h"
#include "shell/onlooker.h"
#include "shell/own_sounds.h"
#include "shell/screening.h"
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
    bool IsMoving() const;

    /// In pixels of the field, of the part of the window where the field is seen, and of the mini map.
    const Sketch& OnField() const { return onField; }
    const Sketch& OnView() const { return onView; }
    const Sketch& OnMap() const { return onMap; }

    /// Stands over the main window, where its Left and Top say.
    Form& Readout() { return guide.Readout(); }

    /// A game is played back: a banner says so, with what a key or click does. An empty text: no more.
    void SetWatched(const std::string& whatKeysDo) { watched = whatKeysDo; }

    /// All so far has happened unseen: it has no effects, and no film.
    void ForgetUnseen();

    /// The mission has ended, maybe in the middle of a shot.
    void Settle() { onlooker.Settle(); }

    /// Whether something lingers of what has happened.
    bool ShowsEffects() const { return effects.Any(clock()); }

    /// Whether a shot, a hit, a death or a blast is still to be seen.
    bool ShowsAct() const { return effects.AnyAct(clock()); }

    /// The pointer has left the window: nothing lies under it.
    void ForgetPointer() { guide.ForgetPointer(); }

    /// Its own sounds go to `out` from now on, each when the player sees what it belongs to; those of a shot
    /// on film as soon as the rules' own.
    void SoundThrough(Screening::PlaySound out) { soundOut = std::move(out); }
    void SoundVerdict() { Sound(Cues::OfVerdict(missionVerdict)); }

    /// What is to be heard of the valley now.
    const AmbienceLevels& AmbienceNow() { return ambience.Levels(); }

    const Chronicle& TheChronicle() const { return chronicle; }

    /// The computer's turns are filmed from now on: the front end shows nothing while one is, doesn't wait,
    /// and asks for a screening when the rules are done.
    void FilmTurns() { filmsTurns = true; }
    bool IsFilming() const { return film.IsRunning(); }
    void Shoot(std::chrono::nanoseconds length) { film.Shoot(length); }
    void Keep(const SoundRequest& sound) { film.Keep(sound); }

    /// Ends the filming. False when there is nothing to be seen.
    bool BeginScreening(const Screening::PlaySound& play);

    /// While a film is shown; nullptr else.
    Screening* TheScreening() { return screening ? &*screening : nullptr; }
    void EndScreening();

  private:
    void Witness(const Happening& happening);
    void Show(const Happening& happening);
    void Sound(const std::optional<SoundRequest>& sound) const;
    void BeginFilm();
    void EndFilm();
    void Report();
    void DrawBanner();
    void DrawReport();

    const Clock clock;
    Chronicle chronicle;
    Effects effects;
    Guide guide;
    Impacts impacts;
    Cues cues;
    Ambience ambience;
    Screening::PlaySound soundOut;  // empty: nobody hears them
    Film film;
    std::optional<Screening> screening;
    bool filmsTurns = false;
    ViewPlace filmedFrom;             // what was in view when the film began
    std::size_t enemysFirst = 0;      // entry of the chronicle since the computer's turn began
    std::vector<std::string> report;  // of that turn, until the next order
    std::string watched;              // what a key does while a game is played back; empty: none is
    Moment turnBegan;                 // of the squad
    Sketch onField;
    Sketch onView;
    Sketch onMap;
    Onlooker onlooker;
};
