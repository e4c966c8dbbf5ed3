#include "desktop/debriefing_window.h"

#include <algorithm>

#include <QApplication>
#include <QDate>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "desktop/desktop_host.h"
#include "desktop/scale.h"
#include "view/field_form.h"

namespace {

constexpr QSize Size = {600, 560};  // in the records' pixels
constexpr int Margin = 8;
constexpr QSize DesktopFrame = {16, 40};
constexpr const char* Looks = "h2, h3, th { color: #f4ffe8; } p { margin-top: 4px; margin-bottom: 4px; }";

QString SuggestedFile() {
    const QString day = QDate::currentDate().toString(Qt::ISODate);
    return QDir::home().filePath(QStringLiteral("sarnoth-recording-%1.txt").arg(day));
}

void AskAndSave(QDialog& box, const SaveRecording& save) {
    const QString file = QFileDialog::getSaveFileName(&box, QDialog::tr("Save recording"), SuggestedFile());
    if (file.isEmpty()) return;
    const std::string problem = save(file.toStdString());
    if (problem.empty()) return;
    QMessageBox::warning(&box, box.windowTitle(),
                         QDialog::tr("%1 can't be written: %2.").arg(file, QString::fromStdString(problem)));
}

}  // namespace

void ShowDebriefing(const std::string& page, const SaveRecording& save) {
    QDialog box(&static_cast<DesktopHost&>(TheHost()).WindowOf(frmField));
    box.setWindowTitle(QDialog::tr("Debriefing"));
    auto* const text = new QTextBrowser(&box);
    text->setFrameShape(QFrame::NoFrame);
    text->setOpenLinks(false);
    text->setContextMenuPolicy(Qt::NoContextMenu);
    text->setAccessibleName(box.windowTitle());
    text->document()->setDefaultStyleSheet(QString::fromUtf8(Looks));
    text->document()->setDefaultFont(QApplication::font());
    text->document()->setDocumentMargin(ToScreen(Margin));
    text->setHtml(QString::fromStdString(page));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, &box);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
    if (save) {
        auto* const button =
            buttons->addButton(QDialog::tr("&Save recording..."), QDialogButtonBox::ActionRole);
        QObject::connect(button, &QPushButton::clicked, &box, [&] { AskAndSave(box, save); });
    }
    auto* const layout = new QVBoxLayout(&box);
    const int margin = ToScreen(Margin);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addWidget(text);
    layout->addWidget(buttons);
    const QSize screen = box.screen()->availableSize() - DesktopFrame;
    box.resize(QSize(ToScreen(Size.width()), ToScreen(Size.height())).boundedTo(screen));
    text->setFocus();
    box.exec();
}
