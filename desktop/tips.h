// The tool tips of a window, also those of controls that leave the mouse to what lies beneath them.
#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>

class QWidget;
struct Control;

class Tips : public QObject {
  public:
    /// The tips of the widgets inside `ofInside`.
    explicit Tips(QWidget& ofInside);

    /// Shows the tips that the pointer asks for over `widget`.
    void Watch(QWidget& widget);

    /// A tip that is on show follows the pointer, and the record, at once.
    void Sync();

    /// Shows the tip of `stop`, or its name, and its key beside `spot`, in pixels of the inside, until
    /// PutAway or the pointer's next tip.
    void ShowBeside(const Control& stop, const QRect& spot);
    void PutAway();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Show(QPoint at, QWidget& under);

    QWidget& inside;
    const Control* stop = nullptr;  // whose tip ShowBeside has shown
    QRect spot;
};
