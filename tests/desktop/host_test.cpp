#include <set>

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QMessageBox>

#include "desktop/game_window.h"
#include "platform/keys.h"
#include "shell/session.h"
#include "test_form.h"
#include "view/start.h"
#include "window_game.h"

namespace {

using std::chrono::milliseconds;
using testing::ExitedWithCode;

using DesktopDeathTest = DesktopTest;

// Counts events of some kinds that come to a widget.
class EventCounter : public QObject {
  public:
    EventCounter(QWidget& widget, std::set<QEvent::Type> counted) : kinds(std::move(counted)) {
        widget.installEventFilter(this);
    }
    int count = 0;
    QRect painted;
    std::function<void()> meanwhile = [] {};

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (kinds.contains(event->type())) {
            ++count;
            meanwhile();
        }
        if (event->type() == QEvent::Paint) painted = static_cast<QPaintEvent*>(event)->rect();
        return false;
    }

  private:
    const std::set<QEvent::Type> kinds;
};

// The box is answered as soon as it stands.
class VerdictHost : public DesktopHost {
  public:
    using DesktopHost::DesktopHost;
    void ShowMessage(const std::string& text) override {
        QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
        DesktopHost::ShowMessage(text);
    }
    [[noreturn]] void EndProcess(int exitCode) override { throw ProcessEnded{exitCode}; }
};

void PressLater(QWidget& widget) {
    QCoreApplication::postEvent(&widget, new QKeyEvent(QEvent::KeyPress, Qt::Key_M, Qt::NoModifier));
}

TEST_F(DesktopTest, RefreshPaintsTheChangedRectangleAtOnceAndLetsNoEventIn) {
    EventCounter board(*window.WidgetOf(form.picBoard), {QEvent::Paint});
    const EventCounter slate(*window.WidgetOf(form.picSlate), {QEvent::Paint});
    host.PumpEvents();
    EXPECT_EQ(board.count, 0) << "nothing was changed";
    board.meanwhile = [this] { QTest::sendKeyEvent(QTest::Press, &window, Qt::Key_K, QString(), {}); };
    PressLater(window);
    form.picBoard.canvas.SetPixel(60, 50, Rgb(255, 0, 0));
    form.picBoard.canvas.SetPixel(69, 54, Rgb(255, 0, 0));
    host.Refresh(form.picBoard);
    EXPECT_EQ(board.count, 1);
    EXPECT_EQ(board.painted, QRect(60, 50, 10, 5));
    EXPECT_EQ(slate.count, 0);
    EXPECT_EQ(EventsOf("frmTest"), "");
    host.PumpEvents();
    EXPECT_EQ(EventsOf("frmTest"), "KeyDown frmTest -1 75 0 0 0\nKeyDown frmTest -1 77 0 0 0\n");
}

TEST_F(DesktopTest, AWaitLetsEventsInOnlyWithPumping) {
    for (const bool pump : {false, true}) {
        PressLater(window);
        host.Wait(milliseconds(1), pump);
        EXPECT_EQ(events.size(), pump ? 1U : 0U);
        host.PumpEvents();
        EXPECT_EQ(events.size(), 1U) << "it had waited";
        events.clear();
    }
}

// Whoever sleeps until something comes wakes up a few times for each tick; whoever looks again and again does
// so without end.
TEST_F(DesktopTest, WaitsAndModalFormsSleepAndLetTimersTick) {
    int wakes = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &window,
                     [&wakes] { ++wakes; });
    const auto ticks = [this] {
        return EventsOf("frmTest.timTick").size() + EventsOf("frmDialog.timTick").size();
    };
    form.timTick.Interval = 20;
    host.Wait(milliseconds(200), true);
    EXPECT_GT(ticks(), 0U);
    form.timTick.Interval = 0;
    events.clear();
    dialog.timTick.Interval = 20;
    dialog.Visible = true;
    answer = [this](const InputEvent&) { dialog.Visible = events.size() < 5; };
    host.ShowModal(dialog);
    EXPECT_EQ(EventsOf("frmDialog.timTick").size(),
              5 * std::string("Timer frmDialog.timTick -1 0 0 0 0\n").size());
    EXPECT_LT(wakes, 200);
}

TEST_F(DesktopTest, AWindowBeforeItsOwnerStandsInItsMiddleWhollyOnTheScreen) {
    const QRect screen = window.screen()->availableGeometry();
    const FormWindow& second = host.WindowOf(dialog);
    for (const QPoint at :
         {QPoint(200, 200), screen.topLeft() - QPoint(300, 200), screen.bottomRight() - QPoint(100, 100)}) {
        window.move(at);
        dialog.Visible = true;
        host.PumpEvents();
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

TEST_F(DesktopTest, AModalFormThatIsHiddenAndShownWithinAnEventStaysWithoutAFlicker) {
    for (const bool nested : {false, true}) {
        FormWindow& second = host.WindowOf(dialog);
        answer = [&](const InputEvent& event) {
            if (event.kind != EventKind::KeyDown) return;
            dialog.Visible = false;
            if (event.code == EnterKey) return;
            dialog.Visible = true;
            if (nested) host.ShowModal(dialog);
        };
        const EventCounter flickers(second,
                                    {QEvent::Hide, QEvent::Show, QEvent::Move, QEvent::WindowDeactivate});
        int before = 0;
        QTimer::singleShot(20, &second, [&] {
            before = flickers.count;
            QTest::keyPress(&second, Qt::Key_Space);
        });
        QTimer::singleShot(60, &second, [&] {
            EXPECT_TRUE(second.isModal());
            EXPECT_EQ(flickers.count, before);
            QTest::keyPress(&second, Qt::Key_Return);
        });
        dialog.Visible = true;
        host.ShowModal(dialog);
        EXPECT_FALSE(second.isVisible());
    }
}

TEST_F(DesktopTest, AModalFormMayBeClosedUnderAMessageOfPlainText) {
    answer = [this](const InputEvent& event) {
        if (event.kind == EventKind::CloseRequest) dialog.Visible = false;
        if (event.kind == EventKind::KeyDown) host.ShowMessage("You <b>lost</b>");
    };
    bool announced = false;
    host.AtMessage([&announced] {
        announced = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) == nullptr;
    });
    QTimer::singleShot(20, &window, [this] { QTest::keyPress(&host.WindowOf(dialog), Qt::Key_M); });
    QTimer::singleShot(60, &window, [this, &announced] {
        EXPECT_TRUE(announced) << "before the message stands";
        host.WindowOf(dialog).close();
        EXPECT_FALSE(host.WindowOf(dialog).isVisible());
    });
    QTimer::singleShot(100, &window, [] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr) << "the message is still there to be read";
        EXPECT_EQ(box->text(), "You <b>lost</b>");
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        box->accept();
    });
    dialog.Visible = true;
    host.ShowModal(dialog);
}

// The store has been saved and the journal put on the shelf before: a kill while it stands loses nothing.
TEST(VerdictTest, TheDebriefingComesBeforeTheLastBoxAndAfterTheGameIsKept) {
    const ProgramFolder folder;
    SetProgramFolder(folder.Path());
    Session session([](const std::string&) { return Resumption::Continued; });
    VerdictHost host(frmField, OtherForms(), [&](const InputEvent& event) { session.Dispatch(event); });
    host.AtMessage([&session] { session.NoteEnd(); });
    const std::string store = folder.Read("dat/apc.dat");
    std::string seen;
    host.AtVerdict([&] {
        EXPECT_NE(folder.Read("dat/apc.dat"), store);
        EXPECT_TRUE(session.HasRecording());
        EXPECT_EQ(session.SaveRecording(folder.Path() / "saved.txt"), "");
        EXPECT_EQ(folder.Read("saved.txt"), folder.Read("journal/finished-1.txt"));
        EXPECT_EQ(session.SaveRecording(folder.Path() / "none/saved.txt"), "No such file or directory");
        EXPECT_NE(session.SaveRecording("/dev/full"), "");
        seen = missionVerdict;
    });
    session.Begin(1);
    EXPECT_THROW(session.Dispatch({EventKind::Click, "frmField.mnuExit"}), ProcessEnded);
    EXPECT_EQ(seen, "Withdrawal");
    seen.clear();
    host.PlayBack([](int, bool) {});
    Main(1);
    EXPECT_THROW(Dispatch({EventKind::Click, "frmField.mnuExit"}), ProcessEnded);
    EXPECT_EQ(seen, "") << "a recording is played back";
    ResetState();
    ResetForms();
}

TEST(QuestionTest, ClosingTheBoxContinues) {
    struct Case {
        const char* pressed;
        Resumption resumption;
    };
    for (const auto& [pressed, resumption] :
         {Case{"&Continue", Resumption::Continued}, Case{"&Watch it", Resumption::Watched},
          Case{"&New game", Resumption::NewGame}, Case{"", Resumption::Continued}}) {
        QTimer::singleShot(20, [&wanted = pressed] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->text(), "turn 3");
            for (QAbstractButton* button : box->buttons())
                if (button->text() == QLatin1String(wanted)) return button->click();
            box->close();
        });
        EXPECT_EQ(AskToContinue("turn 3"), resumption) << pressed;
    }
}

TEST_F(DesktopDeathTest, ACloseButtonAsksAndTheMainWindowsEndsTheProcess) {
    answer = [](const InputEvent& event) { std::fprintf(stderr, "%s", EventText(event).c_str()); };
    const auto closeOther = [this] {
        dialog.Visible = true;
        host.PumpEvents();
        host.WindowOf(dialog).close();
        std::_Exit(host.WindowOf(dialog).isVisible() ? 7 : 8);  // the host would end it with 0
    };
    EXPECT_EXIT(window.close(), ExitedWithCode(0), "^CloseRequest frmTest -1 0 0 0 0$");
    EXPECT_EXIT(closeOther(), ExitedWithCode(7), "^CloseRequest frmDialog -1 0 0 0 0$");
}

}  // namespace
