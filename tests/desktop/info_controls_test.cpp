// What the soldier's window needs: texts, timers and tips.
#include <QHelpEvent>
#include <QToolTip>

#include "test_form.h"

namespace {

constexpr Colour Grey = Rgb(64, 64, 64);
constexpr Colour Sand = Rgb(200, 198, 112);

bool Holds(const QImage& image, Colour colour) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == colour) return true;
    return false;
}

TEST_F(DesktopTest, ALabelShowsTenLinesInItsColoursAndCutsTheRest) {
    form.lblNote.BackColor = Grey;
    form.lblNote.ForeColor = Sand;
    for (const char* ending : {"\r", "\n", "\r\n"}) {
        form.lblNote.Caption.clear();
        for (int line = 0; line < 11; ++line)
            form.lblNote.Caption += std::string("\u2588gJ") + ending;
        host.PumpEvents();
        const QImage seen = Grab(*window.WidgetOf(form.lblNote));
        const QImage first = seen.copy(0, 0, 127, 14);
        EXPECT_EQ(first.pixel(0, 0), Grey);
        EXPECT_TRUE(Holds(first, Sand));
        for (int line = 1; line < 10; ++line)
            EXPECT_EQ(seen.copy(0, 14 * line, 127, 14), first) << line;
    }
}

TEST_F(DesktopTest, ATextBoxFitsOneLineInAndTellsTheRestInItsTip) {
    struct Case {
        const char* text;
        const char* ownTip;
        const char* tip;
    };
    constexpr const char* Long = "m16a2 (30 of 30) 5,56x45, (1 of 1) 40gren [0] 100";
    const QWidget& box = *window.WidgetOf(form.txtLine);
    form.txtLine.BackColor = Grey;
    form.txtLine.ForeColor = Sand;
    for (const Case& row : {Case{"fits", "", ""},
                            {"fits when it is smaller", "", ""},
                            {Long, "", Long},
                            {Long, "own", "own"}}) {
        form.txtLine.Text = row.text;
        form.txtLine.ToolTipText = row.ownTip;
        host.PumpEvents();
        EXPECT_EQ(box.toolTip(), row.tip) << row.text;
    }
    const QImage seen = Grab(*window.WidgetOf(form.txtLine));
    EXPECT_NE(seen.pixel(0, 0), Grey) << "the frame";
    EXPECT_FALSE(Holds(seen.copy(118, 1, 1, 17), Sand)) << "nothing is cut at the right edge";
    form.txtLine.Height = 13;
    host.PumpEvents();
    EXPECT_LE(box.fontMetrics().height(), 11) << "letters have room between the frame's edges";
}

TEST_F(DesktopTest, ATimerTicksWhileItsRecordAndItsFormAreOn) {
    struct Case {
        int interval;
        bool enabled, visible, ticks;
    };
    constexpr Case Cases[] = {{0, true, true, false},      {10, true, true, true},   {10, false, true, false},
                              {10'000, true, true, false}, {10, true, false, false}, {10, true, true, true}};
    dialog.Visible = true;
    dialog.timTick.Interval = 10;  // another one, to see that time goes by
    for (const Case& row : Cases) {
        form.timTick.Interval = row.interval;
        form.timTick.Enabled = row.enabled;
        form.Visible = row.visible;
        host.PumpEvents();
        events.clear();
        const std::string tick = "Timer frmTest.timTick -1 0 0 0 0\n";
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return EventsOf(row.ticks ? "frmTest.timTick" : "frmDialog.timTick").size() > 4 * tick.size();
        }));
        EXPECT_EQ(EventsOf("frmTest.timTick").starts_with(tick), row.ticks);
    }
}

class TipTest : public DesktopTest {
  protected:
    ~TipTest() override { PutAway(); }

    // At once; the toolkit itself takes a while.
    static void PutAway() {
        for (QWidget* shown : QApplication::topLevelWidgets())
            if (shown->inherits("QTipLabel")) shown->hide();
    }

    static QString OnShow() { return QToolTip::isVisible() ? QToolTip::text() : QString(); }

    /// What is read when the pointer rests on the stances.
    QString Read() {
        PutAway();
        host.PumpEvents();
        const QPoint spot = window.WidgetOf(form.imgStance[0])->mapToGlobal(QPoint(5, 5));
        QCursor::setPos(spot);
        QWidget& under = *QApplication::widgetAt(spot);
        QHelpEvent ask(QEvent::ToolTip, under.mapFromGlobal(spot), spot);
        QApplication::sendEvent(&under, &ask);
        return OnShow();
    }
};

TEST_F(TipTest, TheTopmostTipIsReadAlsoOfADisabledPicture) {
    struct Case {
        const char* above;
        bool belowEnabled, aboveEnabled, aboveVisible;
        const char* read;
    };
    constexpr Case Cases[] = {
        {"above", false, false, true, "above"},
        {"above", false, false, false, "below"},
        {"", true, false, true, "below"},
        {"", true, true, true, "slate"},  // the upper picture takes the mouse and hides the lower one
    };
    form.ToolTipText = "the form's own isn't shown";
    form.picSlate.ToolTipText = "slate";
    form.imgStance[0].ToolTipText = "below";
    for (const Case& row : Cases) {
        form.imgStance[1].ToolTipText = row.above;
        form.imgStance[0].Enabled = row.belowEnabled;
        form.imgStance[1].Enabled = row.aboveEnabled;
        form.imgStance[1].Visible = row.aboveVisible;
        EXPECT_EQ(Read(), row.read) << row.above << row.belowEnabled << row.aboveEnabled;
    }
    form.picSlate.ToolTipText.clear();
    EXPECT_EQ(Read(), "");
}

TEST_F(TipTest, ATipOnShowFollowsItsRecord) {
    form.imgStance[1].Enabled = form.imgStance[0].Enabled = false;
    form.imgStance[1].ToolTipText = "Medal";
    ASSERT_EQ(Read(), "Medal");
    form.imgStance[1].ToolTipText = "Medal: 2";
    host.PumpEvents();
    EXPECT_EQ(OnShow(), "Medal: 2");
    form.imgStance[1].Left += 100;
    form.imgStance[0].ToolTipText = "Cross";
    host.PumpEvents();
    EXPECT_EQ(OnShow(), "Cross") << "another picture lies under the pointer now";
}

}  // namespace
