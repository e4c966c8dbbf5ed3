#include "desktop/keyboard.h"

#include <algorithm>
#include <utility>

#include <QAbstractButton>
#include <QShortcut>
#include <QStyle>

#include "desktop/control_widgets.h"
#include "desktop/focus_frame.h"
#include "desktop/key_codes.h"
#include "desktop/pointer_events.h"
#include "desktop/scale.h"
#include "desktop/stop_order.h"
#include "desktop/stops.h"
#include "desktop/tips.h"
#include "platform/keys.h"

namespace {

constexpr int LongStep = 5;  // with Shift

// What a key does to the pointer: a step, or a press.
struct PointerKey {
    int code;
    QPoint step;
    Qt::MouseButton button;
};

constexpr PointerKey PointerKeys[] = {
    // clang-format off
    // key            step      button
    {'W',            { 0, -1}, Qt::NoButton},
    {'A',            {-1,  0}, Qt::NoButton},
    {'S',            { 0,  1}, Qt::NoButton},
    {'D',            { 1,  0}, Qt::NoButton},
    {InsertKey,      { 0,  0}, Qt::LeftButton},
    {DeleteKey,      { 0,  0}, Qt::RightButton},
    {Pad0Key,        { 0,  0}, Qt::LeftButton},  // the same keys on the number pad
    {PadDecimalKey,  { 0,  0}, Qt::RightButton},
    // clang-format on
};

bool WithCommand(const QKeyEvent& key) {
    return (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

// A window system may tell a repeat as a release and a press at one time, where no finger is so quick.
constexpr quint64 Instant = 2;  // milliseconds

// The last key that was let go, on any window.
struct LastRelease {
    const Keyboard* heldOn;
    int code;
    quint64 time;
} lastRelease = {};

bool Resumes(const QKeyEvent& press) {
    return KeyCode(press) == lastRelease.code && press.timestamp() - lastRelease.time <= Instant;
}

const PointerKey* PointerKeyOf(const QKeyEvent& key) {
    const int code = KeyCode(key);
    for (const PointerKey& row : PointerKeys)
        if (row.code == code) return &row;
    return nullptr;
}

}  // namespace

Keyboard::Keyboard(QWidget& ofWindow, QWidget& insideIt, const Form& ofForm, Tips& ofTips,
                   const EventSink& to)
    : window(ofWindow),
      inside(insideIt),
      form(ofForm),
      tips(ofTips),
      sink(to),
      pointer(insideIt),
      frame(new FocusFrame(inside)) {
    window.installEventFilter(this);
    window.setFocus();  // until Tab or the pointer's keys take it to a stop
    tipPause.setSingleShot(true);
    tipPause.setInterval(window.style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay));
    tipPause.callOnTimeout(this, [this] { ShowTip(); });
}

void Keyboard::Add(ControlView& view) {
    views.push_back(&view);
    QWidget& widget = view.Widget();
    widget.installEventFilter(this);
    const char letter = ShortcutLetter(view.Shown());
    if (letter == '\0') return;
    auto* const shortcut = new QShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(letter)), &window);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, [this, &view] { UseAtOnce(view); });
}

void Keyboard::Sync() {
    const ControlView* const at = Focused();
    frame->StandAround(at == nullptr ? QRect() : pointer.Spot(*at));
}

bool Keyboard::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // Nor does it repeat a shortcut.
            event->setAccepted(Resumes(static_cast<const QKeyEvent&>(*event)));
            return event->isAccepted();
        case QEvent::KeyPress:
            Press(static_cast<const QKeyEvent&>(*event));
            return true;
        case QEvent::KeyRelease:
            Release(static_cast<const QKeyEvent&>(*event));
            return true;
        case QEvent::WindowDeactivate:
            if (watched == &window) LetGo();
            return false;
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            Sync();
            return false;
        case QEvent::MouseButtonPress:
            // A person's own, who has taken up the mouse.
            if (event->spontaneous()) window.setFocus();
            return false;
        default:
            return false;
    }
}

void Keyboard::Send(EventKind kind, int code, int shift) const {
    InputEvent event = EventOf(form, kind, code);
    event.shift = shift;
    sink(event);
}

// A press may let in events and so come back here before it has ended; the repeats of a key that is merely
// held would nest without end.
void Keyboard::Press(const QKeyEvent& key) {
    const int code = KeyCode(key);
    const bool holds = Resumes(key) ? lastRelease.heldOn == this : held.contains(code);
    if ((Resumes(key) || key.isAutoRepeat()) && (!holds || working.contains(code))) {
        if (holds) held.insert(code);
        return;
    }
    held.insert(code);
    const auto press = working.insert(code);
    Work(key);
    working.erase(press);
}

// A held key only repeats its press.
void Keyboard::Release(const QKeyEvent& key) {
    if (key.isAutoRepeat()) return;
    const bool wasHeld = held.erase(KeyCode(key)) > 0;
    lastRelease = {wasHeld ? this : nullptr, KeyCode(key), key.timestamp()};
    Send(EventKind::KeyUp, KeyCode(key), ShiftState(key.modifiers()));
}

// Another window gets the releases. One that was hidden needs none.
void Keyboard::LetGo() {
    for (const int code : std::exchange(held, {}))
        if (form.Visible) Send(EventKind::KeyUp, code, 0);
}

// Whatever key brings the field back from behind the whole map does nothing else.
void Keyboard::Work(const QKeyEvent& key) {
    tipPause.stop();
    tips.PutAway();
    const ControlView* const main = MainStop();
    const bool bringsBack = main != nullptr && !pointer.IsSeen(*main);
    Send(EventKind::KeyDown, KeyCode(key), ShiftState(key.modifiers()));
    if (bringsBack || WithCommand(key)) return;
    if (KeyCode(key) != TabKey) return Drive(key);
    const bool forward = key.key() == Qt::Key_Tab && !(key.modifiers() & Qt::ShiftModifier);
    if (!MoveFocus(forward)) return;
    if (ControlView* const at = Focused()) Point(*at);
}

bool Keyboard::MoveFocus(bool forward) {
    const std::vector<ControlView*> stops = StopsNow(views, inside);
    if (stops.empty()) return false;
    const std::size_t count = stops.size();
    const auto focused = std::find_if(stops.begin(), stops.end(), [this](const ControlView* view) {
        return &view->Widget() == window.focusWidget();
    });
    std::size_t next = 0;
    if (focused != stops.end())
        next = (static_cast<std::size_t>(focused - stops.begin()) + (forward ? 1 : count - 1)) % count;
    else
        next = forward ? NextAfterLost(stops) : count - 1;
    Focus(*stops[next]);
    return true;
}

// A stop that was hidden or switched off under the focus hands it to the next that the form has.
std::size_t Keyboard::NextAfterLost(const std::vector<ControlView*>& stops) const {
    bool passed = false;
    for (const ControlView* view : views) {
        const auto found = std::find(stops.begin(), stops.end(), view);
        if (passed && found != stops.end()) return static_cast<std::size_t>(found - stops.begin());
        passed = passed || &view->Widget() == window.focusWidget();
    }
    return 0;
}

void Keyboard::Drive(const QKeyEvent& key) {
    const PointerKey* const row = PointerKeyOf(key);
    if (row == nullptr) return;
    const bool presses = row->button != Qt::NoButton;
    ControlView* at = Focused();
    const bool atRest = at == nullptr;
    if (atRest) at = MainStop();
    if (at == nullptr || (presses && key.isAutoRepeat())) return;
    // A press is for a place that is framed; until then it only shows the frame. So does the first step on a
    // window without a field.
    const bool onlyShows = presses ? atRest || !pointer.StandsOn(*at) : atRest && GridOf(at->Shown()) == 0;
    if (atRest) Focus(*at);
    if (onlyShows) return Point(*at);
    if (presses) return Use(*at, row->button);
    Move(*at, row->step * ((key.modifiers() & Qt::ShiftModifier) ? LongStep : 1));
}

void Keyboard::Move(ControlView& view, QPoint step) {
    if (auto* const bar = dynamic_cast<ScrollBarWidget*>(&view))
        return bar->setValue(bar->value() + (step.x() + step.y()) * bar->singleStep());
    if (GridOf(view.Shown()) != 0) return MoveWithin(view, step);
    ControlView* const next = StopTowards(StopsNow(views, inside), view, step, inside);
    if (next == nullptr) return;
    Focus(*next);
    Point(*next);
}

// Beyond the edge of what is seen, the window's scroll bar comes along.
void Keyboard::MoveWithin(ControlView& view, QPoint step) {
    pointer.Begin(view);
    pointer.Step(view, step);
    ScrollBarWidget* const bar = BarAlong(step);
    const int by = step.x() + step.y() > 0 ? 1 : -1;
    for (int before = -1; bar != nullptr && !pointer.StandsOn(view) && bar->value() != before;) {
        before = bar->value();
        bar->setValue(before + by * bar->singleStep());
    }
    Point(view);
}

void Keyboard::Use(ControlView& view, Qt::MouseButton button) {
    const bool left = button == Qt::LeftButton;
    if (IsDrawn(view.Shown()))
        PressAt(view.Widget(), pointer.At(view), button);
    else if (auto* const list = qobject_cast<QComboBox*>(&view.Widget()); list != nullptr && left)
        list->showPopup();
    else if (auto* const plate = qobject_cast<QAbstractButton*>(&view.Widget()); plate != nullptr && left)
        plate->click();
    const std::optional<QPoint> shown = ShownBy(view.Shown());
    if (shown && MainStop() != nullptr) pointer.Put(*MainStop(), *shown);
}

// By its shortcut, wherever the focus is. What this has brought into view is aimed at next.
void Keyboard::UseAtOnce(ControlView& view) {
    if (!pointer.IsSeen(view) || !view.Widget().isEnabled()) return;
    // A button is seen going down first.
    if (auto* const plate = qobject_cast<QAbstractButton*>(&view.Widget())) return plate->animateClick();
    Use(view, Qt::LeftButton);
    ControlView* const main = MainStop();
    if (main == nullptr || !ShownBy(view.Shown())) return;
    Focus(*main);
    Point(*main);
}

void Keyboard::Focus(ControlView& view) {
    view.Widget().setFocus(Qt::TabFocusReason);
}

// What follows the mouse follows the pointer.
void Keyboard::Point(ControlView& view) {
    pointer.Begin(view);
    PointAt(view.Widget(), pointer.At(view));
    Sync();
    tipPause.start();
}

void Keyboard::ShowTip() {
    const ControlView* const at = Focused();
    if (at != nullptr && pointer.StandsOn(*at)) tips.ShowBeside(at->Widget(), pointer.Spot(*at));
}

ControlView* Keyboard::Focused() const {
    for (ControlView* const view : views)
        if (&view->Widget() == window.focusWidget()) return view;
    return nullptr;
}

ControlView* Keyboard::MainStop() const {
    for (ControlView* const view : views)
        if (IsMainStop(view->Shown())) return view;
    return nullptr;
}

ScrollBarWidget* Keyboard::BarAlong(QPoint step) const {
    const auto direction = step.x() != 0 ? Qt::Horizontal : Qt::Vertical;
    for (ControlView* const view : views)
        if (auto* const bar = dynamic_cast<ScrollBarWidget*>(view);
            bar != nullptr && bar->orientation() == direction)
            return bar;
    return nullptr;
}
