#include "desktop/control_view.h"

#include <algorithm>
#include <cctype>

#include "desktop/scale.h"
#include "desktop/stops.h"
#include "shell/help_pages.h"

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
        case ControlKind::Label:
            return static_cast<const Label&>(control).Caption;
        case ControlKind::Text:
            return static_cast<const TextBox&>(control).Text;
        case ControlKind::Menu:
            return static_cast<const MenuItem&>(control).Caption;
        default:
            return "";
    }
}

QString HelpTipOf(const Control& control) {
    const std::string_view tip = HelpTip(control.form->name + "." + control.name);
    return QString::fromUtf8(tip.data(), static_cast<qsizetype>(tip.size()));
}

}  // namespace

ControlView::ControlView(Control& shown, QWidget& by, const EventSink& to)
    : record(shown), widget(by), sink(to), helpTip(HelpTipOf(shown)) {
    widget.setObjectName(QString::fromStdString(record.name));
    // Tab alone moves the focus, a click never does; and a press that a widget doesn't want isn't for what
    // lies beneath it.
    widget.setFocusPolicy(IsStop(record) ? Qt::TabFocus : Qt::NoFocus);
    widget.setAttribute(Qt::WA_NoMousePropagation);
}

void ControlView::Sync() {
    const QRect place = Place();
    if (widget.geometry() != place) widget.setGeometry(place);
    SyncContent();
    SyncTip();
    SyncEnabled();
    if (widget.isHidden() == record.Visible) widget.setVisible(record.Visible);
}

// The widget's place in its parent's widget: both have their edges where the window's pixels round them to.
QRect ControlView::Place() const {
    QPoint origin;
    for (const Control* in = record.parent; in != record.form; in = in->parent)
        origin += QPoint(in->Left, in->Top);
    return ToScreen(Extent().translated(origin)).translated(-ToScreen(origin.x()), -ToScreen(origin.y()));
}

QRect ControlView::Extent() const {
    return {record.Left, record.Top, std::max(record.Width, 0), std::max(record.Height, 0)};
}

void ControlView::Send(EventKind kind, int code) const {
    sink(EventOf(record, kind, code));
}

QString ControlView::Tip() const {
    return record.ToolTipText.empty() ? helpTip : QString::fromStdString(record.ToolTipText);
}

// A disabled control leaves the mouse to what lies beneath it; the keyboard still stops at such a picture,
// and does there what the mouse would.
void ControlView::SyncEnabled() {
    if (shownEnabled == record.Enabled) return;
    shownEnabled = record.Enabled;
    widget.setEnabled(record.Enabled || IsDrawn(record));
    widget.setAttribute(Qt::WA_TransparentForMouseEvents, !record.Enabled);
}

void ControlView::SyncTip() {
    const QString tip = Tip();
    if (named && widget.toolTip() == tip) return;
    if (const char letter = ShortcutLetter(record); !named && letter != '\0')
        widget.setAccessibleDescription(QStringLiteral("Alt+%1").arg(QLatin1Char(letter)));
    named = true;
    widget.setToolTip(tip);
    widget.setAccessibleName(SpokenName(record));
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
    std::replace(caption.begin(), caption.end(), '\r', ' ');
    const QString tip = QString::fromStdString(control.ToolTipText);
    const QString words = StopWords(control);
    if (!words.isEmpty()) return tip.isEmpty() ? words : words + ": " + tip;
    if (!caption.empty()) return QString::fromStdString(caption);
    return tip.isEmpty() ? InWords(control.name) : tip;
}
