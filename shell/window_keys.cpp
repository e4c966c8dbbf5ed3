#include "shell/window_keys.h"

#include <algorithm>
#include <utility>

#include "platform/keys.h"
#include "shell/pointer.h"
#include "shell/seen_part.h"
#include "shell/stop_order.h"
#include "shell/stops.h"

namespace {

constexpr int LongStep = 5;  // with Shift

// What a key does to the pointer: a step, or a press.
struct PointerKey {
    int code;
    PixelPoint step;
    int button;  // 0: none
};

constexpr PointerKey PointerKeys[] = {
    // clang-format off
    // key            step      button
    {'W',            { 0, -1}, 0},
    {'A',            {-1,  0}, 0},
    {'S',            { 0,  1}, 0},
    {'D',            { 1,  0}, 0},
    {InsertKey,      { 0,  0}, LeftButton},
    {DeleteKey,      { 0,  0}, RightButton},
    {Pad0Key,        { 0,  0}, LeftButton},  // the same keys on the number pad
    {PadDecimalKey,  { 0,  0}, RightButton},
    // clang-format on
};

constexpr std::uint64_t Instant = 2;  // milliseconds: no finger is so quick

// The last key that was let go, on any window.
struct LastRelease {
    const WindowKeys* heldOn;
    int code;
    std::uint64_t time;
} lastRelease = {};

const PointerKey* PointerKeyOf(int code) {
    for (const PointerKey& row : PointerKeys)
        if (row.code == code) return &row;
    return nullptr;
}

bool WithCommand(const KeyInput& key) {
    return key.isMetaHeld || (key.shift & (ControlHeld | AltHeld)) != 0;
}

bool IsScrollBar(const Control& control) {
    return control.kind == ControlKind::HScrollBar || control.kind == ControlKind::VScrollBar;
}

bool IsList(const Control& control) {
    return control.kind == ControlKind::Combo || control.kind == ControlKind::List;
}

}  // namespace

bool WindowKeys::Resumes(const KeyInput& press) {
    return press.code == lastRelease.code && press.time - lastRelease.time <= Instant;
}

void WindowKeys::Send(EventKind kind, int code, int shift) const {
    InputEvent event = EventOf(form, kind, code);
    event.shift = shift;
    sink(event);
}

// A press may let in events and so come back here before it has ended; the repeats of a key that is merely
// held would nest without end.
void WindowKeys::Press(const KeyInput& key) {
    const bool resumes = Resumes(key);
    const bool holds = resumes ? lastRelease.heldOn == this : held.contains(key.code);
    if ((resumes || key.isRepeat) && (!holds || working.contains(key.code))) {
        if (holds) held.insert(key.code);
        return;
    }
    held.insert(key.code);
    const auto press = working.insert(key.code);
    Work(key);
    working.erase(press);
}

// A held key only repeats its press.
void WindowKeys::Release(const KeyInput& key) {
    if (key.isRepeat) return;
    const bool wasHeld = held.erase(key.code) > 0;
    lastRelease = {wasHeld ? this : nullptr, key.code, key.time};
    Send(EventKind::KeyUp, key.code, key.shift);
}

// A window that was hidden needs no releases.
void WindowKeys::LetGo() {
    for (const int code : std::exchange(held, {}))
        if (form.Visible) Send(EventKind::KeyUp, code, 0);
}

// Whatever key brings the field back from behind the whole map does nothing else.
void WindowKeys::Work(const KeyInput& key) {
    const Control* const main = MainStop();
    const bool bringsBack = main != nullptr && SeenPart(*main).Empty();
    Send(EventKind::KeyDown, key.code, key.shift);
    if (bringsBack || WithCommand(key)) return;
    if (key.code != TabKey) return Drive(key);
    if (!MoveFocus((key.shift & ShiftHeld) == 0)) return;
    if (const Control* const at = window.Focused()) Point(*at);
}

bool WindowKeys::MoveFocus(bool forward) {
    const Control* const next = NextStop(form, window.Focused(), forward);
    if (next != nullptr) window.Focus(*next);
    return next != nullptr;
}

void WindowKeys::Drive(const KeyInput& key) {
    const PointerKey* const row = PointerKeyOf(key.code);
    if (row == nullptr) return;
    const bool presses = row->button != 0;
    const Control* at = window.Focused();
    const bool atRest = at == nullptr;
    if (atRest) at = MainStop();
    if (at == nullptr || (presses && key.isRepeat)) return;
    // A press is for a place that is framed; until then it only shows the frame. So does the first step on a
    // window without a field.
    const bool onlyShows = presses ? atRest || !pointer.StandsOn(*at) : atRest && GridOf(*at) == 0;
    if (atRest) window.Focus(*at);
    if (onlyShows) return Point(*at);
    if (presses) return Use(*at, row->button);
    Move(*at, row->step * ((key.shift & ShiftHeld) != 0 ? LongStep : 1));
}

void WindowKeys::Move(const Control& stop, PixelPoint step) {
    if (IsScrollBar(stop)) return Scroll(stop, step.x + step.y);
    if (GridOf(stop) != 0) return MoveWithin(stop, step);
    const Control* const next = StopTowards(stop, step);
    if (next == nullptr) return;
    window.Focus(*next);
    Point(*next);
}

// Beyond the edge of what is seen, the window's scroll bar comes along.
void WindowKeys::MoveWithin(const Control& stop, PixelPoint step) {
    pointer.Begin(stop);
    pointer.Step(stop, step);
    const auto* const bar = static_cast<const ScrollBar*>(BarAlong(step));
    const int by = step.x + step.y > 0 ? 1 : -1;
    for (int before = -1; bar != nullptr && !pointer.StandsOn(stop) && bar->Value != before;) {
        before = bar->Value;
        Scroll(*bar, by);
    }
    Point(stop);
}

void WindowKeys::Scroll(const Control& bar, int steps) {
    const auto& scroll = static_cast<const ScrollBar&>(bar);
    const int value =
        std::clamp(scroll.Value + steps * scroll.SmallChange, scroll.Min, std::max(scroll.Min, scroll.Max));
    if (value != scroll.Value) sink(EventOf(bar, EventKind::Change, value));
}

void WindowKeys::Use(const Control& stop, int button) {
    if (IsDrawn(stop))
        PressAt(stop, pointer.At(stop), button, sink);
    else if (IsList(stop) && button == LeftButton)
        window.OpenList(stop);
    else if (stop.kind == ControlKind::Button && button == LeftButton)
        sink(EventOf(stop, EventKind::Click, 0));
    const std::optional<PixelPoint> shown = ShownBy(stop);
    if (shown && MainStop() != nullptr) pointer.Put(*MainStop(), *shown);
}

// What this has brought into view is aimed at next.
void WindowKeys::UseAtOnce(const Control& stop) {
    if (!IsStopNow(stop)) return;
    if (stop.kind == ControlKind::Button) return window.PushDown(stop);
    Use(stop, LeftButton);
    const Control* const main = MainStop();
    if (main == nullptr || !ShownBy(stop)) return;
    window.Focus(*main);
    Point(*main);
}

// What follows the mouse follows the pointer.
void WindowKeys::Point(const Control& stop) {
    pointer.Begin(stop);
    PointAt(stop, pointer.At(stop), sink);
    window.PointerCame();
}

Rectangle WindowKeys::Spot() const {
    const Control* const at = window.Focused();
    return at == nullptr ? Rectangle() : pointer.Spot(*at);
}

const Control* WindowKeys::MainStop() const {
    const auto found = std::find_if(form.controls.begin(), form.controls.end(), [](const Control* control) {
        return IsMainStop(*control) && IsStop(*control);
    });
    return found == form.controls.end() ? nullptr : *found;
}

const Control* WindowKeys::BarAlong(PixelPoint step) const {
    const ControlKind kind = step.x != 0 ? ControlKind::HScrollBar : ControlKind::VScrollBar;
    const auto found = std::find_if(form.controls.begin(), form.controls.end(),
                                    [kind](const Control* control) { return control->kind == kind; });
    return found == form.controls.end() ? nullptr : *found;
}
