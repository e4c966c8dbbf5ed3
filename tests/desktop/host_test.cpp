#include <ctime>

#include <QMessageBox>

#include "platform/run_time_error.h"
#include "test_form.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;
using testing::ExitedWithCode;

using DesktopDeathTest = DesktopTest;

void PressLater(QWidget& widget) {
    QCoreApplication::postEvent(&widget, new QKeyEvent(QEvent::KeyPress, Qt::Key_M, Qt::NoModifier));
}

TEST_F(DesktopTest, RefreshPaintsTheChangedRectangleAtOnceAndLetsNoEventIn) {
    PaintCounter board(*window.WidgetOf(form.picBoard));
    PaintCounter slate(*window.WidgetOf(form.picSlate));
    host.PumpEvents();
    EXPECT_EQ(board.paints, 0) << "nothing was changed";
    PressLater(window);
    form.picBoard.canvas.SetPixel(60, 50, Rgb(255, 0, 0));
    form.picBoard.canvas.SetPixel(69, 54, Rgb(255, 0, 0));
    host.Refresh(form.picBoard);
    EXPECT_EQ(board.paints, 1);
    EXPECT_EQ(board.last, QRect(60, 50, 10, 5));
    EXPECT_EQ(slate.paints, 0);
    EXPECT_EQ(EventsOf("frmTest"), "");
    host.PumpEvents();
    EXPECT_EQ(EventsOf("frmTest"), "KeyDown frmTest -1 77 0 0 0\n");
}

TEST_F(DesktopTest, AWaitTakesItsTimeAndOnlyWithPumpingLetsEventsIn) {
    for (const bool pump : {false, true}) {
        PressLater(window);
        const auto begin = steady_clock::now();
        host.Wait(std::chrono::microseconds(30'500), pump);
        EXPECT_GE(steady_clock::now() - begin, std::chrono::microseconds(30'500));
        EXPECT_EQ(events.size(), pump ? 2U : 0U);
    }
}

TEST_F(DesktopTest, WaitsAndModalFormsUseNoProcessorTimeAndLetTimersTick) {
    const std::clock_t begin = std::clock();
    host.Wait(milliseconds(500), true);
    dialog.timTick.Interval = 50;
    dialog.Visible = true;
    QTimer::singleShot(400, &window,
                       [this] { answer = [this](const InputEvent&) { dialog.Visible = false; }; });
    host.ShowModal(dialog);
    EXPECT_LT(std::clock() - begin, CLOCKS_PER_SEC / 10);
    EXPECT_GE(events.size(), 5U);
    EXPECT_LE(events.size(), 10U);
}

TEST_F(DesktopTest, AWindowBeforeItsOwnerStandsInItsMiddleWhollyOnTheScreen) {
    const QRect screen = window.screen()->availableGeometry();
    for (const QPoint at :
         {QPoint(200, 200), screen.topLeft() - QPoint(300, 200), screen.bottomRight() - QPoint(100, 100)}) {
        window.move(at);
        dialog.Visible = true;
        host.PumpEvents();
        FormWindow& second = host.WindowOf(dialog);
        EXPECT_TRUE(second.isVisible());
        const QRect place = second.frameGeometry();
        EXPECT_TRUE(screen.contains(place)) << place.x() << "," << place.y();
        const QPoint offset = place.center() - window.frameGeometry().center();
        EXPECT_EQ(offset.manhattanLength() <= 8, at == QPoint(200, 200)) << "but for the frame";
        dialog.Visible = false;
        host.Refresh(dialog);
        EXPECT_FALSE(second.isVisible());
    }
}

TEST_F(DesktopTest, AModalFormHoldsTheGameUntilItIsHiddenAlsoOneThatStoodAlready) {
    for (const bool stood : {false, true}) {
        events.clear();
        answer = [](const InputEvent&) {};
        dialog.Visible = true;
        if (stood) host.PumpEvents();
        QTimer::singleShot(20, &window, [this] {
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, {100, 100});
            EXPECT_TRUE(events.empty()) << "the window beneath is blocked";
            answer = [this](const InputEvent&) { dialog.Visible = false; };
            QTest::keyPress(&host.WindowOf(dialog), Qt::Key_Return);
        });
        host.ShowModal(dialog);
        EXPECT_FALSE(host.WindowOf(dialog).isVisible());
        EXPECT_EQ(EventsOf("frmDialog"), "KeyDown frmDialog -1 13 0 0 0\n");
        EXPECT_FALSE(host.WindowOf(dialog).isModal()) << "for that one time";
    }
}

// Counts what would show as a flicker.
class FlickerCounter : public QObject {
  public:
    explicit FlickerCounter(QWidget& window) { window.installEventFilter(this); }
    int flickers = 0;

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        for (const QEvent::Type kind : {QEvent::Hide, QEvent::Show, QEvent::Move, QEvent::WindowDeactivate})
            if (event->type() == kind) ++flickers;
        return false;
    }
};

TEST_F(DesktopTest, AModalFormThatIsHiddenAndShownWithinAnEventStays) {
    for (const bool nested : {false, true}) {
        events.clear();
        answer = [&](const InputEvent& event) {
            if (event.kind != EventKind::KeyDown) return;
            dialog.Visible = false;
            if (event.code == 13) return;
            dialog.Visible = true;
            if (nested) host.ShowModal(dialog);
        };
        FormWindow& second = host.WindowOf(dialog);
        const FlickerCounter counter(second);
        int flickers = 0;
        QTimer::singleShot(20, &second, [&] {
            QTest::mouseClick(second.WidgetOf(dialog.cmdOk), Qt::LeftButton);
            flickers = counter.flickers;
            QTest::keyPress(&second, Qt::Key_Space);
        });
        QTimer::singleShot(60, &second, [&] {
            EXPECT_TRUE(second.isModal());
            flickers -= counter.flickers;
            QTest::keyPress(&second, Qt::Key_Return);
        });
        dialog.Visible = true;
        host.ShowModal(dialog);
        EXPECT_EQ(flickers, 0);
        EXPECT_FALSE(host.WindowOf(dialog).isVisible());
        EXPECT_EQ(EventsOf("frmDialog"), "KeyDown frmDialog -1 32 0 0 0\nKeyDown frmDialog -1 13 0 0 0\n");
    }
}

TEST_F(DesktopTest, AModalFormMayBeClosedUnderAMessageOfPlainText) {
    answer = [this](const InputEvent& event) {
        if (event.kind == EventKind::CloseRequest) dialog.Visible = false;
        if (event.kind == EventKind::KeyDown) host.ShowMessage("You <b>lost</b>");
    };
    QTimer::singleShot(20, &window, [this] {
        QTimer::singleShot(20, &window, [this] {
            host.WindowOf(dialog).close();
            EXPECT_FALSE(host.WindowOf(dialog).isVisible());
        });
        QTimer::singleShot(60, &window, [] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr) << "the message is still there to be read";
            EXPECT_EQ(box->windowTitle(), "Sarnoth III");
            EXPECT_EQ(box->text(), "You <b>lost</b>");
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            box->accept();
        });
        QTest::keyPress(&host.WindowOf(dialog), Qt::Key_M);
    });
    dialog.Visible = true;
    host.ShowModal(dialog);
}

TEST_F(DesktopDeathTest, AnErrorIsPrintedAndEndsTheProcess) {
    const auto fail = [this] {
        answer = [](const InputEvent&) { throw RunTimeError(Fault::BadData, "dat/weapons.dat: line 3"); };
        QTest::mouseClick(window.WidgetOf(form.cmdGo), Qt::LeftButton);
    };
    EXPECT_EXIT(fail(), ExitedWithCode(1),
                "^Sarnoth III: Run-time error 4: Bad data: dat/weapons.dat: line 3\n$");
}

TEST_F(DesktopDeathTest, TheCloseButtonTellsTheGameAndEndsTheProcessAlsoInAWait) {
    answer = [](const InputEvent& event) { std::fprintf(stderr, "%s", EventText(event).c_str()); };
    const auto closeInWait = [this] {
        QTimer::singleShot(20, &window, [this] { window.close(); });
        host.Wait(std::chrono::seconds(20), true);
    };
    EXPECT_EXIT(window.close(), ExitedWithCode(0), "^CloseRequest frmTest -1 0 0 0 0$");
    EXPECT_EXIT(closeInWait(), ExitedWithCode(0), "^CloseRequest frmTest -1 0 0 0 0$");
}

TEST_F(DesktopDeathTest, TheCloseButtonOfAnotherWindowOnlyAsks) {
    const auto close = [this] {
        dialog.Visible = true;
        host.PumpEvents();
        host.WindowOf(dialog).close();
        std::fprintf(stderr, "%s", EventsOf("frmDialog").c_str());
        std::_Exit(host.WindowOf(dialog).isVisible() ? 7 : 8);  // the host would end it with 0
    };
    EXPECT_EXIT(close(), ExitedWithCode(7), "^CloseRequest frmDialog -1 0 0 0 0\n$");
}

}  // namespace
