// A page of help in a box that Esc closes. Keys and clicks are the box's while it stands; play goes on.
#pragma once

#include <string>

#include <QDialog>

class QTextBrowser;

class HelpWindow : public QDialog {
  public:
    /// `page` is HTML; `width` and `most`, its greatest height, are pixels of the records. It stands before
    /// `owner` and goes when it is closed.
    HelpWindow(QWidget& owner, const QString& title, const std::string& page, int width, int most);

    /// Follows the windows' scale.
    void Rescale();

  private:
    QTextBrowser* text;
    const int recordWidth;
    const int recordMost;
};
