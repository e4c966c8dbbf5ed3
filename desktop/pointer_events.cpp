#include "desktop/pointer_events.h"

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

}  // namespace

PointerEvents::PointerEvents(QWidget& target, const Control& ofControl, const EventSink& to, Reports what)
    : QObject(&target), widget(target), control(ofControl), reports(what), pointer(ofControl, to) {
    widget.setMouseTracking(true);
    widget.installEventFilter(this);
}

bool PointerEvents::eventFilter(QObject* /*watched*/, QEvent* event) {
    const auto input = [this, event] { return InputOf(static_cast<const QMouseEvent&>(*event)); };
    const bool takes = reports == Reports::Everything;
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (!takes) return Strays(control, event->type() == QEvent::MouseButtonDblClick);
            pointer.Press(input());
            return true;
        case QEvent::MouseMove:
            pointer.Move(input());
            return takes;
        case QEvent::MouseButtonRelease:
            if (takes) pointer.Release(input());
            return takes;
        default:
            return false;
    }
}

PointerInput PointerEvents::InputOf(const QMouseEvent& mouse) const {
    const QPointF at = FromScreen(mouse.position());
    PointerInput input;
    input.at = {at.x(), at.y()};
    input.button = ButtonCode(mouse.button());
    input.held = ButtonCode(mouse.buttons());
    input.shift = ShiftState(mouse.modifiers());
    input.isSecond = mouse.type() == QEvent::MouseButtonDblClick;
    input.isSeen = widget.visibleRegion().contains(mouse.position().toPoint());
    return input;
}
