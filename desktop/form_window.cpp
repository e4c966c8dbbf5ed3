#include "desktop/form_window.h"

#include <utility>

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include "desktop/control_widgets.h"
#include "desktop/key_codes.h"
#include "desktop/pointer_events.h"

namespace {

constexpr int ExposurePatience = 250;  // milliseconds for the window system to show a new window

}  // namespace

FormWindow::FormWindow(Form& shown, QWidget* owner, EventSink to)
    : QWidget(owner, owner != nullptr ? Qt::Dialog : Qt::Window),
      form(shown),
      sink(std::move(to)),
      client(new QWidget(this)) {
    setObjectName(QString::fromStdString(form.name));
    setFocusPolicy(Qt::StrongFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(client);
    client->setAutoFillBackground(true);
    client->setAccessibleName(SpokenName(form));
    client->setAttribute(Qt::WA_NoMousePropagation);
    new PointerEvents(*client, form, sink);
    Build();
}

void FormWindow::Build() {
    for (Control* control : form.controls) {
        if (control->kind == ControlKind::Menu) {
            AddMenuEntry(static_cast<MenuItem&>(*control));
            continue;
        }
        QWidget* const parent = control->parent == &form ? client : WidgetOf(*control->parent);
        views.push_back(MakeControlView(*control, *parent, sink));
    }
}

void FormWindow::AddMenuEntry(MenuItem& item) {
    if (menu == nullptr) {
        menu = new QMenuBar(this);
        menu->setNativeMenuBar(false);
        layout()->setMenuBar(menu);
    }
    QAction* const action = menu->addAction(QString());
    connect(action, &QAction::triggered, this, [this, &item] { sink(EventOf(item, EventKind::Click, 0)); });
    menuEntries.push_back({&item, action});
}

QWidget* FormWindow::WidgetOf(const Control& control) const {
    if (&control == &form) return client;
    for (const ControlView* view : views)
        if (&view->Shown() == &control) return &view->Widget();
    return nullptr;
}

void FormWindow::Sync() {
    SyncFrame();
    SyncMenu();
    for (ControlView* view : views)
        view->Sync();
    SyncVisible();
}

void FormWindow::SyncFrame() {
    const QSize inside(form.Width, form.Height);
    if (client->size() != inside || client->minimumSize() != inside) client->setFixedSize(inside);
    if (shownCaption != form.Caption) {
        shownCaption = form.Caption;
        setWindowTitle(QString::fromStdString(shownCaption));
    }
    if (shownColour != form.BackColor) {
        shownColour = form.BackColor;
        QPalette colours = client->palette();
        colours.setColor(QPalette::Window, QColor(shownColour));
        client->setPalette(colours);
    }
}

void FormWindow::SyncMenu() {
    for (const MenuEntry& entry : menuEntries) {
        const QString caption = QString::fromStdString(entry.item->Caption);
        if (entry.action->text() != caption) entry.action->setText(caption);
        entry.action->setEnabled(entry.item->Enabled);
        entry.action->setVisible(entry.item->Visible);
    }
}

void FormWindow::SyncVisible() {
    if (isHidden() != form.Visible) return;
    if (form.Visible) {
        adjustSize();
        if (QWidget* const owner = parentWidget())
            move(owner->frameGeometry().center() - QRect({0, 0}, size()).center());
        justShown = true;
    }
    setVisible(form.Visible);
}

void FormWindow::PaintNow() {
    if (isHidden()) return;
    if (std::exchange(justShown, false)) AwaitExposure();
    QEvent paint(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(this, &paint);
}

// Until the window system has put the window on the screen, nothing can be painted on it.
void FormWindow::AwaitExposure() {
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(ExposurePatience);
    while (!windowHandle()->isExposed() && patience.isActive())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    SendKey(EventKind::KeyDown, *event);
}

void FormWindow::keyReleaseEvent(QKeyEvent* event) {
    // A held key only repeats its press.
    if (!event->isAutoRepeat()) SendKey(EventKind::KeyUp, *event);
}

void FormWindow::SendKey(EventKind kind, const QKeyEvent& key) const {
    InputEvent event = EventOf(form, kind, KeyCode(key));
    event.shift = ShiftState(key.modifiers());
    sink(event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    sink(EventOf(form, EventKind::CloseRequest, 0));
}
