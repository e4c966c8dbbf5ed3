#include "desktop/control_view.h"

#include <algorithm>
#include <cctype>

#include <QCursor>
#include <QToolTip>

namespace {

// "imgEnemyCount" to "Enemy Count": without the kind's prefix, a blank before each further capital.
QString InWords(const std::string& name) {
    const auto isUpper = [](char character) {
        return std::isupper(static_cast<unsigned char>(character)) != 0;
    };
    auto from = std::find_if(name.begin(), name.end(), isUpper);
    if (from == name.end()) from = name.begin();
    QString words;
    for (auto at = from; at != name.end(); ++at) {
        if (at != from && isUpper(*at)) words += ' ';
        words += QLatin1Char(*at);
    }
    return words;
}

std::string CaptionOf(const Control& control) {
    switch (control.kind) {
        case ControlKind::Form:
            return static_cast<const Form&>(control).Caption;
        case ControlKind::Button:
            return static_cast<const Button&>(control).Caption;
        case ControlKind::Menu:
            return static_cast<const MenuItem&>(control).Caption;
        default:
            return "";
    }
}

}  // namespace

ControlView::ControlView(Control& shown, QWidget& by, const EventSink& to)
    : record(shown), widget(by), sink(to) {
    widget.setObjectName(QString::fromStdString(record.name));
    widget.setAccessibleName(SpokenName(record));
    // Keys belong to the window, and a press that a widget doesn't want isn't for what lies beneath it.
    widget.setFocusPolicy(Qt::NoFocus);
    widget.setAttribute(Qt::WA_NoMousePropagation);
}

void ControlView::Sync() {
    const QRect place = Place();
    if (widget.geometry() != place) widget.setGeometry(place);
    SyncContent();
    SyncTip();
    if (widget.isEnabledTo(widget.parentWidget()) != record.Enabled) {
        widget.setEnabled(record.Enabled);
        // A disabled control leaves the mouse to what lies beneath it.
        widget.setAttribute(Qt::WA_TransparentForMouseEvents, !record.Enabled);
    }
    if (widget.isHidden() == record.Visible) widget.setVisible(record.Visible);
}

QRect ControlView::Place() const {
    return {record.Left, record.Top, std::max(record.Width, 0), std::max(record.Height, 0)};
}

void ControlView::Send(EventKind kind, int code) const {
    sink(EventOf(record, kind, code));
}

void ControlView::SyncTip() {
    if (record.ToolTipText == shownTip) return;
    shownTip = record.ToolTipText;
    const QString tip = QString::fromStdString(shownTip);
    widget.setToolTip(tip);
    widget.setAccessibleName(SpokenName(record));
    // A tip that is on show follows the pointer at once.
    if (QToolTip::isVisible() && widget.underMouse()) QToolTip::showText(QCursor::pos(), tip, &widget);
}

InputEvent EventOf(const Control& control, EventKind kind, int code) {
    InputEvent event;
    event.kind = kind;
    event.control = control.form == &control ? control.name : control.form->name + "." + control.name;
    event.index = control.index;
    event.code = code;
    return event;
}

QString SpokenName(const Control& control) {
    std::string caption = CaptionOf(control);
    std::erase(caption, '&');
    if (!caption.empty()) return QString::fromStdString(caption);
    if (!control.ToolTipText.empty()) return QString::fromStdString(control.ToolTipText);
    return InWords(control.name);
}
