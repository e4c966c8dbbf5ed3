// The pointer that keys move: where it stands on a window's stops. On most it stands in the middle; on the
// field and the small map it moves from square to square and stays where it was left.
#pragma once

#include <map>

#include "platform/controls.h"
#include "shell/pixels.h"

class KeyPointer {
  public:
    /// Whether the pointer has a place on the stop, and it is seen.
    bool StandsOn(const Control& stop) const;

    /// Gives it a place that is seen, where it has none: at the current soldier, or in the middle.
    void Begin(const Control& stop);

    /// Puts it at a place of a stop with a grid, in the stop's pixels.
    void Put(const Control& stop, PixelPoint place) { places[&stop] = place; }

    /// Moves it by as many squares, as far as the control goes; it may leave what is seen.
    void Step(const Control& stop, PixelPoint squares);

    /// What it stands on, in pixels of the form: the whole stop or a square; empty if that isn't seen.
    Rectangle Spot(const Control& stop) const;

    /// Its place, in pixels of the stop.
    FinePoint At(const Control& stop) const;

  private:
    std::map<const Control*, PixelPoint> places;  // in their pixels
};
