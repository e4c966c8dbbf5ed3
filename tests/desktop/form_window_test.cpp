#include <QAccessible>
#include <QMenuBar>

#include "desktop/control_widgets.h"
#include "test_form.h"

namespace {

QImage Grab(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

TEST_F(DesktopTest, EveryControlIsAWidgetWhereItsRecordSays) {
    for (const Control* control : form.controls) {
        if (control->kind == ControlKind::Menu || control->kind == ControlKind::Timer) continue;
        const QWidget* const widget = window.WidgetOf(*control);
        ASSERT_NE(widget, nullptr) << control->name;
        const int grown = control->kind == ControlKind::Line ? 1 : 0;
        EXPECT_EQ(widget->geometry(),
                  QRect(control->Left, control->Top, control->Width + grown, control->Height + grown))
            << control->name;
        EXPECT_EQ(widget->parentWidget(), window.WidgetOf(*control->parent)) << control->name;
        EXPECT_FALSE(widget->focusPolicy() & Qt::ClickFocus) << control->name;
    }
}

TEST_F(DesktopTest, TheMenuStandsAboveTheInnerSize) {
    const QWidget* const inside = window.WidgetOf(form);
    const auto* menu = window.findChild<QMenuBar*>();
    EXPECT_EQ(inside->size(), QSize(400, 300));
    EXPECT_EQ(inside->y(), menu->height());
    EXPECT_EQ(window.size(), QSize(400, 300 + menu->height()));
    EXPECT_EQ(window.windowTitle(), "Test");
}

TEST_F(DesktopTest, ChangedRecordsShowUp) {
    form.Caption = "Other";
    form.cmdGo.Caption = "Stop";
    form.cmdGo.Enabled = false;
    form.picBoard.Left = -70;
    form.imgStance[1].Visible = false;
    form.imgStance[0].ToolTipText = "prone";
    form.HScroll.Value = 120;
    form.VScroll.Max = 460;
    form.mnuGo.Enabled = false;
    host.PumpEvents();
    EXPECT_EQ(window.windowTitle(), "Other");
    EXPECT_EQ(WidgetOf<QPushButton>(form.cmdGo).text(), "Stop");
    EXPECT_FALSE(WidgetOf<QPushButton>(form.cmdGo).isEnabled());
    EXPECT_EQ(window.WidgetOf(form.picBoard)->x(), -70);
    EXPECT_FALSE(window.WidgetOf(form.imgStance[1])->isVisible());
    EXPECT_EQ(window.WidgetOf(form.imgStance[0])->toolTip(), "prone");
    EXPECT_EQ(WidgetOf<QScrollBar>(form.HScroll).value(), 120);
    EXPECT_EQ(WidgetOf<QScrollBar>(form.VScroll).maximum(), 460);
    EXPECT_FALSE(window.findChild<QMenuBar*>()->actions().front()->isEnabled());
    EXPECT_EQ(EventsOf("frmTest.HScroll"), "") << "a value set by the game isn't an event";
}

TEST_F(DesktopTest, TheLogShowsItsNewestLine) {
    auto& log = WidgetOf<ComboWidget>(form.cmbLog);
    form.cmbLog.List = {"same", "other", "same"};
    form.cmbLog.Text = "same";
    host.PumpEvents();
    EXPECT_EQ(log.count(), 3);
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
    EXPECT_EQ(modes.currentText(), "Snap");
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

TEST_F(DesktopTest, OnlyTheChangedRectangleIsPainted) {
    PaintCounter board(*window.WidgetOf(form.picBoard));
    PaintCounter slate(*window.WidgetOf(form.picSlate));
    host.PumpEvents();
    EXPECT_EQ(board.paints, 0) << "nothing was changed";
    form.picBoard.canvas.SetPixel(60, 50, Rgb(255, 0, 0));
    form.picBoard.canvas.SetPixel(69, 54, Rgb(255, 0, 0));
    host.PumpEvents();
    EXPECT_EQ(board.paints, 1);
    EXPECT_EQ(board.last, QRect(60, 50, 10, 5));
    EXPECT_EQ(slate.paints, 0);
}

TEST_F(DesktopTest, TheCanvasIsShownToThePixel) {
    form.imgMark.Visible = form.shpFrame.Visible = false;
    for (int y = 0; y < 240; ++y)
        for (int x = 0; x < 300; ++x)
            form.picBoard.canvas.SetPixel(x, y, Rgb(x % 256, y, (x * y) % 256));
    host.PumpEvents();
    const QImage seen = Grab(*window.WidgetOf(form.picBoard));
    for (int y = 0; y < 240; ++y)
        for (int x = 0; x < 300; ++x)
            ASSERT_EQ(seen.pixel(x, y), form.picBoard.canvas.Pixel(x, y)) << x << "," << y;
}

TEST_F(DesktopTest, APictureIsCutAtItsControlAndSeenThrough) {
    Picture mark(40, 40, Rgb(0, 200, 0));
    mark.SetPixel(3, 3, 0);
    form.imgMark.Picture = std::make_shared<const Picture>(mark);
    host.PumpEvents();
    const QImage seen = Grab(*window.WidgetOf(form.picBoard));
    EXPECT_EQ(seen.pixel(100, 80), Rgb(0, 200, 0));
    EXPECT_EQ(seen.pixel(103, 83), Rgb(10, 20, 30)) << "transparent";
    EXPECT_EQ(seen.pixel(119, 99), Rgb(0, 200, 0));
    EXPECT_EQ(seen.pixel(120, 99), Rgb(10, 20, 30)) << "beyond the control";
    form.imgMark.Picture = nullptr;
    host.PumpEvents();
    EXPECT_EQ(Grab(*window.WidgetOf(form.picBoard)).pixel(100, 80), Rgb(10, 20, 30));
}

TEST_F(DesktopTest, OutlinesAndPlainBoxes) {
    const QImage board = Grab(*window.WidgetOf(form.picBoard));
    EXPECT_EQ(board.pixel(130, 80), Rgb(255, 255, 0));
    EXPECT_EQ(board.pixel(149, 89), Rgb(255, 255, 0));
    EXPECT_EQ(board.pixel(131, 81), Rgb(10, 20, 30)) << "inside the shape";
    const QImage slate = Grab(*window.WidgetOf(form.picSlate));
    EXPECT_EQ(slate.pixel(350, 10), Rgb(255, 255, 0)) << "the line's end";
    EXPECT_EQ(slate.pixel(350, 11), Rgb(90, 80, 70));
}

TEST_F(DesktopTest, WhatWasPutLaterLiesInFront) {
    form.VScroll.Left = 0;
    form.VScroll.Top = 190;
    host.PumpEvents();
    QWidget* const inside = window.WidgetOf(form);
    EXPECT_EQ(inside->childAt(100, 199), window.WidgetOf(form.picBoard));
    EXPECT_EQ(inside->childAt(210, 201), window.WidgetOf(form.picSlate));
    EXPECT_EQ(inside->childAt(5, 210), window.WidgetOf(form.VScroll));
}

TEST_F(DesktopTest, ControlsHaveNamesForScreenReaders) {
    form.imgStance[0].ToolTipText = "prone";
    host.PumpEvents();
    const auto spoken = [this](const Control& control) {
        return QAccessible::queryAccessibleInterface(window.WidgetOf(control))->text(QAccessible::Name);
    };
    EXPECT_EQ(spoken(form.cmdGo), "Go");
    EXPECT_EQ(spoken(form.imgStance[0]), "prone");
    EXPECT_EQ(spoken(form.cmbLog), "Log");
    EXPECT_EQ(spoken(form.comboMode), "Mode");
}

}  // namespace
