// A film on the screen: the field as it was, frame after frame, with the view where something happens and a
// moment's rest on whatever the eye needs one for.
#pragma once

#include <functional>

#include "shell/film.h"
#include "shell/moment.h"

/// The left top corner of what is seen of the field, in its pixels.
struct ViewPlace {
    int left = 0;
    int top = 0;

    bool operator==(const ViewPlace&) const = default;
};

class Screening {
  public:
    using PlaySound = std::function<void(const SoundRequest& sound)>;
    using Witness = std::function<void(const Happening& happening)>;

    /// Shows `film`, which must outlive this. The view begins at `here`, goes to what happens, and ends at
    /// `atLast`.
    Screening(const Film& film, ViewPlace here, ViewPlace atLast, Moment now, PlaySound sound,
              Witness witness);

    /// Goes on to what is seen at `now`. False when all has been seen, or was skipped.
    bool Advance(Moment now);

    /// The rest is not shown; it has happened all the same.
    void Skip();

    /// When something changes next, at `now` at the earliest.
    Moment Next(Moment now) const;

    Moment Begun() const { return begun; }

    Picture& Field() { return field; }
    ViewPlace View(Moment now) const;

  private:
    bool BeginFrame(Moment now);
    bool GoTo(ViewPlace place, Moment now);
    void Show(const FilmFrame& frame);
    void TakeOverlaysAway();
    void LayOver(const FilmFrame& frame);

    const Film& film;
    const PlaySound play;
    const Witness witness;
    const ViewPlace last;
    const Moment begun;
    Picture field;
    struct Covered {
        Rectangle place;
        Picture under;
    };
    std::vector<Covered> covered;  // by overlays, in the order in which they were laid down
    std::size_t next = 0;          // frame
    Moment due;                    // when it is shown
    ViewPlace from;
    ViewPlace to;
    Moment panned;  // when the view set out from there
    bool returned = false;
    bool skipped = false;
};
