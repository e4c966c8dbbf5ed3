// The tool tips of a window, also those of controls that leave the mouse to what lies beneath them.
#pragma once

#include <QObject>
#include <QPoint>

class QWidget;

class Tips : public QObject {
  public:
    /// The tips of the widgets inside `ofInside`.
    explicit Tips(QWidget& ofInside);

    /// Shows the tips that the pointer asks for over `widget`.
    void Watch(QWidget& widget);

    /// A tip that is on show follows the pointer, and the record, at once.
    void Sync();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Show(QPoint at, QWidget& under);

    QWidget& inside;
};
