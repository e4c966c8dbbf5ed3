#include <QMenuBar>

#include "desktop/control_widgets.h"
#include "test_form.h"

namespace {

TEST_F(DesktopTest, ChangedRecordsShowUp) {
    form.Caption = "Other";
    form.cmdGo.Caption = "Stop";
    form.cmdGo.Enabled = form.mnuGo.Enabled = false;
    form.picBoard.Left = -70;
    form.imgStance[1].Visible = false;
    form.HScroll.Value = 120;
    form.VScroll.Max = 460;
    host.PumpEvents();
    EXPECT_EQ(window.windowTitle(), "Other");
    EXPECT_EQ(WidgetOf<QPushButton>(form.cmdGo).text(), "Stop");
    EXPECT_FALSE(window.WidgetOf(form.cmdGo)->isEnabled());
    EXPECT_FALSE(window.findChild<QMenuBar*>()->actions().front()->isEnabled());
    EXPECT_EQ(window.WidgetOf(form.picBoard)->x(), -70);
    EXPECT_FALSE(window.WidgetOf(form.imgStance[1])->isVisible());
    EXPECT_EQ(WidgetOf<QScrollBar>(form.HScroll).value(), 120);
    EXPECT_EQ(WidgetOf<QScrollBar>(form.VScroll).maximum(), 460);
    EXPECT_EQ(EventsOf("frmTest.HScroll"), "") << "a value set by the game isn't an event";
}

TEST_F(DesktopTest, TheLogShowsItsNewestLine) {
    auto& log = WidgetOf<ComboWidget>(form.cmbLog);
    form.cmbLog.List = {"same", "other", "same"};
    form.cmbLog.Text = "same";
    host.PumpEvents();
    EXPECT_EQ(log.currentIndex(), 2);
    const QImage inTheList = Grab(log);
    form.cmbLog.Text = "elsewhere";
    host.PumpEvents();
    EXPECT_EQ(log.currentIndex(), -1);
    const QImage outsideOfIt = Grab(log);
    EXPECT_NE(outsideOfIt, inTheList);
    form.cmbLog.List.push_back("elsewhere");
    host.PumpEvents();
    EXPECT_EQ(log.currentIndex(), 3);
    EXPECT_EQ(Grab(log), outsideOfIt) << "it reads the same";
}

TEST_F(DesktopTest, AListThatIsFilledAnewIsShownAnew) {
    auto& modes = WidgetOf<ComboWidget>(form.comboMode);
    form.comboMode.List = {"Aimed", "Snap"};
    form.comboMode.ListIndex = 1;
    host.PumpEvents();
    const QImage before = Grab(modes);
    form.comboMode.List = {"Throw", "Hit"};
    PaintCounter counter(modes);
    host.PumpEvents();
    EXPECT_EQ(modes.currentText(), "Hit");
    EXPECT_EQ(counter.paints, 1);
    EXPECT_NE(Grab(modes), before);
    form.comboMode.List = {"Hit"};
    form.comboMode.ListIndex = 0;
    host.PumpEvents();
    EXPECT_EQ(modes.count(), 1);
    EXPECT_EQ(modes.currentIndex(), 0);
}

TEST_F(DesktopTest, APictureIsCutAtItsControlAndSeenThrough) {
    Picture mark(40, 40, Rgb(0, 200, 0));
    mark.SetPixel(3, 3, 0);
    form.imgMark.Picture = std::make_shared<const Picture>(mark);
    host.PumpEvents();
    const QImage seen = Grab(*window.WidgetOf(form.picBoard));
    EXPECT_EQ(seen.pixel(103, 83), Rgb(10, 20, 30)) << "transparent";
    EXPECT_EQ(seen.pixel(119, 99), Rgb(0, 200, 0));
    EXPECT_EQ(seen.pixel(120, 99), Rgb(10, 20, 30)) << "beyond the control";
    form.imgMark.Picture = nullptr;
    host.PumpEvents();
    EXPECT_EQ(Grab(*window.WidgetOf(form.picBoard)).pixel(100, 80), Rgb(10, 20, 30));
    const QImage slate = Grab(*window.WidgetOf(form.picSlate));
    EXPECT_EQ(slate.pixel(350, 10), Rgb(255, 255, 0)) << "the line's end";
    EXPECT_EQ(slate.pixel(350, 11), Rgb(90, 80, 70));
}

}  // namespace
