#include "desktop/picture_widget.h"

#include <QPaintEvent>
#include <QPainter>

#include "desktop/pointer_events.h"
#include "desktop/scale.h"

namespace {

void DrawParts(QPainter& painter, const Picture& picture, const QRegion& parts, Ground ground) {
    for (const QRect& part : parts)
        painter.drawImage(part.topLeft(), Enlarged(picture, part, ground));
}

}  // namespace

CanvasSurface::CanvasSurface(Picture& toShow, const Colour& aroundIt, QWidget& parent)
    : QWidget(&parent), own(toShow), canvas(&own), colour(aroundIt), shownColour(aroundIt) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void CanvasSurface::SyncCanvas() {
    const Rectangle changed = canvas->TakeChanged();
    const Colour* pixels = canvas->Bounds().Empty() ? nullptr : canvas->Row(0);
    if (pixels != shownPixels || colour != shownColour)
        update();
    else if (!changed.Empty())
        update(Touched(changed));
    shownPixels = pixels;
    shownColour = colour;
}

void CanvasSurface::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QRect shown = Touched(canvas->Bounds());
    for (const QRect& beyond : event->region() - shown)
        painter.fillRect(beyond, QColor(colour));
    DrawParts(painter, *canvas, event->region() & shown, Ground::Opaque);
}

CanvasWidget::CanvasWidget(PictureBox& shown, QWidget& parent, const EventSink& to)
    : CanvasSurface(shown.canvas, shown.BackColor, parent), ControlView(shown, *this, to) {
    new PointerEvents(*this, shown, to);
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
    QPainter painter(this);
    const QRegion drawn = event->region() & Touched(shownPicture->Bounds());
    DrawParts(painter, *shownPicture, drawn, Ground::SeenThrough);
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
QRect OutlineWidget::Extent() const {
    const QRect extent = ControlView::Extent();
    return shape.kind == ControlKind::Line ? extent.adjusted(0, 0, 1, 1) : extent;
}

void OutlineWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QColor colour(shape.BorderColor);
    const int breadth = ToScreen(1);
    const QRect inner = rect().adjusted(breadth, breadth, -breadth, -breadth);
    if (shape.kind == ControlKind::Shape) {
        painter.setClipRegion(QRegion(rect()) - inner);
        painter.fillRect(rect(), colour);
    } else if (shape.Width == 0 || shape.Height == 0) {
        painter.fillRect(rect(), colour);
    } else {
        painter.setPen(QPen(colour, breadth));
        painter.drawLine(rect().topLeft(), rect().bottomRight());
    }
}
