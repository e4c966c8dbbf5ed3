#include "desktop/front_keys.h"

#include <utility>

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

#include "desktop/key_codes.h"

namespace {

bool IsInBox(const QWidget& target) {
    return qobject_cast<const QDialog*>(target.window()) != nullptr;
}

}  // namespace

FrontKeys::FrontKeys(std::function<void(FrontCommand)> toDo) : run(std::move(toDo)) {
    QCoreApplication::instance()->installEventFilter(this);
}

// Keys come to the window system's window first and then to a widget of it.
bool FrontKeys::eventFilter(QObject* watched, QEvent* event) {
    const auto* const target = qobject_cast<const QWidget*>(watched);
    if (target == nullptr) return false;
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            if (!FrontKeyOf(KeyOf(static_cast<const QKeyEvent&>(*event)))) return false;
            event->accept();
            return true;
        case QEvent::KeyPress:
            return Press(*target, static_cast<const QKeyEvent&>(*event));
        case QEvent::KeyRelease:
            return Release(*target, static_cast<const QKeyEvent&>(*event));
        default:
            return false;
    }
}

bool FrontKeys::Press(const QWidget& target, const QKeyEvent& key) {
    const std::optional<FrontKey> row = FrontKeyOf(KeyOf(key));
    if (!row && !IsInBox(target)) {
        strangers.erase(KeyCode(key));
        return false;
    }
    strangers.insert(KeyCode(key));
    if (!row) return false;
    if (key.isAutoRepeat() && !row->repeats) return true;
    if (QWidget* const list = QApplication::activePopupWidget()) list->close();
    run(row->command);
    return true;
}

bool FrontKeys::Release(const QWidget& target, const QKeyEvent& key) {
    const bool isStranger = !key.isAutoRepeat() && strangers.erase(KeyCode(key)) > 0;
    return isStranger && !IsInBox(target);
}
