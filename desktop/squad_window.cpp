#include "desktop/squad_window.h"

#include <algorithm>

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>

#include "desktop/control_widgets.h"
#include "desktop/log_model.h"
#include "desktop/scale.h"
#include "desktop/squad_list.h"
#include "shell/companion.h"
#include "view/field_form.h"

namespace {

// In the records' pixels.
constexpr int Width = 290;
constexpr int Margin = 4;
constexpr int RowsAtOnce = 12;  // of the squad, before it scrolls
constexpr int RowHeight = 30;
constexpr int Columns = 2;  // of tick boxes

constexpr int FrameWidth = 4;  // of a desktop's, in screen pixels

}  // namespace

SquadWindow::SquadWindow(QWidget& ofOwner, Companion& whose, EventSink to)
    : QWidget(&ofOwner, Qt::Tool),
      owner(ofOwner),
      companion(whose),
      sink(std::move(to)),
      squad(new SquadModel(this)),
      log(new LogModel(this)),
      everything(new EntryModel(frmField.cmbLog, this)),
      squadList(new QListView(this)),
      logList(new QListView(this)) {
    setWindowTitle(tr("Squad"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    Build();
    AddKeys();
    FollowLog();
    owner.installEventFilter(this);
    for (QWidget* child : findChildren<QWidget*>())
        child->installEventFilter(this);
}

void SquadWindow::Build() {
    auto* const grid = new QGridLayout(this);
    squadList->setAccessibleName(tr("Squad"));
    squadList->setModel(squad);
    squadList->setItemDelegate(new SquadPainter(this));
    squadList->setUniformItemSizes(true);
    squadList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(squadList, &QListView::clicked, this, [this](const QModelIndex& row) { Choose(row); });
    logList->setAccessibleName(tr("Log"));
    logList->setModel(log);
    logList->setItemDelegate(new EntryPainter(this));
    logList->setResizeMode(QListView::Adjust);
    logList->setWordWrap(true);
    logList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(logList, &QListView::activated, this, [this](const QModelIndex& row) { GoTo(row); });
    grid->addWidget(squadList, 0, 0, 1, Columns);
    hits = AddTick(tr("Hits and deaths"), true, 1, 0);
    sightings = AddTick(tr("Sightings"), true, 1, 1);
    refusals = AddTick(tr("Refusals"), true, 2, 0);
    all = AddTick(tr("Everything"), false, 2, 1);
    all->setToolTip(tr("Every line of the game's own log"));
    grid->addWidget(logList, 3, 0, 1, Columns);
    grid->setRowStretch(3, 1);
}

QCheckBox* SquadWindow::AddTick(const QString& words, bool on, int row, int column) {
    auto* const tick = new QCheckBox(words, this);
    tick->setChecked(on);
    connect(tick, &QCheckBox::toggled, this, [this] { ChangeFilter(); });
    static_cast<QGridLayout*>(layout())->addWidget(tick, row, column);
    return tick;
}

// The main window's: the toolkit keeps them while a window beside it has the keyboard.
void SquadWindow::AddKeys() {
    const auto add = [this](const QKeySequence& keys, auto what) {
        auto* const shortcut = new QShortcut(keys, &owner);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, what);
    };
    add(Qt::CTRL | Qt::Key_B, [this] { Toggle(); });
    add(Qt::Key_F6, [this] { isActiveWindow() ? GiveKeysBack() : TakeKeys(); });
}

void SquadWindow::SetShown(bool shows) {
    wanted = shows;
    givesWay = false;
    if (!owner.isVisible()) return;
    placed = true;
    if (wanted && !isVisible()) Open();
    if (!wanted) Close();
}

void SquadWindow::Open() {
    Place();
    show();
    // A window system may have placed its inside where the frame was meant to be.
    QTimer::singleShot(0, this, [this] { Place(); });
    follows = true;
    Sync();
}

void SquadWindow::Close() {
    if (!isVisible()) return;
    lastPlace = {pos(), size()};
    lastScale = shownScale;
    hide();
}

// Where it was the last time that it had this size.
void SquadWindow::Place() {
    if (shownScale != ScaleFactor()) Rescale();
    if (lastScale != ScaleFactor()) return PlaceBeside();
    move(lastPlace.topLeft());
    resize(lastPlace.size());
}

void SquadWindow::Toggle() {
    SetShown(!isVisible());
    if (!wanted) GiveKeysBack();
    if (atToggle) atToggle(wanted);
}

// On the full screen it would lie over the game's controls.
void SquadWindow::NoteFullScreen() {
    if (owner.isFullScreen()) {
        givesWay = givesWay || isVisible();
        return Close();
    }
    // The size is set after the state.
    QTimer::singleShot(0, this, [this] {
        if (isVisible()) return Place();
        if (givesWay) SetShown(wanted);
    });
}

void SquadWindow::TakeKeys() {
    if (!isVisible()) return;
    activateWindow();
    squadList->setFocus();
}

void SquadWindow::GiveKeysBack() {
    owner.activateWindow();
}

void SquadWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) GiveKeysBack();
}

void SquadWindow::Sync() {
    if (companion.IsFilming() || companion.TheScreening() != nullptr) return;
    if (!placed && owner.isVisible()) SetShown(wanted && HasRoom());
    if (!isVisible()) return;
    if (shownScale != ScaleFactor()) {
        Rescale();
        PlaceBeside();
    }
    squad->Show(SquadRows());
    SyncLog();
}

void SquadWindow::SyncLog() {
    if (all->isChecked())
        everything->Sync();
    else
        log->Show(companion.TheChronicle(),
                  {hits->isChecked(), sightings->isChecked(), refusals->isChecked()});
    if (follows) logList->scrollToBottom();
}

// Whoever reads the newest line goes on reading the newest, also when the lines take more room than before.
void SquadWindow::FollowLog() {
    QScrollBar* const bar = logList->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int /*least*/, int most) {
        if (follows) bar->setValue(most);
    });
    const auto note = [this, bar] { follows = bar->sliderPosition() == bar->maximum(); };
    connect(bar, &QScrollBar::actionTriggered, this, note);
    connect(bar, &QScrollBar::sliderMoved, this, note);
}

void SquadWindow::ChangeFilter() {
    for (QCheckBox* tick : {hits, sightings, refusals})
        tick->setEnabled(!all->isChecked());
    QAbstractItemModel* const model = all->isChecked() ? static_cast<QAbstractItemModel*>(everything)
                                                       : static_cast<QAbstractItemModel*>(log);
    if (logList->model() != model) {
        logList->setModel(model);
        logList->setUniformItemSizes(all->isChecked());  // it may have thousands of lines
        logList->setWordWrap(!all->isChecked());
    }
    follows = true;
    SyncLog();
}

void SquadWindow::Choose(const QModelIndex& row) {
    const int unit = squad->Row(row.row()).unit;
    const Unit& soldier = UnitTable[unit];
    const std::optional<InputEvent> selection = SelectionOf(unit);
    sink(selection ? *selection : LookAt({soldier.cellX, soldier.cellY}));
}

void SquadWindow::GoTo(const QModelIndex& row) {
    if (all->isChecked()) return;
    const Spot cell = log->Entry(row.row()).cell;
    if (!(cell == Spot{})) sink(LookAt(cell));
}

// Enter and Space choose in the squad's list.
bool SquadWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &owner) {
        if (event->type() == QEvent::WindowStateChange) NoteFullScreen();
        return false;
    }
    if (event->type() == QEvent::MouseButtonRelease) QTimer::singleShot(0, this, [this] { GiveKeysBack(); });
    if (watched != squadList || event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(*event).key();
    const QModelIndex current = squadList->currentIndex();
    if ((key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space) || !current.isValid())
        return false;
    Choose(current);
    return true;
}

void SquadWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    if (wanted) Toggle();
}

void SquadWindow::Rescale() {
    shownScale = ScaleFactor();
    QFont font = QApplication::font();
    setFont(font);
    const int margin = ToScreen(Margin);
    layout()->setContentsMargins(margin, margin, margin, margin);
    layout()->setSpacing(margin);
    const int frame = 2 * squadList->frameWidth();
    const int rows = std::clamp(static_cast<int>(SquadRows().size()), 1, RowsAtOnce);
    squadList->setFixedHeight(rows * ToScreen(RowHeight) + frame);
    squadList->doItemsLayout();
    logList->doItemsLayout();
    ensurePolished();
    layout()->activate();
    resize(ToScreen(Width), owner.height());
}

bool SquadWindow::HasRoom() const {
    const int needed = owner.frameGeometry().width() + ToScreen(Width) + 2 * FrameWidth;
    return needed <= owner.screen()->availableGeometry().width();
}

// Right of the main window, which moves aside for it where that helps.
void SquadWindow::PlaceBeside() {
    const QRect screen = owner.screen()->availableGeometry();
    const int mostLeft = screen.right() + 1 - ToScreen(Width) - 2 * FrameWidth;
    const int over = owner.frameGeometry().right() + 1 - mostLeft;
    if (over > 0 && HasRoom()) owner.move(owner.pos() - QPoint(over, 0));
    move(std::min(owner.frameGeometry().right() + 1, mostLeft), owner.frameGeometry().top());
}
