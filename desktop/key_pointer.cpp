#include "desktop/key_pointer.h"

#include <algorithm>

#include "desktop/scale.h"
#include "desktop/stop_order.h"
#include "desktop/stops.h"

namespace {

// The middle of the square that `place` lies in.
QPoint InSquare(QPoint place, int grid) {
    const auto middle = [grid](int at) { return at - at % grid + grid / 2; };
    return {middle(place.x()), middle(place.y())};
}

}  // namespace

bool KeyPointer::IsSeen(const ControlView& view) const {
    return !SeenAt(view.Widget(), inside).isEmpty();
}

bool KeyPointer::StandsOn(const ControlView& view) const {
    if (GridOf(view.Shown()) == 0) return IsSeen(view);
    const QRect seen = SeenAt(view.Widget(), inside);
    return places.contains(&view.Shown()) && seen.contains(OriginOf(view) + At(view).toPoint());
}

void KeyPointer::Begin(const ControlView& view) {
    const Control& control = view.Shown();
    const int grid = GridOf(control);
    if (grid == 0 || StandsOn(view)) return;
    Put(view, InSquare(StartOn(control), grid));
    if (StandsOn(view)) return;
    const QPoint middle = SeenAt(view.Widget(), inside).center() - OriginOf(view);
    Put(view, InSquare(FromScreen(middle).toPoint(), grid));
}

void KeyPointer::Step(const ControlView& view, QPoint squares) {
    const Control& control = view.Shown();
    const int grid = GridOf(control);
    const QPoint wanted = places[&control] + squares * grid;
    Put(view, InSquare({std::clamp(wanted.x(), 0, control.Width - 1),
                        std::clamp(wanted.y(), 0, control.Height - 1)},
                       grid));
}

QRect KeyPointer::Spot(const ControlView& view) const {
    const QRect seen = SeenAt(view.Widget(), inside);
    return GridOf(view.Shown()) == 0 ? seen : Square(view) & seen;
}

QRect KeyPointer::Square(const ControlView& view) const {
    const auto place = places.find(&view.Shown());
    if (place == places.end()) return {};
    const int grid = GridOf(view.Shown());
    const QRect square(place->second - QPoint(grid, grid) / 2, QSize(grid, grid));
    return ToScreen(square).translated(OriginOf(view));
}

QPointF KeyPointer::At(const ControlView& view) const {
    const auto place = places.find(&view.Shown());
    if (place != places.end()) return QPointF(place->second) * ScaleFactor();
    return QRectF(Spot(view).translated(-OriginOf(view))).center();
}
