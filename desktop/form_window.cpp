#include "desktop/form_window.h"

#include <algorithm>
#include <utility>

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QMenuBar>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include "desktop/control_widgets.h"
#include "desktop/drawn_accessible.h"
#include "desktop/picture_widget.h"
#include "desktop/pointer_events.h"
#include "desktop/scale.h"
#include "shell/control_words.h"
#include "shell/stops.h"

namespace {

constexpr int ExposurePatience = 250;  // milliseconds for the window system to show a new window
constexpr QRgb Bright = 0xFFD4D0C8;    // the native controls shade their frames from it, to stand out

}  // namespace

FormWindow::FormWindow(Form& shown, QWidget* owner, EventSink to)
    : QWidget(owner, owner != nullptr ? Qt::Dialog : Qt::Window),
      form(shown),
      sink(std::move(to)),
      client(new CanvasSurface(form.canvas, form.BackColor, *this)),
      tips(*client),
      keyboard(*this, *client, form, tips, sink) {
    setObjectName(QString::fromStdString(form.name));
    setFocusPolicy(Qt::StrongFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(owner != nullptr ? QLayout::SetFixedSize : QLayout::SetNoConstraint);
    layout->addWidget(client, 0, Qt::AlignCenter);
    QPalette colours = client->palette();
    colours.setColor(QPalette::Window, QColor(Bright));
    client->setPalette(colours);
    client->setAccessibleName(QString::fromStdString(SpokenName(form)));
    client->setAttribute(Qt::WA_NoMousePropagation);
    new PointerEvents(*client, form, sink);
    NameDrawnControls();
    Build();
}

void FormWindow::Build() {
    for (Control* control : form.controls) {
        if (control->kind == ControlKind::Menu) {
            AddMenuEntry(static_cast<MenuItem&>(*control));
            continue;
        }
        if (control->kind == ControlKind::Timer) {
            timers.push_back(std::make_unique<FormTimer>(static_cast<Timer&>(*control), sink));
            continue;
        }
        QWidget* const parent = control->parent == &form ? client : WidgetOf(*control->parent);
        views.push_back(MakeControlView(*control, *parent, sink));
        tips.Watch(views.back()->Widget());
        if (IsStop(*control)) keyboard.Add(*views.back());
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
    for (const auto& timer : timers)
        timer->Sync();
    SyncVisible();
    keyboard.Sync();
    tips.Sync();
}

void FormWindow::SyncFrame() {
    const QSize inside = ToScreen(QRect(0, 0, form.Width, form.Height)).size();
    if (client->size() != inside || client->minimumSize() != inside) Resize(inside);
    if (shownCaption != form.Caption) {
        shownCaption = form.Caption;
        setWindowTitle(QString::fromStdString(shownCaption));
    }
    client->SyncCanvas();
}

void FormWindow::Resize(QSize inside) {
    client->setFixedSize(inside);
    if (menu != nullptr) menu->setFixedHeight(ToScreen(MenuHeight));
    if (isHidden()) return;
    client->update();
    layout()->activate();
    if (const QWidget* const owner = parentWidget()) move(PlaceBefore(*owner));
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
        if (!isFullScreen()) resize(sizeHint());
        if (const QWidget* const owner = parentWidget()) move(PlaceBefore(*owner));
        justShown = true;
    }
    setVisible(form.Visible);
}

// In the owner's middle, but wholly on the screen. The desktop gives both windows the same frame.
QPoint FormWindow::PlaceBefore(const QWidget& owner) const {
    QRect place({0, 0}, size() + owner.frameGeometry().size() - owner.size());
    place.moveCenter(owner.frameGeometry().center());
    const QRect screen = owner.screen()->availableGeometry();
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    place.moveLeft(std::max(place.left(), screen.left()));
    place.moveTop(std::max(place.top(), screen.top()));
    return place.topLeft();
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

// A window that is larger than its inside is black around it.
void FormWindow::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), Qt::black);
}

bool FormWindow::focusNextPrevChild(bool next) {
    return keyboard.MoveFocus(next);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    sink(EventOf(form, EventKind::CloseRequest, 0));
}
