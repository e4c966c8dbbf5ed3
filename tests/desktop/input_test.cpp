#include "desktop/control_widgets.h"
#include "desktop/key_codes.h"
#include "test_form.h"

namespace {

void Wheel(QWidget& widget, int turn) {
    QWheelEvent event({5, 5}, widget.mapToGlobal(QPointF(5, 5)), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

// A tenth of a second after the one before, or at the same time. Whether the widget took it.
bool Key(QWidget& widget, QEvent::Type type, bool repeated, int key = Qt::Key_Left, int later = 100) {
    static quint64 time = 0;
    QKeyEvent event(type, key, Qt::ShiftModifier, QString(), repeated);
    event.setTimestamp(time += static_cast<quint64>(later));
    event.ignore();
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

void Mouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

TEST(KeyCodeTest, KeysHaveTheCodesOfTheCommandTables) {
    struct Case {
        int key;
        Qt::KeyboardModifiers modifiers;
        unsigned scanCode;
        int code;
    };
    constexpr Case Cases[] = {
        {Qt::Key_Enter, Qt::KeypadModifier, 104, 13},
        {Qt::Key_PageUp, Qt::NoModifier, 112, 33},
        {Qt::Key_7, Qt::KeypadModifier, 79, 103},
        {Qt::Key_Home, Qt::KeypadModifier, 79, 36},
        {Qt::Key_BraceRight, Qt::ShiftModifier, 35, 221},  // with Shift
        {0x042C, Qt::NoModifier, 58, 77},                  // M on a Cyrillic keyboard
        {Qt::Key_F2, Qt::NoModifier, 68, 113},
        {Qt::Key_VolumeUp, Qt::NoModifier, 123, 0},
    };
    for (const Case& row : Cases) {
        const QKeyEvent event(QEvent::KeyPress, row.key, row.modifiers, row.scanCode, 0, 0);
        EXPECT_EQ(KeyCode(event), row.code) << std::hex << row.key;
    }
}

TEST_F(DesktopTest, AHeldKeyRepeatsAndIsReleasedOnce) {
    Key(window, QEvent::KeyPress, false);
    Key(window, QEvent::KeyRelease, true);
    Key(window, QEvent::KeyPress, true);
    Key(window, QEvent::KeyRelease, false);
    EXPECT_EQ(EventsOf("frmTest"),
              "KeyDown frmTest -1 37 1 0 0\n"
              "KeyDown frmTest -1 37 1 0 0\n"
              "KeyUp frmTest -1 37 1 0 0\n");
}

TEST_F(DesktopTest, ARepeatWaitsForItsKeysPressToEndAndStaysInItsWindow) {
    int depth = 0;
    answer = [&](const InputEvent& event) {
        if (event.kind != EventKind::KeyDown || ++depth > 1) return;
        Key(window, QEvent::KeyPress, true);
        Key(window, QEvent::KeyPress, false, Qt::Key_Up);  // another key is pressed meanwhile
        Key(window, QEvent::KeyPress, true);
        Key(window, QEvent::KeyRelease, false);
        EXPECT_TRUE(Key(window, QEvent::ShortcutOverride, false, Qt::Key_Left, 0)) << "nor is it a shortcut";
        Key(window, QEvent::KeyPress, false, Qt::Key_Left, 0);  // a repeat, too
    };
    Key(window, QEvent::KeyPress, true);
    EXPECT_EQ(EventsOf("frmTest"), "") << "it was pressed in another window";
    EXPECT_FALSE(Key(window, QEvent::ShortcutOverride, false));
    Key(window, QEvent::KeyPress, false);
    Key(window, QEvent::KeyPress, true);
    EXPECT_EQ(EventsOf("frmTest"),
              "KeyDown frmTest -1 37 1 0 0\nKeyDown frmTest -1 38 1 0 0\nKeyUp frmTest -1 37 1 0 0\n"
              "KeyDown frmTest -1 37 1 0 0\n");
}

TEST_F(DesktopTest, AWindowThatLosesTheFocusLetsGoOfItsKeys) {
    Key(window, QEvent::KeyPress, false);
    Key(window, QEvent::KeyPress, false, Qt::Key_Up);
    Key(window, QEvent::KeyRelease, false, Qt::Key_Up);
    events.clear();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_EQ(EventsOf("frmTest"), "KeyUp frmTest -1 37 0 0 0\n");
    Key(window, QEvent::KeyPress, true);
    EXPECT_EQ(events.size(), 1U) << "it is no more held here";
}

TEST_F(DesktopTest, ADragBeyondAControlGoesAlongItsEdge) {
    form.picBoard.Top = 0;  // its lower part lies behind the slate
    host.PumpEvents();
    QWidget& board = *window.WidgetOf(form.picBoard);
    Mouse(board, QEvent::MouseButtonPress, {60, 50}, Qt::LeftButton, Qt::LeftButton);
    for (const QPointF at : {QPointF(-30, 50), {60, -1}, {299.7, 100}, {310, 500}})
        Mouse(board, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
    Mouse(board, QEvent::MouseButtonPress, {310, 500}, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    Mouse(board, QEvent::MouseButtonPress, {60, 239}, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    Mouse(board, QEvent::MouseButtonRelease, {60, 239}, Qt::RightButton, Qt::LeftButton);
    Mouse(board, QEvent::MouseButtonPress, {60, 51}, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    Mouse(board, QEvent::MouseButtonRelease, {310, 20}, Qt::LeftButton, Qt::RightButton);
    EXPECT_EQ(EventsOf("frmTest.picBoard"),
              "MouseDown frmTest.picBoard -1 1 0 60 50\n"
              "MouseMove frmTest.picBoard -1 1 0 0 50\n"
              "MouseMove frmTest.picBoard -1 1 0 60 0\n"
              "MouseMove frmTest.picBoard -1 1 0 299 100\n"
              "MouseMove frmTest.picBoard -1 1 0 299 239\n"
              "MouseDown frmTest.picBoard -1 2 0 60 51\n"
              "MouseUp frmTest.picBoard -1 1 0 299 20\n")
        << "the other button is pressed on what covers the board, too";
}

TEST_F(DesktopTest, WhatAPressBringsUpDoesntTakeTheSecondOneOfADoubleClick) {
    QWidget& board = *window.WidgetOf(form.picBoard);
    QWidget& slate = *window.WidgetOf(form.picSlate);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        Mouse(board, QEvent::MouseButtonPress, {60, 50}, button, button);
        Mouse(slate, QEvent::MouseButtonDblClick, {5, 5}, button, button);
        Mouse(slate, QEvent::MouseButtonRelease, {5, 5}, button, Qt::NoButton);
        Mouse(*window.WidgetOf(form.cmdGo), QEvent::MouseButtonDblClick, {5, 5}, button, button);
        Mouse(*window.WidgetOf(form.cmdGo), QEvent::MouseButtonRelease, {5, 5}, button, Qt::NoButton);
    }
    EXPECT_EQ(events.size(), 2U) << "the board's presses";
}

TEST_F(DesktopTest, KeysReachTheWindowAfterClicksOnControls) {
    for (const Control* control : std::initializer_list<Control*>{&form.txtLine, &form.lblNote, &form.cmdGo})
        QTest::mouseClick(window.WidgetOf(*control), Qt::LeftButton);
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);
    EXPECT_EQ(EventsOf("frmTest.cmdGo"), "Click frmTest.cmdGo -1 0 0 0 0\n");
    EXPECT_EQ(EventsOf("frmTest"), "KeyDown frmTest -1 32 0 0 0\nKeyUp frmTest -1 32 0 0 0\n");
}

TEST_F(DesktopTest, AMoveOverAnyKindOfControlIsReportedInItsPixels) {
    for (const Control* control :
         std::initializer_list<Control*>{&form, &form.imgMark, &form.HScroll, &form.comboMode, &form.lblNote,
                                         &form.imgStance[1], &form.cmdGo}) {
        const QPoint at = control == &form ? QPoint(340, 190) : QPoint(3, 2);
        events.clear();
        QTest::mouseMove(window.windowHandle(), window.WidgetOf(*control)->mapTo(&window, at));
        InputEvent expected = EventOf(*control, EventKind::MouseMove, 0);
        expected.x = static_cast<float>(at.x());
        expected.y = static_cast<float>(at.y());
        ASSERT_EQ(events.size(), 1U) << control->name;
        EXPECT_EQ(EventText(events[0]), EventText(expected));
    }
}

TEST_F(DesktopTest, APressTellsPlaceIndexButtonAndKeysAndOnlyTheLeftClicks) {
    form.picBoard.Left = -100;
    host.PumpEvents();
    const QPoint spot = window.WidgetOf(form.picBoard)->mapTo(&window, QPoint(150, 90));
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, Qt::ControlModifier, spot);
    EXPECT_EQ(EventsOf("frmTest.picBoard"),
              "MouseMove frmTest.picBoard -1 0 2 150 90\n"
              "MouseDown frmTest.picBoard -1 2 2 150 90\n"
              "MouseUp frmTest.picBoard -1 2 2 150 90\n");
    QTest::mouseClick(window.WidgetOf(form.imgStance[1]), Qt::LeftButton, Qt::NoModifier, {3, 4});
    EXPECT_EQ(EventsOf("frmTest.imgStance"),
              "MouseDown frmTest.imgStance 1 1 0 3 4\n"
              "MouseUp frmTest.imgStance 1 1 0 3 4\n"
              "Click frmTest.imgStance 1 1 0 3 4\n");
    QTest::mouseClick(window.WidgetOf(form.cmdGo), Qt::RightButton);
    EXPECT_EQ(EventsOf("frmTest.picSlate"), "") << "what lies beneath isn't clicked too";
}

TEST_F(DesktopTest, ADisabledImageLeavesTheMouseToItsParentAndADoubleClickIsTwoPresses) {
    form.imgStance[1].Enabled = form.imgStance[0].Enabled = false;
    host.PumpEvents();
    const QPoint spot = window.WidgetOf(form.picSlate)->mapTo(&window, QPoint(255, 55));
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, spot);
    EXPECT_EQ(EventsOf("frmTest.imgStance"), "");
    const std::string pressed = "MouseDown frmTest.picSlate -1 1 0 255 55\n";
    const std::string got = EventsOf("frmTest.picSlate");
    EXPECT_NE(got.find(pressed), got.rfind(pressed)) << got;
}

TEST_F(DesktopTest, ADraggedThumbSnapsToWhatTheGameMakesOfIt) {
    answer = [this](const InputEvent& event) {
        if (event.kind == EventKind::Scroll) form.HScroll.Value = event.code - event.code % 20;
    };
    auto& bar = WidgetOf<QScrollBar>(form.HScroll);
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, {30, 8});
    QMouseEvent move(QEvent::MouseMove, QPointF(40, 8), bar.mapToGlobal(QPointF(40, 8)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&bar, &move);
    EXPECT_EQ(bar.value(), form.HScroll.Value);
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, {40, 8});
    ASSERT_EQ(events.size(), 3U) << "the move, the thumb's and the last";
    EXPECT_NE(events[1].code % 20, 0) << "the drag should end between two steps";
    EXPECT_EQ(EventText(events[2]),
              "Change frmTest.HScroll -1 " + std::to_string(form.HScroll.Value) + " 0 0 0");
}

TEST_F(DesktopTest, ArrowsAndWheelMoveABarInWholeStepsAndTheWheelChoosesNoRow) {
    answer = [this](const InputEvent& event) {
        if (event.kind == EventKind::Change) form.VScroll.Value = event.code;
    };
    form.comboMode.List = {"Aimed", "Snap"};
    form.comboMode.ListIndex = 0;
    host.PumpEvents();
    auto& bar = WidgetOf<QScrollBar>(form.VScroll);
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, {8, bar.height() - 4});
    Wheel(bar, -50);
    Wheel(bar, -70);
    EXPECT_EQ(EventsOf("frmTest.VScroll"),
              "Change frmTest.VScroll -1 20 0 0 0\nChange frmTest.VScroll -1 80 0 0 0\n");
    Wheel(*window.WidgetOf(form.comboMode), -120);
    EXPECT_EQ(EventsOf("frmTest.comboMode"), "");
}

}  // namespace
