// The mouse, or what a front end has in its place, on a control as input events. A click with the left button
// sends MouseDown, MouseUp and Click; the second press of a double click is a press like any other, unless
// the first came to another control: then it does nothing. Every place that is sent lies on the control.
#pragma once

#include "shell/control_events.h"
#include "shell/pixels.h"

/// One thing that the pointer does. Buttons and modifiers have the codes of platform/keys.
struct PointerInput {
    FinePoint at;           // in pixels of the control; a drag may leave it
    int button = 0;         // that goes down or up; 0 for one that has no code
    int held = 0;           // buttons that are down, added up; in a press with the one that goes down
    int shift = 0;          // modifiers held
    bool isSecond = false;  // press of a double click
    bool isSeen = true;     // the control is what is seen at the place
};

/// Notes that `control` was pressed, whatever its kind. Whether that must do nothing: it is the second press
/// of a double click whose first one came to another control and has brought this one under the pointer.
bool Strays(const Control& control, bool isSecond);

/// The pointer on one control. A control that is switched off leaves the mouse to the one it lies in.
class ControlPointer {
  public:
    /// Both must outlive it.
    ControlPointer(const Control& ofControl, const EventSink& to) : control(ofControl), sink(to) {}

    void Press(const PointerInput& input);
    void Move(const PointerInput& input) const;
    void Release(const PointerInput& input);

  private:
    void Send(EventKind kind, int code, const PointerInput& input) const;

    const Control& control;
    const EventSink& sink;
    unsigned meant = 0;  // a bit for each button whose last press was sent
};

/// Moves the pointer to a place of `control`, as far as the game is concerned; one that is switched off
/// leaves it to the control it lies in.
void PointAt(const Control& control, FinePoint at, const EventSink& sink);

/// Presses `button` there and lets it go.
void PressAt(const Control& control, FinePoint at, int button, const EventSink& sink);
