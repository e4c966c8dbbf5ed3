#include "desktop/help_window.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "desktop/scale.h"

namespace {

constexpr int Margin = 10;  // pixels of the records, around the text and the button
constexpr QSize DesktopFrame = {16, 40};
constexpr const char* Looks = "h3, th { color: #f4ffe8; } table { margin-top: 6px; }";

// A copy is asked: the browser gives its own document its own width, which it has only when it is shown.
int TextHeight(const QTextDocument& document, int width) {
    const std::unique_ptr<QTextDocument> copy(document.clone());
    copy->setDefaultFont(QApplication::font());
    copy->setTextWidth(width);
    return static_cast<int>(std::ceil(copy->size().height()));
}

}  // namespace

HelpWindow::HelpWindow(QWidget& owner, const QString& title, const std::string& page, int width, int most)
    : QDialog(&owner), text(new QTextBrowser(this)), recordWidth(width), recordMost(most) {
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    setWindowTitle(title);
    text->setFrameShape(QFrame::NoFrame);
    text->setOpenLinks(false);
    text->setAccessibleName(title);
    text->document()->setDefaultStyleSheet(QString::fromUtf8(Looks));
    text->setHtml(QString::fromStdString(page));
    auto* const close = new QPushButton(tr("&Close"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(close, 0, Qt::AlignRight);
    Rescale();
}

// As high as the text, where that fits.
void HelpWindow::Rescale() {
    const int margin = ToScreen(Margin);
    layout()->setContentsMargins(margin, margin, margin, margin);
    layout()->setSpacing(margin);
    text->document()->setDocumentMargin(margin);
    const QSize screen = parentWidget()->screen()->availableSize() - DesktopFrame;
    const int width = std::min(ToScreen(recordWidth), screen.width());
    const int around = sizeHint().height() - text->sizeHint().height();
    const int height = TextHeight(*text->document(), width - 2 * margin) + around;
    resize(width, std::min({height, ToScreen(recordMost), screen.height()}));
}
