// A timer of a form: nothing is seen of it but its ticks, as events.
#pragma once

#include <QTimer>

#include "desktop/control_view.h"

class FormTimer {
  public:
    /// Both must outlive it.
    FormTimer(const Timer& shown, const EventSink& to);

    /// Ticks while the record is enabled, has an interval, and its form is shown; a change of these begins a
    /// new interval.
    void Sync();

  private:
    const Timer& record;
    int interval = 0;  // milliseconds; 0 while it stands
    QTimer ticks;
};
