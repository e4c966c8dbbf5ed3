#include "desktop/tips.h"

#include <utility>

#include <QApplication>
#include <QCursor>
#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

#include "shell/control_words.h"

namespace {

// Whose tip is read at a point of `parent`: the topmost control's that has one; one that takes the mouse
// hides those beneath it, but for the controls it lies in. nullptr when there is none.
const QWidget* Bearer(const QWidget& parent, QPoint at) {
    const QObjectList& children = parent.children();
    for (qsizetype i = children.size() - 1; i >= 0; --i) {
        const auto* const widget = qobject_cast<const QWidget*>(children[i]);
        if (widget == nullptr || widget->isWindow() || widget->isHidden()) continue;
        if (!widget->geometry().contains(at)) continue;
        if (const QWidget* const bearer = Bearer(*widget, at - widget->pos())) return bearer;
        if (!widget->testAttribute(Qt::WA_TransparentForMouseEvents)) break;
    }
    return parent.toolTip().isEmpty() ? nullptr : &parent;
}

QString TextBeside(const Control& stop) {
    return QString::fromStdString(TipBeside(stop));
}

}  // namespace

Tips::Tips(QWidget& ofInside) : inside(ofInside) {
    Watch(inside);
}

void Tips::Watch(QWidget& widget) {
    widget.installEventFilter(this);
}

void Tips::Sync() {
    if (!QToolTip::isVisible()) return;
    if (stop != nullptr) {
        if (TextBeside(*stop) != QToolTip::text()) ShowBeside(*stop, spot);
        return;
    }
    const QPoint pointer = QCursor::pos();
    QWidget* const under = QApplication::widgetAt(pointer);
    if (under == nullptr || (under != &inside && !inside.isAncestorOf(under))) return;
    const QWidget* const bearer = Bearer(inside, inside.mapFromGlobal(pointer));
    const QString tip = bearer == nullptr ? QString() : bearer->toolTip();
    if (tip != QToolTip::text()) Show(pointer, *under);
}

void Tips::ShowBeside(const Control& ofStop, const QRect& besideIt) {
    stop = &ofStop;
    spot = besideIt;
    QToolTip::showText(inside.mapToGlobal(spot.bottomRight()), TextBeside(*stop), &inside, inside.rect());
}

void Tips::PutAway() {
    if (std::exchange(stop, nullptr) != nullptr) QToolTip::hideText();
}

bool Tips::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip) return false;
    Show(static_cast<const QHelpEvent*>(event)->globalPos(), static_cast<QWidget&>(*watched));
    return true;
}

// A tip is put away when the pointer leaves its control; `under` is the widget that the pointer moves on.
void Tips::Show(QPoint at, QWidget& under) {
    stop = nullptr;
    const QWidget* const bearer = Bearer(inside, inside.mapFromGlobal(at));
    if (bearer == nullptr) {
        QToolTip::hideText();
        return;
    }
    const QPoint leftTop = under.mapFromGlobal(bearer->mapToGlobal(QPoint(0, 0)));
    QToolTip::showText(at, bearer->toolTip(), &under, QRect(leftTop, bearer->size()));
}
