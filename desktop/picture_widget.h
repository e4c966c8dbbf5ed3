// The widgets that show pixels: canvases that the game draws into, loaded pictures, and outlines. The game
// content is copied to the screen as it is.
#pragma once

#include <QWidget>

#include "desktop/control_view.h"

/// A picture box: its canvas, and its colour where no canvas is. Paints only what was changed.
class CanvasWidget : public QWidget, public ControlView {
  public:
    CanvasWidget(PictureBox& shown, QWidget& parent, const EventSink& to);

  protected:
    void SyncContent() override;
    void paintEvent(QPaintEvent* event) override;

  private:
    PictureBox& box;
    const Colour* shownPixels = nullptr;  // where the canvas had its pixels; a new canvas has them elsewhere
    Colour shownColour;
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

/// The outline of a rectangle, one pixel wide, or a line to its opposite corner. The mouse doesn't meet it.
class OutlineWidget : public QWidget, public ControlView {
  public:
    OutlineWidget(Shape& shown, QWidget& parent, const EventSink& to);

  protected:
    void SyncContent() override;
    QRect Place() const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    Shape& shape;
    Colour shownColour;
};
