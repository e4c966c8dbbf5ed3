// The desktop program: windows and sound around the game.
#include <clocale>
#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QIcon>
#include <QTimer>

#include "desktop/appearance.h"
#include "desktop/desktop_host.h"
#include "platform/files.h"
#include "platform/run_time_error.h"
#include "state/setup.h"
#include "view/events.h"
#include "view/field_form.h"

namespace {

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
    for (const char* size : {"16", "32", "48", "128"})
        icon.addFile(QStringLiteral(":/icon%1.png").arg(QLatin1String(size)));
    return icon;
}

// While the application object is made: a display that is named but doesn't answer would abort the process.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*message*/) {
    if (type != QtFatalMsg) return;
    PrintNoDisplay();
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int /*count*/, char** arguments) {
    if (!DisplayIsNamed()) {
        PrintNoDisplay();
        return EXIT_FAILURE;
    }
    qputenv("QT_NO_GLIB", "1");  // the other event dispatcher can leave keys lying until the next one comes
    // Pictures are shown at whole multiples of their size, so that every pixel is as large as its neighbour.
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::RoundPreferFloor);
    const QtMessageHandler usual = qInstallMessageHandler(EndWithoutDisplay);
    int countOfName = 1;  // the game takes no arguments
    QApplication application(countOfName, arguments);
    qInstallMessageHandler(usual);
    std::setlocale(LC_NUMERIC, "C");  // the game's numbers have a decimal point everywhere
    QApplication::setQuitOnLastWindowClosed(false);
    SetAppearance(application);
    QApplication::setWindowIcon(GameIcon());
    SetProgramFolder(QApplication::applicationDirPath().toStdString());

    DesktopHost host(frmField, {&frmProgress}, Dispatch);
    // Within the event loop, so that the game can wait, and show boxes, from its first moment.
    QTimer begin;
    begin.setSingleShot(true);
    begin.callOnTimeout([&host] { host.Enter([] { Main(); }); });
    begin.start();
    return QApplication::exec();
}
