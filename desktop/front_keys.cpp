#include "desktop/front_keys.h"

#include <utility>

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

#include "desktop/key_codes.h"

namespace {

struct FrontKey {
    int key;
    Qt::KeyboardModifiers held;     // but for those that don't matter
    Qt::KeyboardModifiers ignored;  // a sign may need Shift on one keyboard and none on another
    bool repeats;
    FrontCommand command;
    const char* words;
};

constexpr Qt::KeyboardModifiers None = Qt::NoModifier;
constexpr Qt::KeyboardModifiers Ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers Shift = Qt::ShiftModifier;

constexpr FrontKey Keys[] = {
    // clang-format off
    // key            held          ignored  repeats
    {Qt::Key_F1,     None,           None,   false,  FrontCommand::Help,       "F1"},
    {Qt::Key_F11,    None,           None,   false,  FrontCommand::FullScreen, "F11"},
    {Qt::Key_Plus,   Ctrl,           Shift,  true,   FrontCommand::Larger,     "Ctrl++"},
    {Qt::Key_Equal,  Ctrl,           Shift,  true,   FrontCommand::Larger,     "Ctrl++"},
    {Qt::Key_Minus,  Ctrl,           Shift,  true,   FrontCommand::Smaller,    "Ctrl+-"},
    {Qt::Key_0,      Ctrl,           Shift,  false,  FrontCommand::Fit,        "Ctrl+0"},
    {Qt::Key_M,      Ctrl,           None,   false,  FrontCommand::Mute,       "Ctrl+M"},
    {Qt::Key_Up,     Ctrl | Shift,   None,   true,   FrontCommand::Louder,     "Ctrl+Shift+Up"},
    {Qt::Key_Down,   Ctrl | Shift,   None,   true,   FrontCommand::Softer,     "Ctrl+Shift+Down"},
    // clang-format on
};

// Letters and digits also by their place, on keyboards of other alphabets.
bool IsKey(const FrontKey& row, const QKeyEvent& event) {
    const bool hasPlace = row.key == Qt::Key_M || row.key == Qt::Key_0;
    const bool isMeant = event.key() == row.key || (hasPlace && KeyCode(event) == row.key);
    return isMeant && (event.modifiers() & ~(row.ignored | Qt::KeypadModifier)) == row.held;
}

const FrontKey* RowOf(const QKeyEvent& event) {
    for (const FrontKey& row : Keys)
        if (IsKey(row, event)) return &row;
    return nullptr;
}

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
            if (RowOf(static_cast<const QKeyEvent&>(*event)) == nullptr) return false;
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
    const FrontKey* const row = RowOf(key);
    if (row == nullptr && !IsInBox(target)) {
        strangers.erase(KeyCode(key));
        return false;
    }
    strangers.insert(KeyCode(key));
    if (row == nullptr) return false;
    if (key.isAutoRepeat() && !row->repeats) return true;
    if (QWidget* const list = QApplication::activePopupWidget()) list->close();
    run(row->command);
    return true;
}

bool FrontKeys::Release(const QWidget& target, const QKeyEvent& key) {
    const bool isStranger = !key.isAutoRepeat() && strangers.erase(KeyCode(key)) > 0;
    return isStranger && !IsInBox(target);
}

const char* KeyWords(FrontCommand command) {
    for (const FrontKey& row : Keys)
        if (row.command == command) return row.words;
    return "";
}
