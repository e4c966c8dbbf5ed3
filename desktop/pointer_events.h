// The mouse on what the game itself draws: presses, moves, releases and clicks as input events.
#pragma once

#include <QMouseEvent>
#include <QObject>

#include "desktop/control_view.h"

/// Sends everything that the mouse does on a widget; the widget owns it. A click with the left button sends
/// MouseDown, MouseUp and Click; the second press of a double click is a press like any other.
class PointerEvents : public QObject {
  public:
    /// `ofControl` is what `target` shows; `to` must outlive it.
    PointerEvents(QWidget& target, const Control& ofControl, const EventSink& to);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Send(EventKind kind, int code, const QMouseEvent& mouse) const;
    void Release(const QMouseEvent& mouse) const;

    QWidget& widget;
    const Control& control;
    const EventSink& sink;
};
