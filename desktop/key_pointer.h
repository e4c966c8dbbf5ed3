// The pointer that keys move: where it stands on a window's stops. On most it stands in the middle; on the
// field and the small map it moves from square to square and stays where it was left.
#pragma once

#include <map>

#include <QPointF>

#include "desktop/control_view.h"

class KeyPointer {
  public:
    /// On the stops in `client`, which must outlive it.
    explicit KeyPointer(const QWidget& client) : inside(client) {}

    /// Whether the view can be seen at all.
    bool IsSeen(const ControlView& view) const;

    /// Whether the pointer has a place on the view, and it is seen.
    bool StandsOn(const ControlView& view) const;

    /// Gives it a place that is seen, where it has none: at the current soldier, or in the middle.
    void Begin(const ControlView& view);

    /// Puts it at a place of a view with a grid, in the record's pixels.
    void Put(const ControlView& view, QPoint place) { places[&view.Shown()] = place; }

    /// Moves it by as many squares, as far as the control goes; it may leave what is seen.
    void Step(const ControlView& view, QPoint squares);

    /// What it stands on, in the pixels of the inside: the whole stop or a square; empty if that isn't seen.
    QRect Spot(const ControlView& view) const;

    /// Its place in pixels of the view's widget.
    QPointF At(const ControlView& view) const;

  private:
    QPoint OriginOf(const ControlView& view) const { return view.Widget().mapTo(&inside, QPoint(0, 0)); }
    QRect Square(const ControlView& view) const;

    const QWidget& inside;
    std::map<const Control*, QPoint> places;  // in their pixels
};
