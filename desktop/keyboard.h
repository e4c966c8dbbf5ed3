// The keyboard on a window: what its keys do is told by shell/window_keys; here they come from the toolkit's
// events, and the focus, the frame and the tip are the toolkit's own.
#pragma once

#include <vector>

#include <QObject>
#include <QTimer>

#include "desktop/control_view.h"
#include "shell/window_keys.h"

class FocusFrame;
class Tips;

class Keyboard : public QObject, private KeyedWindow {
  public:
    /// The keys of `ofWindow`, which shows `form` in its part `inside`; all must outlive it.
    Keyboard(QWidget& ofWindow, QWidget& inside, const Form& form, Tips& tips, const EventSink& to);

    /// Takes the keys that come while the view has the focus, too, and makes its shortcut.
    void Add(ControlView& view);

    /// The frame follows the records.
    void Sync();

    /// Gives the focus to the next stop, or the one before. False where the window has none.
    bool MoveFocus(bool forward) { return keys.MoveFocus(forward); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    const Control* Focused() const override;
    void Focus(const Control& stop) override;
    void OpenList(const Control& list) override;
    void PushDown(const Control& button) override;
    void PointerCame() override;

    QWidget& WidgetOf(const Control& stop) const;
    QRect Spot() const;
    void PutTipAway();
    void ShowTip();

    QWidget& window;
    Tips& tips;
    FocusFrame* frame;
    std::vector<ControlView*> views;
    QTimer tipPause;
    WindowKeys keys;
};
