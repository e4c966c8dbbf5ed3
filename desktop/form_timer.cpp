#include "desktop/form_timer.h"

FormTimer::FormTimer(const Timer& shown, const EventSink& to) : record(shown) {
    ticks.callOnTimeout([this, &to] { to(EventOf(record, EventKind::Timer, 0)); });
}

void FormTimer::Sync() {
    const bool runs = record.Enabled && record.Interval > 0 && record.form->Visible;
    const int wanted = runs ? record.Interval : 0;
    if (wanted == interval) return;
    interval = wanted;
    if (runs)
        ticks.start(interval);
    else
        ticks.stop();
}
