// The keyboard on a window. Every key is the game's; besides, Tab moves the focus from stop to stop, and keys
// that mean nothing to the game move a pointer of their own and press there: on the field from cell to cell,
// on a small map in steps, elsewhere from stop to stop. The press goes the mouse's way. A held key repeats
// only in the window in which it was pressed, and each time only when what it did before has ended.
#pragma once

#include <set>

#include "shell/control_events.h"
#include "shell/key_input.h"
#include "shell/key_pointer.h"

/// What a front end's window does for its keyboard.
class KeyedWindow {
  public:
    KeyedWindow() = default;
    virtual ~KeyedWindow() = default;
    KeyedWindow(const KeyedWindow&) = delete;
    KeyedWindow& operator=(const KeyedWindow&) = delete;

    /// The stop that has the focus, also one that has just been hidden or switched off; nullptr while none
    /// has it.
    virtual const Control* Focused() const = 0;

    virtual void Focus(const Control& stop) = 0;

    /// Shows the entries of a list to be chosen from.
    virtual void OpenList(const Control& list) = 0;

    /// Clicks a button such that it is seen going down first.
    virtual void PushDown(const Control& button) = 0;

    /// The pointer came to a place of the focused stop: the frame belongs around WindowKeys::Spot, and after
    /// a moment the stop's tip beside it.
    virtual void PointerCame() = 0;
};

class WindowKeys {
  public:
    /// The keys of the window that shows `ofForm`; all must outlive it.
    WindowKeys(const Form& ofForm, KeyedWindow& onWindow, const EventSink& to)
        : form(ofForm), window(onWindow), sink(to) {}

    void Press(const KeyInput& key);
    void Release(const KeyInput& key);

    /// The keys that are down here are let go: another window gets their releases.
    void LetGo();

    /// Whether the press only goes on with a key that was held before: a window system may report a repeat as
    /// a release and a press at one time.
    static bool Resumes(const KeyInput& press);

    /// Gives the focus to the next stop, or the one before. False where the window has none.
    bool MoveFocus(bool forward);

    /// Uses a stop by its shortcut, wherever the focus is.
    void UseAtOnce(const Control& stop);

    /// Where the frame stands, in pixels of the form; empty for nowhere.
    Rectangle Spot() const;

  private:
    void Work(const KeyInput& key);
    void Drive(const KeyInput& key);
    void Move(const Control& stop, PixelPoint step);
    void MoveWithin(const Control& stop, PixelPoint step);
    void Use(const Control& stop, int button);
    void Point(const Control& stop);
    void Scroll(const Control& bar, int steps);
    void Send(EventKind kind, int code, int shift) const;
    const Control* MainStop() const;
    const Control* BarAlong(PixelPoint step) const;

    const Form& form;
    KeyedWindow& window;
    const EventSink& sink;
    KeyPointer pointer;
    std::set<int> held;          // codes of the keys that were pressed here and not let go
    std::multiset<int> working;  // of those whose presses have not ended
};
