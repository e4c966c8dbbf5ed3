#include "desktop/sketch_widget.h"

#include <algorithm>
#include <cmath>

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include "desktop/picture_widget.h"
#include "desktop/scale.h"

namespace {

constexpr double RingBreadth = 1.5;
constexpr double EdgeBreadth = 2.5;  // of words
constexpr int LineStretch = 48;      // pixels of a line that are repainted as one rectangle

QColor Shade(Colour colour) {
    return QColor::fromRgba(colour);
}

// Of Words: where they may lie, widely.
QRectF Around(const Stroke& words) {
    const double half = 0.7 * static_cast<double>(words.breadth) * static_cast<double>(words.text.size()) + 4;
    const double height = static_cast<double>(words.breadth);
    return {static_cast<double>(words.x) - half, static_cast<double>(words.y) - height, 2 * half, 2 * height};
}

QRect OnScreen(const QRectF& extent) {
    const double scale = ScaleFactor();
    constexpr int Edge = 2;
    return QRectF(extent.topLeft() * scale, extent.size() * scale)
        .toAlignedRect()
        .adjusted(-Edge, -Edge, Edge, Edge);
}

// A line in stretches, so that a long one doesn't repaint all that its corners span.
QRegion AreaOfLine(const Stroke& line) {
    const QPointF from(line.x, line.y);
    const QPointF way = QPointF(line.toX, line.toY) - from;
    const int parts = 1 + static_cast<int>(std::hypot(way.x(), way.y()) / LineStretch);
    const double half = static_cast<double>(line.breadth) / 2;
    QRegion area;
    for (int part = 0; part < parts; ++part) {
        const QRectF stretch(from + way * part / parts, from + way * (part + 1) / parts);
        area += OnScreen(stretch.normalized().adjusted(-half, -half, half, half));
    }
    return area;
}

QRegion AreaOf(const Stroke& stroke) {
    const double half = static_cast<double>(stroke.breadth) / 2 + RingBreadth;
    const QPointF at(stroke.x, stroke.y);
    switch (stroke.kind) {
        case StrokeKind::Line:
            return AreaOfLine(stroke);
        case StrokeKind::Disc:
        case StrokeKind::Ring:
            return OnScreen(QRectF(at - QPointF(half, half), QSizeF(2 * half, 2 * half)));
        case StrokeKind::Box:
        case StrokeKind::Frame:
            return OnScreen(QRectF(at, QPointF(stroke.toX, stroke.toY)).adjusted(-half, -half, half, half));
        case StrokeKind::Words:
            return OnScreen(Around(stroke));
        case StrokeKind::Piece:
            return OnScreen(QRectF(stroke.toX, stroke.toY, stroke.breadth, stroke.breadth));
    }
    return {};
}

// Every stroke counts that only one of them has, or that another lies under.
QRegion Difference(const Sketch& before, const Sketch& after) {
    QRegion area;
    const std::size_t both = std::min(before.size(), after.size());
    for (std::size_t i = 0; i < both; ++i)
        if (!(before[i] == after[i])) area += AreaOf(before[i]) + AreaOf(after[i]);
    for (const Sketch* longer : {&before, &after})
        for (std::size_t i = both; i < longer->size(); ++i)
            area += AreaOf((*longer)[i]);
    return area;
}

void DrawWords(QPainter& painter, const Stroke& stroke) {
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(std::max(1, static_cast<int>(stroke.breadth)));
    const QString text = QString::fromStdString(stroke.text);
    const QFontMetricsF metrics(font);
    QPainterPath letters;
    letters.addText(static_cast<double>(stroke.x) - metrics.horizontalAdvance(text) / 2,
                    static_cast<double>(stroke.y) + metrics.capHeight() / 2, font, text);
    const QColor colour = Shade(stroke.colour);
    painter.setPen(
        QPen(QColor(0, 0, 0, colour.alpha()), EdgeBreadth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(letters);
    painter.fillPath(letters, colour);
}

void Draw(QPainter& painter, const Stroke& stroke) {
    const QColor colour = Shade(stroke.colour);
    const QPointF at(stroke.x, stroke.y);
    const QPointF to(stroke.toX, stroke.toY);
    const double breadth = static_cast<double>(stroke.breadth);
    painter.setBrush(Qt::NoBrush);
    switch (stroke.kind) {
        case StrokeKind::Line:
            painter.setPen(QPen(colour, breadth, Qt::SolidLine, Qt::RoundCap));
            return painter.drawLine(at, to);
        case StrokeKind::Disc:
            painter.setPen(Qt::NoPen);
            painter.setBrush(colour);
            return painter.drawEllipse(at, breadth / 2, breadth / 2);
        case StrokeKind::Ring:
            painter.setPen(QPen(colour, RingBreadth));
            return painter.drawEllipse(at, breadth / 2, breadth / 2);
        case StrokeKind::Box:
            return painter.fillRect(QRectF(at, to), colour);
        case StrokeKind::Frame:
            painter.setPen(QPen(colour, breadth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            return painter.drawRect(QRectF(at, to));
        case StrokeKind::Words:
            return DrawWords(painter, stroke);
        case StrokeKind::Piece:
            return;
    }
}

}  // namespace

SketchWidget::SketchWidget(QWidget& parent, const QRect& extent, const CanvasSurface* under)
    : QWidget(&parent), place(extent), beneath(under) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(ToScreen(place));
    show();
}

void SketchWidget::Show(const Sketch& sketch) {
    const QRect now = ToScreen(place);
    if (geometry() != now) setGeometry(now);
    if (sketch == shown) return;
    const QRegion changed = Difference(shown, sketch);
    shown = sketch;
    update(changed);
}

void SketchWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Stroke& stroke : shown) {
        if (!AreaOf(stroke).intersects(event->region())) continue;
        if (stroke.kind == StrokeKind::Piece) {
            DrawPiece(painter, stroke);
            continue;
        }
        painter.save();
        painter.scale(ScaleFactor(), ScaleFactor());
        Draw(painter, stroke);
        painter.restore();
    }
}

void SketchWidget::DrawPiece(QPainter& painter, const Stroke& piece) const {
    if (beneath == nullptr) return;
    const auto cornerAt = [](float x, float y) { return QPoint(qRound(x), qRound(y)); };
    const int breadth = qRound(piece.breadth);
    const QRect from(cornerAt(piece.x, piece.y), QSize(breadth, breadth));
    const QRect to(cornerAt(piece.toX, piece.toY), from.size());
    const QRect source = ToScreen(from) & Touched(beneath->Shown().Bounds());
    if (source.isEmpty()) return;
    const QPoint aside = ToScreen(to).topLeft() - ToScreen(from).topLeft();
    painter.drawImage(source.topLeft() + aside, Enlarged(beneath->Shown(), source, Ground::Opaque));
}
