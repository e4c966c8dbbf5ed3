#include "shell/film.h"

#include <algorithm>
#include <utility>

namespace {

FilmedOverlay LookOf(const ImageControl& image) {
    if (!image.Visible) return {};
    return {image.Picture, image.Left, image.Top};
}

// The pixels of a row within `part` in which the two differ, as one run for each stretch.
void AddRuns(const Picture& before, const Picture& after, const Rectangle& part, int y, FilmFrame& frame) {
    const Colour* const old = before.Row(y);
    const Colour* const now = after.Row(y);
    const int end = part.left + part.width;
    for (int x = part.left; x < end;) {
        if (old[x] == now[x]) {
            ++x;
            continue;
        }
        int beyond = x;
        while (beyond < end && old[beyond] != now[beyond])
            ++beyond;
        frame.runs.push_back({x, y, std::vector<Colour>(now + x, now + beyond)});
        frame.changed = Around(frame.changed, {x, y, beyond - x, 1});
        x = beyond;
    }
}

}  // namespace

void Film::Begin(Picture& field, const Overlays& over) {
    End();
    Clear();
    filmed = &field;
    overlays = over;
    filmed->TakeChanged();
    start = field;
    last = field;
}

void Film::Shoot(std::chrono::nanoseconds length) {
    if (!IsRunning()) return;
    const Rectangle part = Common(filmed->TakeChanged(), last.Bounds());
    for (int y = part.top; y < part.top + part.height; ++y)
        AddRuns(last, *filmed, part, y, open);
    for (const FilmFrame::Run& run : open.runs)
        std::copy(run.pixels.begin(), run.pixels.end(), last.Row(run.y) + run.x);
    for (std::size_t i = 0; i < overlays.size(); ++i)
        open.overlays[i] = LookOf(*overlays[i]);
    if (turnOver) length = {};
    const bool shows = !open.runs.empty() || !open.sounds.empty() || !open.happenings.empty() ||
                       (frames.empty() ? FilmFrame().overlays : frames.back().overlays) != open.overlays;
    if (shows) {
        open.length = length;
        frames.push_back(std::exchange(open, {}));
    } else if (!frames.empty()) {
        frames.back().length += length;
    }
}

void Film::Keep(const SoundRequest& sound) {
    open.sounds.push_back(sound);
}

// A shot is reported when its trail has just been seen: the view goes there before.
void Film::Keep(const Happening& happening) {
    const bool wasSeen = happening.kind == HappeningKind::Shot && !frames.empty();
    (wasSeen ? frames.back() : open).happenings.push_back(happening);
}

void Film::NoteTurnOver() {
    Shoot({});
    turnOver = true;
}

// All of the field is new to whoever has shown it until now.
void Film::End() {
    if (!IsRunning()) return;
    Shoot({});
    filmed->MarkChanged(filmed->Bounds());
    filmed = nullptr;
    last = Picture();
}

bool Film::IsWorthSeeing(const Rectangle& view) const {
    return std::any_of(frames.begin(), frames.end(), [&view](const FilmFrame& frame) {
        const bool happens =
            std::any_of(frame.happenings.begin(), frame.happenings.end(),
                        [](const Happening& happening) { return happening.seen && IsAct(happening.kind); });
        return happens || (frame.length.count() > 0 && !Common(frame.changed, view).Empty());
    });
}

void Film::Clear() {
    filmed = nullptr;
    start = Picture();
    last = Picture();
    frames.clear();
    open = {};
    turnOver = false;
}
