#include "desktop/pointer_events.h"

#include <algorithm>

#include <QCoreApplication>

#include "desktop/key_codes.h"
#include "desktop/scale.h"
#include "platform/keys.h"

namespace {

int ButtonCode(Qt::MouseButtons buttons) {
    int code = 0;
    if (buttons & Qt::LeftButton) code += LeftButton;
    if (buttons & Qt::RightButton) code += RightButton;
    if (buttons & Qt::MiddleButton) code += MiddleButton;
    return code;
}

// To the widget that a press at `at` is for.
void SendMouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
               Qt::MouseButtons held) {
    QWidget* target = &widget;
    for (; target->testAttribute(Qt::WA_TransparentForMouseEvents); target = target->parentWidget())
        at = target->mapToParent(at);
    QMouseEvent event(type, at, target->mapToGlobal(at), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

// What was pressed last, on any window.
const QObject* pressed = nullptr;

// One of the pixels along a side of a control.
float PixelWithin(double at, int length) {
    return static_cast<float>(std::clamp(at, 0.0, static_cast<double>(std::max(length - 1, 0))));
}

}  // namespace

void PointAt(QWidget& widget, QPointF at) {
    SendMouse(widget, QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton);
}

void PressAt(QWidget& widget, QPointF at, Qt::MouseButton button) {
    SendMouse(widget, QEvent::MouseButtonPress, at, button, button);
    SendMouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
}

PointerEvents::PointerEvents(QWidget& target, const Control& ofControl, const EventSink& to, Reports what)
    : QObject(&target), widget(target), control(ofControl), sink(to), reports(what) {
    widget.setMouseTracking(true);
    widget.installEventFilter(this);
}

bool PointerEvents::eventFilter(QObject* watched, QEvent* event) {
    const auto mouse = [event]() -> const QMouseEvent& { return static_cast<const QMouseEvent&>(*event); };
    // What a first press brings under the pointer must not take the second one of a double click.
    const bool strays = event->type() == QEvent::MouseButtonDblClick && pressed != watched;
    if (event->type() == QEvent::MouseButtonPress) pressed = watched;
    if (reports == Reports::Moves && event->type() != QEvent::MouseMove) return strays;
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            meant.setFlag(mouse().button(), !strays && IsMeantHere(mouse()));
            if (meant.testFlag(mouse().button()))
                Send(EventKind::MouseDown, ButtonCode(mouse().button()), mouse());
            return true;
        case QEvent::MouseMove:
            Send(EventKind::MouseMove, ButtonCode(mouse().buttons()), mouse());
            return reports == Reports::Everything;
        case QEvent::MouseButtonRelease:
            if (meant.testFlag(mouse().button())) Release(mouse());
            meant.setFlag(mouse().button(), false);
            return true;
        default:
            return false;
    }
}

// While one button is held, a widget gets the others' presses as well, wherever the pointer has been dragged.
bool PointerEvents::IsMeantHere(const QMouseEvent& press) const {
    return press.buttons() == press.button() || widget.visibleRegion().contains(press.position().toPoint());
}

void PointerEvents::Send(EventKind kind, int code, const QMouseEvent& mouse) const {
    InputEvent event = EventOf(control, kind, code);
    event.shift = ShiftState(mouse.modifiers());
    const QPointF at = FromScreen(mouse.position());
    // A drag that has left the control goes along its edge.
    event.x = PixelWithin(at.x(), control.Width);
    event.y = PixelWithin(at.y(), control.Height);
    sink(event);
}

void PointerEvents::Release(const QMouseEvent& mouse) const {
    Send(EventKind::MouseUp, ButtonCode(mouse.button()), mouse);
    const bool inside = widget.rect().contains(mouse.position().toPoint());
    if (mouse.button() == Qt::LeftButton && inside) Send(EventKind::Click, ButtonCode(mouse.button()), mouse);
}
