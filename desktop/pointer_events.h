// The mouse on the windows' widgets as input events: presses, moves, releases and clicks on what the game
// itself draws, moves alone on the native controls.
#pragma once

#include <QMouseEvent>
#include <QObject>

#include "desktop/control_view.h"

/// Moves the pointer to `at`, in pixels of `widget`, as far as its control is concerned. A widget that leaves
/// the mouse to what lies beneath it leaves it this too.
void PointAt(QWidget& widget, QPointF at);

/// Presses `button` at `at` and lets it go.
void PressAt(QWidget& widget, QPointF at, Qt::MouseButton button);

/// What is sent: everything, and the widget itself sees nothing of it; or moves, and the widget goes on to
/// handle all as it does.
enum class Reports { Everything, Moves };

/// Sends what the mouse does on a widget; the widget owns it. A click with the left button sends MouseDown,
/// MouseUp and Click; the second press of a double click is a press like any other, unless the first came to
/// another widget: then it does nothing. Every place that is sent lies on the control.
class PointerEvents : public QObject {
  public:
    /// `ofControl` is what `target` shows; `to` must outlive it.
    PointerEvents(QWidget& target, const Control& ofControl, const EventSink& to,
                  Reports what = Reports::Everything);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool IsMeantHere(const QMouseEvent& press) const;
    void Send(EventKind kind, int code, const QMouseEvent& mouse) const;
    void Release(const QMouseEvent& mouse) const;

    QWidget& widget;
    const Control& control;
    const EventSink& sink;
    const Reports reports;
    Qt::MouseButtons meant;  // whose last presses were sent
};
