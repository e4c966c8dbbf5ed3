// Strokes over a widget, or over a part of a window: what the shell draws on top of the game's own pictures.
// The mouse doesn't meet it.
#pragma once

#include <QRegion>
#include <QWidget>

#include "shell/sketch.h"

class CanvasSurface;

class SketchWidget : public QWidget {
  public:
    /// Covers `extent` of `parent`, in the records' pixels, from which the strokes' places count. Pieces are
    /// of what `under` shows, which must outlive the widget; without it there are none.
    SketchWidget(QWidget& parent, const QRect& extent, const CanvasSurface* under = nullptr);

    /// Shows `sketch`; what differs is painted with the window's next paint.
    void Show(const Sketch& sketch);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void DrawPiece(QPainter& painter, const Stroke& piece) const;

    const QRect place;
    const CanvasSurface* const beneath;
    Sketch shown;
};
