#include "desktop/keyboard.h"

#include <algorithm>

#include <QAbstractButton>
#include <QComboBox>
#include <QKeyEvent>
#include <QShortcut>
#include <QStyle>

#include "desktop/focus_frame.h"
#include "desktop/key_codes.h"
#include "desktop/scale.h"
#include "desktop/tips.h"
#include "shell/stops.h"

Keyboard::Keyboard(QWidget& ofWindow, QWidget& inside, const Form& form, Tips& ofTips, const EventSink& to)
    : window(ofWindow), tips(ofTips), frame(new FocusFrame(inside)), keys(form, *this, to) {
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
    connect(shortcut, &QShortcut::activated, this, [this, &view] { keys.UseAtOnce(view.Shown()); });
}

void Keyboard::Sync() {
    frame->StandAround(Spot());
}

bool Keyboard::eventFilter(QObject* watched, QEvent* event) {
    const auto key = [event] { return KeyOf(static_cast<const QKeyEvent&>(*event)); };
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // Nor does it repeat a shortcut.
            event->setAccepted(WindowKeys::Resumes(key()));
            return event->isAccepted();
        case QEvent::KeyPress:
            PutTipAway();
            keys.Press(key());
            return true;
        case QEvent::KeyRelease:
            keys.Release(key());
            return true;
        case QEvent::WindowDeactivate:
            if (watched == &window) keys.LetGo();
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

const Control* Keyboard::Focused() const {
    for (const ControlView* const view : views)
        if (&view->Widget() == window.focusWidget()) return &view->Shown();
    return nullptr;
}

void Keyboard::Focus(const Control& stop) {
    WidgetOf(stop).setFocus(Qt::TabFocusReason);
}

void Keyboard::OpenList(const Control& list) {
    static_cast<QComboBox&>(WidgetOf(list)).showPopup();
}

void Keyboard::PushDown(const Control& button) {
    static_cast<QAbstractButton&>(WidgetOf(button)).animateClick();
}

void Keyboard::PointerCame() {
    Sync();
    tipPause.start();
}

QWidget& Keyboard::WidgetOf(const Control& stop) const {
    const auto found = std::find_if(views.begin(), views.end(),
                                    [&stop](const ControlView* view) { return &view->Shown() == &stop; });
    return (*found)->Widget();
}

QRect Keyboard::Spot() const {
    const Rectangle spot = keys.Spot();
    return ToScreen(QRect(spot.left, spot.top, spot.width, spot.height));
}

void Keyboard::PutTipAway() {
    tipPause.stop();
    tips.PutAway();
}

void Keyboard::ShowTip() {
    const Control* const at = Focused();
    const QRect spot = Spot();
    if (at != nullptr && !spot.isEmpty()) tips.ShowBeside(*at, spot);
}
