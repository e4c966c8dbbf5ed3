// Runs the tests of the desktop layer on a screen in memory that is large enough for the game's windows.
#include <cstdio>

#include <QApplication>

#include <gtest/gtest.h>

#include "desktop/appearance.h"

namespace {

// What the toolkit says about a screen in memory; standard error is what some tests read.
void PrintButForTheScreen(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message) {
    for (const char* ofTheScreen : {"This plugin does not support", "QStandardPaths: XDG_RUNTIME_DIR"})
        if (message.startsWith(QLatin1String(ofTheScreen))) return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    // A test that ends its process starts anew in another one.
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    qInstallMessageHandler(PrintButForTheScreen);
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" BIG_SCREEN);
    qputenv("QT_NO_GLIB", "1");
    qunsetenv("QT_SCALE_FACTOR");
    QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    SetAppearance(application);
    return RUN_ALL_TESTS();
}
