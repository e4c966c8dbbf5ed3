#include "desktop/stop_order.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

struct Stop {
    ControlView* view;
    QRect place;
    bool within = false;  // a larger one
};

bool LiesWithin(const QRect& place, const QRect& larger) {
    return larger.width() * larger.height() > place.width() * place.height() &&
           larger.contains(place.center());
}

// Far to the side is worse than far ahead.
int Distance(QPoint offset, QPoint step) {
    constexpr int SideWeight = 3;
    const int ahead = QPoint::dotProduct(offset, step);
    const int aside = step.x() != 0 ? offset.y() : offset.x();
    return ahead <= 0 ? std::numeric_limits<int>::max() : ahead + SideWeight * std::abs(aside);
}

ControlView* Nearest(const std::vector<ControlView*>& stops, const ControlView& from, QPoint step,
                     const QWidget& inside, bool siblings) {
    const QPoint start = SeenAt(from.Widget(), inside).center();
    ControlView* nearest = nullptr;
    int least = std::numeric_limits<int>::max();
    for (ControlView* const view : stops) {
        if (siblings && view->Shown().name != from.Shown().name) continue;
        const int distance = Distance(SeenAt(view->Widget(), inside).center() - start, step);
        if (distance >= least) continue;
        least = distance;
        nearest = view;
    }
    return nearest;
}

}  // namespace

QRect SeenAt(const QWidget& widget, const QWidget& inside) {
    const QRect seen = widget.visibleRegion().boundingRect();
    return seen.isEmpty() ? QRect() : seen.translated(widget.mapTo(&inside, QPoint(0, 0)));
}

std::vector<ControlView*> StopsNow(const std::vector<ControlView*>& views, const QWidget& inside) {
    std::vector<Stop> stops;
    for (ControlView* const view : views) {
        const QWidget& widget = view->Widget();
        if (widget.focusPolicy() == Qt::NoFocus || !widget.isEnabled()) continue;
        const QRect place = SeenAt(widget, inside);
        if (!place.isEmpty()) stops.push_back({view, place});
    }
    for (Stop& stop : stops)
        stop.within = std::any_of(stops.begin(), stops.end(),
                                  [&stop](const Stop& other) { return LiesWithin(stop.place, other.place); });
    std::vector<ControlView*> ordered;
    const auto put = [&ordered](ControlView* view) {
        if (std::find(ordered.begin(), ordered.end(), view) == ordered.end()) ordered.push_back(view);
    };
    for (const Stop& stop : stops) {
        if (stop.within) continue;
        put(stop.view);
        for (const Stop& other : stops)
            if (LiesWithin(other.place, stop.place)) put(other.view);
    }
    return ordered;
}

ControlView* StopTowards(const std::vector<ControlView*>& stops, const ControlView& from, QPoint step,
                         const QWidget& inside) {
    ControlView* const sibling = Nearest(stops, from, step, inside, true);
    return sibling != nullptr ? sibling : Nearest(stops, from, step, inside, false);
}
