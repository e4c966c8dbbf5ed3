// What the soldier's window needs: texts, timers, a background, tips and a picture that follows the pointer.
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

#include "test_form.h"

namespace {

constexpr Colour Grey = Rgb(64, 64, 64);
constexpr Colour Sand = Rgb(200, 198, 112);

QImage Grab(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

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
    form.lblNote.BackColor = Sand;
    form.lblNote.ForeColor = Grey;
    form.lblNote.Caption = "\u2588";
    host.PumpEvents();
    const QImage turned = Grab(*window.WidgetOf(form.lblNote));
    EXPECT_EQ(turned.pixel(0, 0), Sand);
    EXPECT_TRUE(Holds(turned, Grey));
    EXPECT_FALSE(Holds(turned.copy(0, 14, 127, 126), Grey)) << "the old lines have gone";
}

struct TextCase {
    const char* text;
    const char* ownTip;
    const char* tip;
};

TEST_F(DesktopTest, ATextBoxShowsOneLineAndTellsTheRestInItsTip) {
    constexpr const char* Long = "m16a2 (30 of 30) 5,56x45, (1 of 1) 40gren [0] 100";
    constexpr TextCase Cases[] = {{"", "", ""}, {"fits", "", ""}, {Long, "", Long}, {Long, "own", "own"}};
    form.txtLine.BackColor = Grey;
    form.txtLine.ForeColor = Sand;
    for (const TextCase& row : Cases) {
        form.txtLine.Text = row.text;
        form.txtLine.ToolTipText = row.ownTip;
        host.PumpEvents();
        EXPECT_EQ(window.WidgetOf(form.txtLine)->toolTip(), row.tip) << row.text;
        const QImage seen = Grab(*window.WidgetOf(form.txtLine));
        EXPECT_NE(seen.pixel(0, 0), Grey) << "the frame";
        EXPECT_EQ(seen.pixel(1, 1), Grey);
        for (int y = 1; y < 18; ++y)
            ASSERT_EQ(seen.pixel(118, y), Grey) << row.text << ": nothing is cut at the right edge";
    }
    form.txtLine.Text = "Ag";
    form.txtLine.Height = 13;
    host.PumpEvents();
    const QWidget& low = *window.WidgetOf(form.txtLine);
    EXPECT_LE(low.fontMetrics().height(), low.height() - 2) << "letters have room between the frame's edges";
}

struct TickCase {
    int interval;
    bool enabled;
    bool visible;
    bool ticks;
};

TEST_F(DesktopTest, ATimerTicksWhileItsRecordAndItsFormAreOn) {
    constexpr TickCase Cases[] = {
        // interval enabled visible ticks
        {0, true, true, false}, {10, true, true, true},      {10, false, true, false},
        {10, true, true, true}, {10'000, true, true, false}, {10, true, false, false},
        {10, true, true, true}, {0, true, true, false},
    };
    for (const TickCase& row : Cases) {
        form.timTick.Interval = row.interval;
        form.timTick.Enabled = row.enabled;
        form.Visible = row.visible;
        host.PumpEvents();
        events.clear();
        host.Wait(std::chrono::milliseconds(65), true);
        const std::size_t ticks = events.size();
        EXPECT_EQ(ticks > 0, row.ticks) << row.interval;
        EXPECT_LE(ticks, 7U);
        if (ticks > 0) {
            EXPECT_EQ(EventText(events[0]), "Timer frmTest.timTick -1 0 0 0 0");
        }
    }
}

TEST_F(DesktopTest, ACanvasIsTheFormsBackground) {
    QWidget& inside = *window.WidgetOf(form);
    form.canvas = Picture(400, 300, Grey);
    form.canvas.SetPixel(300, 192, Sand);
    host.PumpEvents();
    EXPECT_EQ(Screen().pixel(300, 192), Sand);
    EXPECT_EQ(Screen().pixel(301, 192), Grey);
    PaintCounter counter(inside);
    form.canvas.SetPixel(310, 195, Sand);
    form.canvas.SetPixel(312, 196, Sand);
    host.Refresh(form);
    EXPECT_EQ(counter.last, QRect(310, 195, 3, 2));
    EXPECT_EQ(Screen().pixel(312, 196), Sand);
    form.canvas = Picture();
    host.PumpEvents();
    EXPECT_EQ(Screen().pixel(300, 192), form.BackColor);
}

TEST_F(DesktopTest, ADraggedPictureShowsAboveEveryControlAndLeavesNoTrace) {
    form.imgDrag.Picture = std::make_shared<const Picture>(42, 42, Sand);
    for (const Control* control : form.controls) {
        if (control == &form.imgDrag || window.WidgetOf(*control) == nullptr) continue;
        const QPoint spot = window.WidgetOf(*control)->mapTo(window.WidgetOf(form), QPoint(60, 60));
        form.imgDrag.Left = spot.x() - 60;
        form.imgDrag.Top = spot.y() - 60;
        host.PumpEvents();
        const QPoint at(form.imgDrag.Left + 41, form.imgDrag.Top + 41);
        const QImage seen = Screen();
        if (seen.rect().contains(at)) {
            EXPECT_EQ(seen.pixel(at), Sand) << control->name;
        }
        EXPECT_EQ(seen, Grab(*window.WidgetOf(form))) << control->name;
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

    QPoint Spot() const { return window.WidgetOf(form.imgStance[0])->mapToGlobal(QPoint(5, 5)); }

    /// What is read when the pointer rests on the stances.
    QString Read() {
        PutAway();
        host.PumpEvents();
        QCursor::setPos(Spot());
        QWidget& under = *QApplication::widgetAt(Spot());
        QHelpEvent ask(QEvent::ToolTip, under.mapFromGlobal(Spot()), Spot());
        QApplication::sendEvent(&under, &ask);
        return OnShow();
    }
};

struct TipCase {
    const char* slate;
    const char* below;
    const char* above;
    bool belowEnabled;
    bool aboveEnabled;
    const char* read;
};

TEST_F(TipTest, TheTopmostTipIsReadAlsoOfADisabledPicture) {
    constexpr TipCase Cases[] = {
        // tips of the slate, of two pictures on it; enabled; read
        {"slate", "below", "above", true, true, "above"}, {"slate", "below", "above", false, false, "above"},
        {"slate", "below", "", false, false, "below"},    {"slate", "below", "", true, false, "below"},
        {"slate", "below", "", true, true, "slate"},  // hidden by a picture that takes the mouse
        {"slate", "", "", false, false, "slate"},         {"", "", "", false, false, ""},
    };
    form.ToolTipText = "the form's own isn't shown";
    for (const TipCase& row : Cases) {
        form.picSlate.ToolTipText = row.slate;
        form.imgStance[0].ToolTipText = row.below;
        form.imgStance[1].ToolTipText = row.above;
        form.imgStance[0].Enabled = row.belowEnabled;
        form.imgStance[1].Enabled = row.aboveEnabled;
        EXPECT_EQ(Read(), row.read) << row.below << row.above << row.belowEnabled << row.aboveEnabled;
    }
    form.imgStance[1].ToolTipText = "hidden";
    form.imgStance[1].Visible = false;
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
