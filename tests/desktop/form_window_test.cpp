#include <QMenuBar>

#include "desktop/control_widgets.h"
#include "test_form.h"

namespace {

TEST_F(DesktopTest, ChangedRecordsShowUp) {
    form.cmdGo.Caption = "Stop";
    form.cmdGo.Enabled = form.mnuGo.Enabled = false;
    form.picBoard.Left = -70;
    form.imgStance[1].Visible = false;
    form.HScroll.Value = 120;
    form.VScroll.Max = 460;
    host.PumpEvents();
    EXPECT_EQ(WidgetOf<QPushButton>(form.cmdGo).text(), "Stop");
    EXPECT_FALSE(window.WidgetOf(form.cmdGo)->isEnabled());
    EXPECT_FALSE(window.findChild<QMenuBar*>()->actions().front()->isEnabled());
    EXPECT_EQ(window.WidgetOf(form.picBoard)->x(), -70);
    EXPECT_FALSE(window.WidgetOf(form.imgStance[1])->isVisible());
    EXPECT_EQ(WidgetOf<QScrollBar>(form.HScroll).value(), 120);
    EXPECT_EQ(WidgetOf<QScrollBar>(form.VScroll).maximum(), 460);
    EXPECT_EQ(EventsOf("frmTest.HScroll"), "") << "a value set by the game isn't an event";
}

TEST_F(DesktopTest, TheLogShowsItsNewestLineAlsoOneThatIsNotYetInIt) {
    const auto& log = WidgetOf<ComboWidget>(form.cmbLog);
    form.cmbLog.List = {"same", "other", "same"};
    form.cmbLog.Text = "same";
    host.PumpEvents();
    EXPECT_EQ(log.currentIndex(), 2);
    const QImage before = Screen();
    form.cmbLog.Text = "elsewhere";
    host.PumpEvents();
    EXPECT_EQ(log.currentIndex(), -1);
    EXPECT_NE(Screen(), before);
}

TEST_F(DesktopTest, AListThatIsFilledAnewIsShownAnew) {
    const auto& modes = WidgetOf<ComboWidget>(form.comboMode);
    form.comboMode.List = {"Aimed", "Snap"};
    form.comboMode.ListIndex = 1;
    host.PumpEvents();
    const QImage before = Screen();
    form.comboMode.List = {"Throw", "Hit"};
    host.PumpEvents();
    EXPECT_NE(Screen(), before);
    form.comboMode.List = {"Hit"};
    host.PumpEvents();
    EXPECT_EQ(modes.count(), 1);
    EXPECT_EQ(modes.currentText(), "Hit");
}

TEST_F(DesktopTest, APictureIsCutAtItsControlAndSeenThrough) {
    Picture mark(40, 40, Rgb(0, 200, 0));
    mark.SetPixel(3, 3, 0);
    form.imgMark.Picture = std::make_shared<const Picture>(mark);
    host.PumpEvents();
    const QImage seen = Screen();
    EXPECT_EQ(seen.pixel(53, 43), Rgb(10, 20, 30)) << "transparent";
    EXPECT_EQ(seen.pixel(69, 59), Rgb(0, 200, 0));
    EXPECT_EQ(seen.pixel(70, 59), Rgb(10, 20, 30)) << "beyond the control";
    EXPECT_EQ(seen.pixel(350, 210), Rgb(255, 255, 0)) << "the line's end";
    form.imgMark.Picture = nullptr;
    host.PumpEvents();
    EXPECT_EQ(Screen().pixel(69, 59), Rgb(10, 20, 30));
}

}  // namespace
