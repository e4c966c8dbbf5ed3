#include "desktop/picture_widget.h"

#include <QImage>
#include <QPaintEvent>
#include <QPainter>

#include "desktop/pointer_events.h"

namespace {

// The picture's own pixels, not a copy: for as long as the picture stays as it is.
QImage Wrapped(const Picture& picture, QImage::Format format) {
    const auto* bytes = reinterpret_cast<const uchar*>(picture.Row(0));
    return {bytes, picture.Width(), picture.Height(),
            static_cast<qsizetype>(sizeof(Colour)) * picture.Width(), format};
}

QRect Rect(const Rectangle& rectangle) {
    return {rectangle.left, rectangle.top, rectangle.width, rectangle.height};
}

}  // namespace

CanvasWidget::CanvasWidget(PictureBox& shown, QWidget& parent, const EventSink& to)
    : QWidget(&parent), ControlView(shown, *this, to), box(shown), shownColour(shown.BackColor) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    new PointerEvents(*this, shown, to);
}

void CanvasWidget::SyncContent() {
    const Rectangle changed = box.canvas.TakeChanged();
    const Colour* pixels = box.canvas.Bounds().Empty() ? nullptr : box.canvas.Row(0);
    if (pixels != shownPixels || box.BackColor != shownColour)
        update();
    else if (!changed.Empty())
        update(Rect(changed));
    shownPixels = pixels;
    shownColour = box.BackColor;
}

void CanvasWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QRect drawn = event->rect();
    const QRect canvas = Rect(box.canvas.Bounds());
    if (!canvas.contains(drawn)) painter.fillRect(drawn, QColor(box.BackColor));
    const QRect copied = canvas & drawn;
    if (!copied.isEmpty()) painter.drawImage(copied, Wrapped(box.canvas, QImage::Format_RGB32), copied);
}

ImageWidget::ImageWidget(ImageControl& shown, QWidget& parent, const EventSink& to)
    : QWidget(&parent), ControlView(shown, *this, to), image(shown) {
    new PointerEvents(*this, shown, to);
}

void ImageWidget::SyncContent() {
    if (image.Picture == shownPicture) return;
    shownPicture = image.Picture;
    update();
}

void ImageWidget::paintEvent(QPaintEvent* event) {
    if (shownPicture == nullptr) return;
    const QRect copied = event->rect() & Rect(shownPicture->Bounds());
    if (copied.isEmpty()) return;
    QPainter(this).drawImage(copied, Wrapped(*shownPicture, QImage::Format_ARGB32), copied);
}

OutlineWidget::OutlineWidget(Shape& shown, QWidget& parent, const EventSink& to)
    : QWidget(&parent), ControlView(shown, *this, to), shape(shown), shownColour(shown.BorderColor) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void OutlineWidget::SyncContent() {
    if (shape.BorderColor == shownColour) return;
    shownColour = shape.BorderColor;
    update();
}

// A line's end is a pixel of its own.
QRect OutlineWidget::Place() const {
    const QRect place = ControlView::Place();
    return shape.kind == ControlKind::Line ? place.adjusted(0, 0, 1, 1) : place;
}

void OutlineWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(QColor(shape.BorderColor));
    if (shape.kind == ControlKind::Line)
        painter.drawLine(0, 0, shape.Width, shape.Height);
    else
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
