#include "shell/stop_order.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "shell/seen_part.h"
#include "shell/stops.h"

namespace {

using Stops = std::vector<const Control*>;

struct Stop {
    const Control* control;
    Rectangle place;
    bool within = false;  // a larger one
};

bool CanBeUsed(const Control& control) {
    return IsStop(control) && (control.Enabled || IsDrawn(control));
}

bool LiesWithin(const Rectangle& place, const Rectangle& larger) {
    return larger.width * larger.height > place.width * place.height && Contains(larger, MiddleOf(place));
}

// Far to the side is worse than far ahead.
int Distance(PixelPoint offset, PixelPoint step) {
    constexpr int SideWeight = 3;
    const int ahead = offset.x * step.x + offset.y * step.y;
    const int aside = step.x != 0 ? offset.y : offset.x;
    return ahead <= 0 ? std::numeric_limits<int>::max() : ahead + SideWeight * std::abs(aside);
}

const Control* Nearest(const Stops& stops, const Control& from, PixelPoint step, bool siblings) {
    const PixelPoint start = MiddleOf(SeenPart(from));
    const Control* nearest = nullptr;
    int least = std::numeric_limits<int>::max();
    for (const Control* const stop : stops) {
        if (siblings && stop->name != from.name) continue;
        const int distance = Distance(MiddleOf(SeenPart(*stop)) - start, step);
        if (distance >= least) continue;
        least = distance;
        nearest = stop;
    }
    return nearest;
}

const Control* NextAfterLost(const Stops& stops, const Control& lost) {
    const std::vector<Control*>& all = lost.form->controls;
    for (auto at = std::find(all.begin(), all.end(), &lost); at != all.end(); ++at)
        if (std::find(stops.begin(), stops.end(), *at) != stops.end()) return *at;
    return stops.front();
}

}  // namespace

bool IsStopNow(const Control& control) {
    return CanBeUsed(control) && !SeenPart(control).Empty();
}

Stops StopsNow(const Form& form) {
    std::vector<Stop> stops;
    for (const Control* const control : form.controls) {
        if (!CanBeUsed(*control)) continue;
        const Rectangle place = SeenPart(*control);
        if (!place.Empty()) stops.push_back({control, place});
    }
    for (Stop& stop : stops)
        stop.within = std::any_of(stops.begin(), stops.end(),
                                  [&stop](const Stop& other) { return LiesWithin(stop.place, other.place); });
    Stops ordered;
    const auto put = [&ordered](const Control* control) {
        if (std::find(ordered.begin(), ordered.end(), control) == ordered.end()) ordered.push_back(control);
    };
    for (const Stop& stop : stops) {
        if (stop.within) continue;
        put(stop.control);
        for (const Stop& other : stops)
            if (LiesWithin(other.place, stop.place)) put(other.control);
    }
    return ordered;
}

const Control* NextStop(const Form& form, const Control* focused, bool forward) {
    const Stops stops = StopsNow(form);
    if (stops.empty()) return nullptr;
    const auto at = std::find(stops.begin(), stops.end(), focused);
    if (at == stops.end()) {
        if (!forward) return stops.back();
        return focused == nullptr ? stops.front() : NextAfterLost(stops, *focused);
    }
    if (forward) return at + 1 == stops.end() ? stops.front() : *(at + 1);
    return at == stops.begin() ? stops.back() : *(at - 1);
}

const Control* StopTowards(const Control& from, PixelPoint step) {
    const Stops stops = StopsNow(*from.form);
    const Control* const sibling = Nearest(stops, from, step, true);
    return sibling != nullptr ? sibling : Nearest(stops, from, step, false);
}
