// What the widgets of all kinds of controls have in common: each shows one record, is brought in line with it
// by Sync, and sends what a person does to it to the window's sink.
#pragma once

#include <functional>
#include <string>

#include <QRect>
#include <QWidget>

#include "platform/controls.h"
#include "platform/input_event.h"

/// Takes the events of a window's widgets.
using EventSink = std::function<void(const InputEvent&)>;

class ControlView {
  public:
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    /// Brings the widget in line with its record. What hasn't changed isn't painted again; what has is
    /// painted with the window's next paint.
    void Sync();

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
    const QString helpTip;  // read where the record has no tip
    bool named = false;     // for screen readers, not before the widget is whole
};

/// An event of `control`, named as Dispatch expects it, as "frmField.imgStance".
InputEvent EventOf(const Control& control, EventKind kind, int code);

/// What a screen reader says for a control: what it is and its tip, as "Pocket 3: Smoke grenade"; or its
/// caption, its tip alone, or its name in words, as "Enemy Count".
QString SpokenName(const Control& control);
