#include "desktop/text_widget.h"

#include <algorithm>

#include <QPainter>

#include "desktop/pointer_events.h"
#include "desktop/scale.h"
#include "shell/control_words.h"

namespace {

// In the records' pixels.
constexpr int FontHeight = 11;
constexpr int SmallestFont = 8;     // of a text that is too long for its box
constexpr int LinePitch = 14;       // whatever the font: ten lines take 140 pixels
constexpr int Margin = 3;           // left of a text
constexpr int FrameDarkness = 160;  // hundredths
constexpr int AroundText = 4;       // of a box's height, what its font must leave

QFont FontOf(const QWidget& widget, int height) {
    QFont font = widget.font();
    font.setPixelSize(ToScreen(height));
    return font;
}

}  // namespace

TextPlate::TextPlate(Control& shown, QWidget& parent, const EventSink& to, const std::string& shownText,
                     const Colour& shownBack, const Colour& shownFore)
    : QLabel(&parent), ControlView(shown, *this, to), record(shownText), back(shownBack), fore(shownFore) {
    setTextFormat(Qt::PlainText);
    setAutoFillBackground(true);
    new PointerEvents(*this, shown, to);
}

void TextPlate::SyncContent() {
    const QString now = QString::fromStdString(record);
    if (text() != now) {
        setText(now);
        setAccessibleName(QString::fromStdString(SpokenName(Shown())));
    }
    if (paintedBack == back && paintedFore == fore) return;
    paintedBack = back;
    paintedFore = fore;
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(back));
    colours.setColor(QPalette::WindowText, QColor(fore));
    setPalette(colours);
}

LabelWidget::LabelWidget(Label& shown, QWidget& parent, const EventSink& to)
    : TextPlate(shown, parent, to, shown.Caption, shown.BackColor, shown.ForeColor) {}

void LabelWidget::SyncContent() {
    TextPlate::SyncContent();
    if (font().pixelSize() != ToScreen(FontHeight)) setFont(FontOf(*this, FontHeight));
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QStringList lines = text().replace("\r\n", "\n").replace('\r', '\n').split('\n');
    QRect line(ToScreen(Margin), 0, width() - ToScreen(Margin), ToScreen(LinePitch));
    for (const QString& words : lines) {
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, words);
        line.translate(0, line.height());
    }
}

TextBoxWidget::TextBoxWidget(TextBox& shown, QWidget& parent, const EventSink& to)
    : TextPlate(shown, parent, to, shown.Text, shown.BackColor, shown.ForeColor),
      seeThrough(shown.SeeThrough) {
    setAutoFillBackground(!seeThrough);
}

void TextBoxWidget::SyncContent() {
    TextPlate::SyncContent();
    const int tallest = ToScreen(std::clamp(Shown().Height - AroundText, 1, FontHeight));
    QFont fitting = font();
    fitting.setPixelSize(tallest);
    while (fitting.pixelSize() > ToScreen(SmallestFont) &&
           QFontMetrics(fitting).horizontalAdvance(text()) > Inside().width())
        fitting.setPixelSize(fitting.pixelSize() - 1);
    if (font() != fitting) setFont(fitting);
}

QRect TextBoxWidget::Inside() const {
    return rect().adjusted(ToScreen(Margin), 0, -ToScreen(Margin), 0);
}

QString TextBoxWidget::Elided() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, Inside().width());
}

QString TextBoxWidget::Tip() const {
    const QString tip = ControlView::Tip();
    return tip.isEmpty() && Elided() != text() ? text() : tip;
}

void TextBoxWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(Inside(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, Elided());
    if (seeThrough) return;
    const int breadth = ToScreen(1);
    painter.setClipRegion(QRegion(rect()) - rect().adjusted(breadth, breadth, -breadth, -breadth));
    painter.fillRect(rect(), palette().color(QPalette::Window).darker(FrameDarkness));
}
