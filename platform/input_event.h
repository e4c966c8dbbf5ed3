// What a person does to a window, as plain data. Every event enters the game through Dispatch.
#pragma once

#include <string>
#include <string_view>

enum class EventKind {
    KeyDown,
    KeyUp,
    MouseDown,
    MouseMove,
    MouseUp,
    Click,         // a button, menu entry or image was clicked
    Choose,        // an entry of a list was chosen: `code` is its index
    Scroll,        // a scroll bar's thumb moves: `code` is the value under it
    Change,        // a scroll bar came to rest: `code` is its value
    CloseRequest,  // the window's close button
    Timer,         // a timer's tick
};

struct InputEvent {
    EventKind kind = EventKind::KeyDown;
    std::string control;  // "frmField", "frmField.area", "frmField.imgStance"
    int index = -1;       // place in a control array, -1 for a control on its own
    int code = 0;  // key or mouse button, as platform/keys has them, in a move the buttons held; index; value
    int shift = 0;  // modifiers held
    float x = 0;    // pixels within the control
    float y = 0;

    bool operator==(const InputEvent&) const = default;
};

/// Whether a person does something by the event, and isn't merely looking.
bool IsDeed(const InputEvent& event);

/// One line of text, as "MouseDown frmField.area -1 1 0 150.5 90".
std::string EventText(const InputEvent& event);

/// The event that EventText made into `line`. Throws RunTimeError (BadData) for anything else.
InputEvent EventFromText(std::string_view line);
