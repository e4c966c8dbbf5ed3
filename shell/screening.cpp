#include "shell/screening.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/blit.h"
#include "state/state.h"
#include "view/field_form.h"

namespace {

using std::chrono::milliseconds;

constexpr milliseconds PanTime(350);     // of the view from one place to another
constexpr milliseconds ArriveTime(200);  // before something happens where the view has gone
constexpr int Margin = 60;               // pixels of the view's edge in which the eye misses what happens

// How long the eye rests on what has happened.
struct Rest {
    HappeningKind kind;
    milliseconds length;
};

constexpr Rest Rests[] = {
    {HappeningKind::Shot, milliseconds(140)},
    {HappeningKind::Hit, milliseconds(550)},
    {HappeningKind::Death, milliseconds(900)},
    {HappeningKind::Blast, milliseconds(400)},
};

bool HasShot(const FilmFrame& frame) {
    return std::any_of(frame.happenings.begin(), frame.happenings.end(), [](const Happening& happening) {
        return happening.seen && happening.kind == HappeningKind::Shot;
    });
}

// A burst goes on at once; what stands alone is looked at.
constexpr milliseconds LastShotRest(450);
constexpr milliseconds BeginTime(300);  // in which the eye reads whose turn it is

milliseconds RestOn(const FilmFrame& frame, bool goesOn) {
    milliseconds longest = !goesOn && HasShot(frame) ? LastShotRest : milliseconds(0);
    for (const Happening& happening : frame.happenings)
        for (const Rest& rest : Rests)
            if (happening.seen && rest.kind == happening.kind) longest = std::max(longest, rest.length);
    return longest;
}

// What the view goes to: where a shot ends, where somebody is hit. nullptr for nothing.
const Happening* WorthGoingTo(const FilmFrame& frame) {
    for (const Happening& happening : frame.happenings)
        if (happening.seen && IsAct(happening.kind)) return &happening;
    return nullptr;
}

bool IsWellInView(int x, int y, ViewPlace view) {
    return x >= view.left + Margin && x < view.left + ViewWidth - Margin && y >= view.top + Margin &&
           y < view.top + ViewHeight - Margin;
}

ViewPlace Around(int x, int y) {
    return {std::clamp(x - ViewWidth / 2, 0, FieldWidth * CellSize - ViewWidth),
            std::clamp(y - ViewHeight / 2, 0, FieldHeight * CellSize - ViewHeight)};
}

bool ShowsIn(const FilmFrame& frame, ViewPlace view) {
    return !Common(frame.changed, {view.left, view.top, ViewWidth, ViewHeight}).Empty() ||
           frame.overlays != FilmFrame().overlays;
}

// Slow, fast, slow.
double Eased(double share) {
    return share * share * (3 - 2 * share);
}

int Between(int from, int to, double share) {
    return from + static_cast<int>(std::lround((to - from) * share));
}

}  // namespace

Screening::Screening(const Film& toShow, ViewPlace here, ViewPlace atLast, Moment now, PlaySound sound,
                     Witness whoListens)
    : film(toShow),
      play(std::move(sound)),
      witness(std::move(whoListens)),
      last(atLast),
      begun(now),
      field(toShow.Start()),
      due(now + BeginTime),
      from(here),
      to(here),
      panned(now - PanTime) {}

bool Screening::Advance(Moment now) {
    while (!skipped && now >= due) {
        if (next < film.Frames().size()) {
            if (!BeginFrame(now)) return true;
            continue;
        }
        if (std::exchange(returned, true) || !GoTo(last, now)) return false;
    }
    return !skipped;
}

// False when the view goes somewhere first.
bool Screening::BeginFrame(Moment now) {
    const FilmFrame& frame = film.Frames()[next];
    const Happening* const act = WorthGoingTo(frame);
    if (act != nullptr) {
        const bool isShot = act->kind == HappeningKind::Shot;
        const int x = isShot ? act->toX : act->x;
        const int y = isShot ? act->toY : act->y;
        if (!IsWellInView(x, y, to) && GoTo(Around(x, y), now)) {
            due += ArriveTime;
            return false;
        }
    }
    Show(frame);
    const bool seen = ShowsIn(frame, to) || act != nullptr;
    ++next;
    const bool goesOn = next < film.Frames().size() && HasShot(film.Frames()[next]);
    if (seen) due += std::max<std::chrono::nanoseconds>(frame.length, RestOn(frame, goesOn));
    return true;
}

// False when the view is there already.
bool Screening::GoTo(ViewPlace place, Moment now) {
    if (place == to) return false;
    from = View(now);
    to = place;
    panned = now;
    due = now + PanTime;
    return true;
}

void Screening::Skip() {
    for (; next < film.Frames().size(); ++next)
        for (const Happening& happening : film.Frames()[next].happenings)
            if (!IsAct(happening.kind)) witness(happening);
    skipped = true;
}

Moment Screening::Next(Moment now) const {
    constexpr milliseconds PanFrame(16);
    const Moment moving = now + PanFrame;
    return now - panned < PanTime ? std::min(due, moving) : std::max(due, now);
}

ViewPlace Screening::View(Moment now) const {
    const std::chrono::duration<double> gone = now - panned;
    const double share = Eased(std::clamp(gone / std::chrono::duration<double>(PanTime), 0.0, 1.0));
    return {Between(from.left, to.left, share), Between(from.top, to.top, share)};
}

void Screening::Show(const FilmFrame& frame) {
    TakeOverlaysAway();
    for (const FilmFrame::Run& run : frame.runs)
        std::copy(run.pixels.begin(), run.pixels.end(), field.Row(run.y) + run.x);
    field.MarkChanged(frame.changed);
    LayOver(frame);
    for (const SoundRequest& sound : frame.sounds)
        play(sound);
    for (const Happening& happening : frame.happenings)
        witness(happening);
}

void Screening::TakeOverlaysAway() {
    for (; !covered.empty(); covered.pop_back()) {
        const auto& [place, under] = covered.back();
        BitBlt(field, place.left, place.top, place.width, place.height, under, 0, 0, RasterOp::SRCCOPY);
    }
}

void Screening::LayOver(const FilmFrame& frame) {
    for (const FilmedOverlay& overlay : frame.overlays) {
        if (overlay.picture == nullptr) continue;
        const Picture& above = *overlay.picture;
        const Rectangle place = {overlay.left, overlay.top, above.Width(), above.Height()};
        Picture under(place.width, place.height);
        BitBlt(under, 0, 0, place.width, place.height, field, place.left, place.top, RasterOp::SRCCOPY);
        covered.push_back({place, std::move(under)});
        for (int y = 0; y < place.height; ++y)
            for (int x = 0; x < place.width; ++x)
                if (above.Pixel(x, y) >> 24 != 0)
                    field.SetPixel(place.left + x, place.top + y, above.Pixel(x, y));
    }
}
