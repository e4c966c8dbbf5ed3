// What the widgets of all kinds of controls have in common: each shows one record, is brought in line with it
// by Sync, and sends what a person does to it to the window's sink.
#pragma once

#include <QRect>
#include <QWidget>

#include "platform/controls.h"
#include "shell/control_events.h"

class ControlView {
  public:
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    /// Brings the widget in line with its record. What hasn't changed isn't painted again; what has is
    /// painted with the window's next paint.
    void Sync();

    /// As the left button of the mouse does in its middle.
    void PressInMiddle() const;

    const Control& Shown() const { return record; }
    QWidget& Widget() const { return widget; }

  protected:
    /// `by` is the widget itself; `to` must outlive it.
    ControlView(Control& shown, QWidget& by, const EventSink& to);

    /// The part that is the kind's own.
    virtual void SyncContent() = 0;

    /// Where the control lies in its parent, in the records' pixels.
    virtual QRect Extent() const;

    /// What the pointer reads on the control.
    virtual QString Tip() const;

    void Send(EventKind kind, int code) const;

  private:
    QRect Place() const;
    void SyncTip();
    void SyncEnabled();

    Control& record;
    QWidget& widget;
    const EventSink& sink;
    bool shownEnabled = true;
    const QString purpose;  // read where the record has no tip
    bool named = false;     // for screen readers, not before the widget is whole
};
