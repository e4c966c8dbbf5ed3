// The keyboard on a window. Every key is the game's; besides, Tab moves the focus from stop to stop, and keys
// that mean nothing to the game move a pointer of their own and press there: on the field from cell to cell,
// on a small map in steps, elsewhere from stop to stop. The press goes the mouse's way. A held key repeats
// only in the window in which it was pressed, and each time only when what it did before has ended.
#pragma once

#include <set>
#include <vector>

#include <QKeyEvent>
#include <QObject>
#include <QTimer>

#include "desktop/key_pointer.h"

class FocusFrame;
class ScrollBarWidget;
class Tips;

class Keyboard : public QObject {
  public:
    /// The keys of `ofWindow`, which shows `form` in its part `inside`; all must outlive it.
    Keyboard(QWidget& ofWindow, QWidget& inside, const Form& form, Tips& tips, const EventSink& to);

    /// Takes the keys that come while the view has the focus, too, and makes its shortcut.
    void Add(ControlView& view);

    /// The frame follows the records.
    void Sync();

    /// Gives the focus to the next stop, or the one before. False where the window has none.
    bool MoveFocus(bool forward);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Press(const QKeyEvent& key);
    void Work(const QKeyEvent& key);
    void Release(const QKeyEvent& key);
    void LetGo();
    void Drive(const QKeyEvent& key);
    void Move(ControlView& view, QPoint step);
    void MoveWithin(ControlView& view, QPoint step);
    void Use(ControlView& view, Qt::MouseButton button);
    void UseAtOnce(ControlView& view);
    void Focus(ControlView& view);
    void Point(ControlView& view);
    void Send(EventKind kind, int code, int shift) const;
    void ShowTip();

    ControlView* Focused() const;
    ControlView* MainStop() const;
    ScrollBarWidget* BarAlong(QPoint step) const;
    std::size_t NextAfterLost(const std::vector<ControlView*>& stops) const;

    QWidget& window;
    QWidget& inside;
    const Form& form;
    Tips& tips;
    const EventSink& sink;
    KeyPointer pointer;
    FocusFrame* frame;
    std::vector<ControlView*> views;  // in the order of the form's controls
    std::set<int> held;               // codes of the keys that were pressed here and not let go
    std::multiset<int> working;       // of those whose presses have not ended
    QTimer tipPause;
};
