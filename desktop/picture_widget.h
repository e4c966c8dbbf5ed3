// The widgets that show pixels: canvases that the game draws into, loaded pictures, and outlines. The game
// content is copied to the screen as it is, at the windows' scale.
#pragma once

#include <QWidget>

#include "desktop/control_view.h"

/// Shows a canvas from the left top corner, and a colour where no canvas is. Paints only what was changed.
class CanvasSurface : public QWidget {
  public:
    /// `toShow` and `aroundIt` must outlive the widget.
    CanvasSurface(Picture& toShow, const Colour& aroundIt, QWidget& parent);

    /// Takes what was changed since the last call, to be painted next.
    void SyncCanvas();

    /// Shows `other` in the canvas's place from now on, which must outlive that; nullptr for the canvas
    /// again.
    void ShowInstead(Picture* other) { canvas = other != nullptr ? other : &own; }

    const Picture& Shown() const { return *canvas; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Picture& own;
    Picture* canvas;
    const Colour& colour;
    const Colour* shownPixels = nullptr;  // where the canvas had its pixels; a new canvas has them elsewhere
    Colour shownColour;
};

/// A picture box.
class CanvasWidget : public CanvasSurface, public ControlView {
  public:
    CanvasWidget(PictureBox& shown, QWidget& parent, const EventSink& to);

  protected:
    void SyncContent() override { SyncCanvas(); }
};

/// An image: its picture from the left top corner, cut at the control's size, what lies beneath seen through
/// it.
class ImageWidget : public QWidget, public ControlView {
  public:
    ImageWidget(ImageControl& shown, QWidget& parent, const EventSink& to);

  protected:
    void SyncContent() override;
    void paintEvent(QPaintEvent* event) override;

  private:
    ImageControl& image;
    PictureRef shownPicture;
};

/// The outline of a rectangle, a pixel wide, or a line to its opposite corner. The mouse doesn't meet it.
class OutlineWidget : public QWidget, public ControlView {
  public:
    OutlineWidget(Shape& shown, QWidget& parent, const EventSink& to);

  protected:
    void SyncContent() override;
    QRect Extent() const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    Shape& shape;
    Colour shownColour;
};
