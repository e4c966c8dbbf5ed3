#include "desktop/control_view.h"

#include <algorithm>

#include "desktop/scale.h"
#include "platform/keys.h"
#include "shell/control_words.h"
#include "shell/pointer.h"
#include "shell/stops.h"

namespace {

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

ControlView::ControlView(Control& shown, QWidget& by, const EventSink& to)
    : record(shown), widget(by), sink(to), purpose(ToQString(PurposeOf(shown))) {
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

void ControlView::PressInMiddle() const {
    PressAt(record, {record.Width / 2.0, record.Height / 2.0}, LeftButton, sink);
}

QString ControlView::Tip() const {
    return record.ToolTipText.empty() ? purpose : QString::fromStdString(record.ToolTipText);
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
    if (!named) widget.setAccessibleDescription(QString::fromStdString(ShortcutWords(record)));
    named = true;
    widget.setToolTip(tip);
    widget.setAccessibleName(QString::fromStdString(SpokenName(record)));
}
