// The mouse on the windows' widgets as input events: presses, moves, releases and clicks on what the game
// itself draws, moves alone on the native controls.
#pragma once

#include <QMouseEvent>
#include <QWidget>

#include "shell/pointer.h"

/// What is sent: everything, and the widget itself sees nothing of it; or moves, and the widget goes on to
/// handle all as it does, but for a press that strays.
enum class Reports { Everything, Moves };

/// Sends what the mouse does on a widget, by the rules of shell/pointer; the widget owns it.
class PointerEvents : public QObject {
  public:
    /// `ofControl` is what `target` shows; `to` must outlive it.
    PointerEvents(QWidget& target, const Control& ofControl, const EventSink& to,
                  Reports what = Reports::Everything);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    PointerInput InputOf(const QMouseEvent& mouse) const;

    QWidget& widget;
    const Control& control;
    const Reports reports;
    ControlPointer pointer;
};
