#include "desktop/control_widgets.h"

#include <algorithm>
#include <stdexcept>

#include <QAbstractItemView>
#include <QApplication>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

#include "desktop/picture_widget.h"
#include "desktop/pointer_events.h"
#include "desktop/text_widget.h"
#include "shell/control_words.h"
#include "shell/stops.h"

namespace {

constexpr int WheelNotch = 120;   // eighths of a degree
constexpr int RowsUnfolded = 20;  // of a list, before it scrolls

// The caption with its shortcut's letter underlined, where it has that letter.
QString Underlined(QString caption, char letter) {
    const qsizetype at = letter == '\0' ? -1 : caption.indexOf(QLatin1Char(letter), 0, Qt::CaseInsensitive);
    return at < 0 ? caption : caption.insert(at, '&');
}

}  // namespace

ScrollBarWidget::ScrollBarWidget(ScrollBar& shown, QWidget& parent, const EventSink& to)
    : QScrollBar(shown.kind == ControlKind::HScrollBar ? Qt::Horizontal : Qt::Vertical, &parent),
      ControlView(shown, *this, to),
      bar(shown) {
    new PointerEvents(*this, shown, to, Reports::Moves);
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(this, &QScrollBar::sliderMoved, this, [this](int under) { Send(EventKind::Scroll, under); });
    connect(this, &QScrollBar::sliderReleased, this, [this] { Send(EventKind::Change, value()); });
    // Not while the thumb is dragged: the bar has then taken the record's value before it could report its
    // own.
    connect(this, &QScrollBar::valueChanged, this, [this](int now) { Send(EventKind::Change, now); });
}

void ScrollBarWidget::SyncContent() {
    const QSignalBlocker byTheGame(this);
    if (minimum() != bar.Min || maximum() != bar.Max) setRange(bar.Min, bar.Max);
    if (singleStep() != bar.SmallChange) setSingleStep(bar.SmallChange);
    if (pageStep() != bar.LargeChange) setPageStep(bar.LargeChange);
    if (value() != bar.Value || sliderPosition() != bar.Value) setValue(bar.Value);
}

void ScrollBarWidget::wheelEvent(QWheelEvent* event) {
    event->accept();
    const QPoint turned = event->angleDelta();
    wheelTurn += turned.y() != 0 ? turned.y() : turned.x();
    const int notches = wheelTurn / WheelNotch;
    wheelTurn -= notches * WheelNotch;
    setValue(value() - notches * QApplication::wheelScrollLines() * singleStep());
}

void EntryModel::Sync() {
    const int now = static_cast<int>(combo.List.size());
    if (now > rows) {
        beginInsertRows({}, rows, now - 1);
        rows = now;
        endInsertRows();
    } else if (now < rows) {
        beginRemoveRows({}, now, rows - 1);
        rows = now;
        endRemoveRows();
    }
}

int EntryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows;
}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    const bool asText = role == Qt::DisplayRole || role == Qt::ToolTipRole;  // the tip shows what is cut off
    if (!asText || row >= combo.List.size()) return {};
    return QString::fromStdString(combo.List[row]);
}

ComboWidget::ComboWidget(ComboBox& shown, QWidget& parent, const EventSink& to)
    : QComboBox(&parent), ControlView(shown, *this, to), combo(shown), entries(new EntryModel(shown, this)) {
    new PointerEvents(*this, shown, to, Reports::Moves);
    setModel(entries);
    setMaxVisibleItems(RowsUnfolded);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    view()->setTextElideMode(Qt::ElideRight);
    connect(this, &QComboBox::activated, this, [this](int row) { Send(EventKind::Choose, row); });
}

void ComboWidget::SyncContent() {
    const QSignalBlocker byTheGame(this);
    entries->Sync();
    const int row = ChosenRow();
    if (currentIndex() != row) setCurrentIndex(row);
    // The entry of a row may have become another one.
    const std::string& text = row < 0 ? combo.Text : combo.List[static_cast<std::size_t>(row)];
    if (shownText != text) {
        shownText = text;
        update();
    }
    if (shownBack != combo.BackColor || shownFore != combo.ForeColor) SyncColours();
}

// A combo's text need not be one of its list; a new line of a log is the last of those that read alike.
int ComboWidget::ChosenRow() const {
    if (combo.kind == ControlKind::List) return std::min(combo.ListIndex, entries->rowCount() - 1);
    const auto found = std::find(combo.List.rbegin(), combo.List.rend(), combo.Text);
    return static_cast<int>(combo.List.rend() - found) - 1;
}

void ComboWidget::SyncColours() {
    shownBack = combo.BackColor;
    shownFore = combo.ForeColor;
    QPalette colours = palette();
    colours.setColor(QPalette::Base, QColor(shownBack));
    for (const QPalette::ColorRole role : {QPalette::ButtonText, QPalette::Text})
        colours.setColor(role, QColor(shownFore));
    setPalette(colours);
    view()->setPalette(colours);
}

void ComboWidget::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionComboBox box;
    initStyleOption(&box);
    box.currentText = QString::fromStdString(shownText);
    painter.fillRect(rect(), QColor(shownBack));
    box.editable = true;  // a frame and an arrow, without a face between them
    painter.drawComplexControl(QStyle::CC_ComboBox, box);
    box.editable = false;
    painter.drawControl(QStyle::CE_ComboBoxLabel, box);
}

void ComboWidget::wheelEvent(QWheelEvent* event) {
    event->accept();
}

ButtonWidget::ButtonWidget(Button& shown, QWidget& parent, const EventSink& to)
    : QPushButton(&parent), ControlView(shown, *this, to), button(shown) {
    new PointerEvents(*this, shown, to, Reports::Moves);
    connect(this, &QPushButton::clicked, this, [this] { Send(EventKind::Click, 0); });
}

void ButtonWidget::SyncContent() {
    if (button.Caption == shownCaption) return;
    shownCaption = button.Caption;
    const char letter = ShortcutLetter(button);
    setText(Underlined(QString::fromStdString(shownCaption), letter));
    setShortcut({});  // its own would repeat while it is held; the window's keyboard has one that doesn't
    setAccessibleName(QString::fromStdString(SpokenName(button)));
}

ControlView* MakeControlView(Control& control, QWidget& parent, const EventSink& to) {
    switch (control.kind) {
        case ControlKind::PictureBox:
            return new CanvasWidget(static_cast<PictureBox&>(control), parent, to);
        case ControlKind::Image:
            return new ImageWidget(static_cast<ImageControl&>(control), parent, to);
        case ControlKind::HScrollBar:
        case ControlKind::VScrollBar:
            return new ScrollBarWidget(static_cast<ScrollBar&>(control), parent, to);
        case ControlKind::Combo:
        case ControlKind::List:
            return new ComboWidget(static_cast<ComboBox&>(control), parent, to);
        case ControlKind::Button:
            return new ButtonWidget(static_cast<Button&>(control), parent, to);
        case ControlKind::Label:
            return new LabelWidget(static_cast<Label&>(control), parent, to);
        case ControlKind::Text:
            return new TextBoxWidget(static_cast<TextBox&>(control), parent, to);
        case ControlKind::Shape:
        case ControlKind::Line:
            return new OutlineWidget(static_cast<Shape&>(control), parent, to);
        default:
            throw std::logic_error("no widget for the kind of control of " + control.name);
    }
}
