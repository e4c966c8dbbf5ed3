// The computer's turn as a film. The rules run on without waiting, and what they paint, sound and do is kept
// in order; afterwards a Screening shows it at a pace that the eye follows.
#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <vector>

#include "platform/controls.h"
#include "platform/host.h"
#include "shell/happening.h"

/// A picture that lay over the field, as the explosion.
struct FilmedOverlay {
    PictureRef picture;  // null: none
    int left = 0;
    int top = 0;

    bool operator==(const FilmedOverlay&) const = default;
};

/// What looks the same for a moment.
struct FilmFrame {
    /// Pixels of one row that differ from the frame before.
    struct Run {
        int x;
        int y;
        std::vector<Colour> pixels;
    };

    std::vector<Run> runs;
    Rectangle changed;  // around them
    std::array<FilmedOverlay, 2> overlays;
    std::vector<SoundRequest> sounds;      // they begin with it
    std::vector<Happening> happenings;     // they have happened when it is seen
    std::chrono::nanoseconds length = {};  // that the rules would have waited
};

class Film {
  public:
    using Overlays = std::array<const ImageControl*, 2>;

    /// Films `field` with what lies over it from now on; all must outlive the filming.
    void Begin(Picture& field, const Overlays& over);

    bool IsRunning() const { return filmed != nullptr; }

    /// What has been painted since the last call is seen for `length`.
    void Shoot(std::chrono::nanoseconds length);
    void Keep(const SoundRequest& sound);
    void Keep(const Happening& happening);

    /// From now on nothing waits: what follows is painted in one go.
    void NoteTurnOver();

    void End();

    /// The field as it was at the beginning.
    const Picture& Start() const { return start; }
    const std::vector<FilmFrame>& Frames() const { return frames; }

    /// Whether it holds something to be seen: a shot, hit, death or blast, or movement in `view` of the
    /// field.
    bool IsWorthSeeing(const Rectangle& view) const;

    void Clear();

  private:
    FilmFrame& Frame();

    Picture* filmed = nullptr;
    Overlays overlays = {};
    Picture start;
    Picture last;  // as the newest frame shows it
    std::vector<FilmFrame> frames;
    FilmFrame open;  // not shot yet
    bool turnOver = false;
};
