// The frame around what has the keyboard's focus: light between two dark lines, so that it shows on any
// ground.
#pragma once

#include <QFocusFrame>

class FocusFrame : public QFocusFrame {
  public:
    /// In front of everything in `inside`.
    explicit FocusFrame(QWidget& inside);

    /// Stands around `place`, in the parent's pixels; an empty one takes it away.
    void StandAround(const QRect& place);

    /// What it stands around; empty while it is away.
    QRect Around() const { return isHidden() ? QRect() : around; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect around;
};
