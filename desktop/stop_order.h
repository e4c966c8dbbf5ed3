// Where a window's stops are seen, and which one comes next: in the order in which the controls were put, or
// in a direction.
#pragma once

#include <vector>

#include "desktop/control_view.h"

/// The part of `inside` around all that is seen of the widget; empty where other widgets hide it wholly.
QRect SeenAt(const QWidget& widget, const QWidget& inside);

/// The views that the keyboard can stop at now. One that lies within a larger one comes right after it.
std::vector<ControlView*> StopsNow(const std::vector<ControlView*>& views, const QWidget& inside);

/// The next of `stops` from `from` to the left, the right, up or down, as `step` points; first among the
/// others of its control array. nullptr when there is none.
ControlView* StopTowards(const std::vector<ControlView*>& stops, const ControlView& from, QPoint step,
                         const QWidget& inside);
