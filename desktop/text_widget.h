// The widgets that show a text alone: labels of several lines, and text boxes for reading.
#pragma once

#include <QLabel>

#include "desktop/control_view.h"

/// A text on its colour. It takes no keys, and no mouse but as events.
class TextPlate : public QLabel, public ControlView {
  protected:
    /// Shows `shownText` in `shownFore` on `shownBack`, parts of the record `shown`.
    TextPlate(Control& shown, QWidget& parent, const EventSink& to, const std::string& shownText,
              const Colour& shownBack, const Colour& shownFore);

    void SyncContent() override;

  private:
    const std::string& record;
    const Colour& back;
    const Colour& fore;
    Colour paintedBack = 0;
    Colour paintedFore = 0;
};

/// Lines from the left top corner, cut at the control's size.
class LabelWidget : public TextPlate {
  public:
    LabelWidget(Label& shown, QWidget& parent, const EventSink& to);

  protected:
    void SyncContent() override;
    void paintEvent(QPaintEvent* event) override;
};

/// One line in a thin frame. A long text gets a smaller font; what doesn't fit even so ends in dots, and the
/// tip has the whole of it.
class TextBoxWidget : public TextPlate {
  public:
    TextBoxWidget(TextBox& shown, QWidget& parent, const EventSink& to);

  protected:
    void SyncContent() override;
    QString Tip() const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect Inside() const;
    QString Elided() const;

    const bool seeThrough;
};
