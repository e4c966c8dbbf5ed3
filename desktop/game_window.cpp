#include "desktop/game_window.h"

#include <fcntl.h>
#include <unistd.h>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include "desktop/appearance.h"
#include "desktop/desktop_host.h"
#include "desktop/front_end.h"
#include "platform/run_time_error.h"
#include "shell/companion.h"
#include "shell/settings.h"
#include "view/events.h"
#include "view/field_form.h"
#include "view/forms.h"

namespace {

constexpr const char* DesktopEntry = "sarnoth3";  // by which desktops find the window's name and icon

void PrintNoDisplay() {
    const RunTimeError error(Fault::NoDisplay,
                             "start the game from a desktop, or set DISPLAY or WAYLAND_DISPLAY");
    std::fprintf(stderr, "Sarnoth III: %s\n", error.what());
}

bool DisplayIsNamed() {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(variable)) return true;
    return false;
}

QIcon GameIcon() {
    QIcon icon;
    for (const char* size : {"16", "24", "32", "48", "64", "128", "256"})
        icon.addFile(QStringLiteral(":/icon%1.png").arg(QLatin1String(size)));
    return icon;
}

// A stream that was closed would leave its number to the next file that is opened, and what is printed would
// land in there. And a write that fails is told where it is done, instead of ending the process by a signal.
void SecureStreams() {
    int nowhere = -1;
    do {
        nowhere = open("/dev/null", O_RDWR);
    } while (nowhere >= 0 && nowhere <= STDERR_FILENO);
    close(nowhere);
    for (const int failedWrite : {SIGPIPE, SIGXFSZ})
        std::signal(failedWrite, SIG_IGN);
}

// While the application object is made: a display that is named but doesn't answer would abort the process.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*message*/) {
    if (type != QtFatalMsg) return;
    PrintNoDisplay();
    std::_Exit(EXIT_FAILURE);
}

std::vector<const Form*> ShownForms() {
    const std::vector<Form*> others = OtherForms();
    std::vector<const Form*> forms(others.begin(), others.end());
    forms.push_back(&frmField);
    return forms;
}

}  // namespace

int RunInWindow(char** arguments, const WindowRun& run) {
    SecureStreams();
    if (!DisplayIsNamed()) {
        PrintNoDisplay();
        return EXIT_FAILURE;
    }
    qputenv("QT_NO_GLIB", "1");  // the other event dispatcher can leave keys lying until the next one comes
    int countOfName = 1;         // the game takes no arguments
    // The windows do their own scaling; the toolkit works in screen pixels.
    qunsetenv("QT_SCALE_FACTOR");
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
    const QtMessageHandler usual = qInstallMessageHandler(EndWithoutDisplay);
    QApplication application(countOfName, arguments);
    qInstallMessageHandler(usual);
    std::setlocale(LC_NUMERIC, "C");  // the game's numbers have a decimal point everywhere
    QApplication::setQuitOnLastWindowClosed(false);
    if (QGuiApplication::primaryScreen() == nullptr) {  // a platform that found none and went on
        PrintNoDisplay();
        return EXIT_FAILURE;
    }
    SetAppearance(application);
    QApplication::setWindowIcon(GameIcon());
    QGuiApplication::setDesktopFileName(QLatin1String(DesktopEntry));

    DesktopHost host(frmField, OtherForms(), run.dispatch);
    if (run.playBack) host.PlayBack([&run](int pump, bool /*lasts*/) { run.playBack(pump); });
    if (run.companion != nullptr) host.Accompany(*run.companion);
    host.AtEnd(run.atEnd);
    host.AtMessage(run.atMessage);
    host.AskBefore(run.mayEnter);
    SettingsFile forgotten;
    FrontEnd frontEnd(host, host.WindowOf(frmField), ShownForms(),
                      run.settings != nullptr ? *run.settings : forgotten);
    host.AtVerdict(run.atVerdict);
    // Within the event loop, so that the game can wait, and show boxes, from its first moment.
    QTimer begin;
    begin.setSingleShot(true);
    begin.callOnTimeout([&] {
        host.Enter(run.begin);
        if (run.settings != nullptr) frontEnd.ShowFirstCard();
    });
    begin.start();
    return QApplication::exec();
}

Resumption AskToContinue(const std::string& text) {
    QMessageBox box(QMessageBox::Question, QString::fromUtf8(GameName), QString::fromStdString(text));
    box.setTextFormat(Qt::PlainText);
    QPushButton* const goOn = box.addButton(QStringLiteral("&Continue"), QMessageBox::AcceptRole);
    QPushButton* const watch = box.addButton(QStringLiteral("&Watch it"), QMessageBox::AcceptRole);
    QPushButton* const begin = box.addButton(QStringLiteral("&New game"), QMessageBox::DestructiveRole);
    box.setDefaultButton(goOn);
    box.setEscapeButton(goOn);
    box.exec();
    if (box.clickedButton() == watch) return Resumption::Watched;
    return box.clickedButton() == begin ? Resumption::NewGame : Resumption::Continued;
}

bool SaveWindow(const std::string& form, const std::filesystem::path& file) {
    FormWindow& window = static_cast<DesktopHost&>(TheHost()).WindowOf(*FormByName(form));
    window.Sync();
    return window.grab().save(QString::fromStdString(file.string()));
}
