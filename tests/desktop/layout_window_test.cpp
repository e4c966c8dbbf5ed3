// The real widgets stand where the windows were designed to have them, and have names for those who hear the
// screen instead of seeing it.
#include <QMenuBar>

#include <gtest/gtest.h>

#include "desktop/desktop_host.h"
#include "view/field_form.h"
#include "view/forms.h"

namespace {

struct Placed {
    const char* form;
    const char* control;
    int index;
    int left, top, width, height;
};

// What is placed by a formula, by the last of its rows and columns, and what a player aims at.
// clang-format off
constexpr Placed Design[] = {
    // form      control        index left  top  width height
    {"frmField", "area",           -1,   20,  10, 1520, 920},
    {"frmField", "picAreaMap",     -1,   16,  40,  152,  92},
    {"frmField", "cmdNextTurn",    -1,  656, 120,  123,  25},
    {"frmField", "imgStance",       3,  576,  48,   32,  25},
    {"frmField", "imgBar",          3,  472, 101,    0,   3},
    {"frmField", "imgBar",         15,  624, 100,    5,   6},
    {"frmInfo",  "cmdGndPage",      2,  712,  40,   17,  25},
    {"frmInfo",  "imgUpDn",         3,  253, 246,   14,  12},
    {"frmInfo",  "imgAward",       24,  466, 577,  105,  41},
    {"frmInfo",  "imgInv",          3,   27, 268,  117,  42},
    {"frmInfo",  "imgInv",          5,  227, 168,   42,  42},
    {"frmInfo",  "imgInv",          9,   27, 168,   42,  42},
    {"frmInfo",  "imgInv",         21,  377, 368,   42,  42},
    {"frmInfo",  "imgInv",         59,  622, 518,  117,  42},
};
// clang-format on

class LayoutWindowTest : public testing::Test {
  protected:
    LayoutWindowTest() { ResetForms(); }
    ~LayoutWindowTest() override { ResetForms(); }

    FormWindow& WindowOf(const char* form) {
        FormWindow& window = host.WindowOf(*FormByName(form));
        window.Sync();
        return window;
    }

    DesktopHost host{frmField, OtherForms(), [](const InputEvent&) {}};
};

TEST_F(LayoutWindowTest, ControlsStandAsDesigned) {
    for (const Placed& row : Design) {
        const Control& control = *FormByName(row.form)->Find(row.control, row.index);
        EXPECT_EQ(WindowOf(row.form).WidgetOf(control)->geometry(),
                  QRect(row.left, row.top, row.width, row.height))
            << row.control << row.index;
    }
}

TEST_F(LayoutWindowTest, WhateverIsShownHasAName) {
    for (const char* form : {"frmField", "frmInfo", "frmProgress"}) {
        for (const Control* control : FormByName(form)->controls) {
            const QWidget* const widget = WindowOf(form).WidgetOf(*control);  // none of a menu or a timer
            EXPECT_TRUE(widget == nullptr || !widget->accessibleName().isEmpty()) << control->name;
        }
    }
}

TEST_F(LayoutWindowTest, WindowsHaveTheirInnerSizeBelowTheMenu) {
    for (const auto& [name, size] :
         {std::pair("frmField", QSize(799, 636)), {"frmInfo", {760, 640}}, {"frmProgress", {537, 73}}}) {
        FormWindow& window = WindowOf(name);
        window.adjustSize();
        const auto* menu = window.findChild<QMenuBar*>();
        EXPECT_EQ(window.WidgetOf(*FormByName(name))->size(), size) << name;
        EXPECT_EQ(window.height(), size.height() + (menu != nullptr ? menu->height() : 0)) << name;
        EXPECT_EQ(window.windowTitle().toStdString(), FormByName(name)->Caption);
    }
}

TEST_F(LayoutWindowTest, TheFieldLiesBehindItsFrames) {
    frmField.area.Left = 20 - 760;
    frmField.area.Top = 10 - 460;
    const FormWindow& window = WindowOf("frmField");
    const QWidget& inside = *window.WidgetOf(frmField);
    EXPECT_EQ(inside.childAt(21, 11), window.WidgetOf(frmField.area));
    EXPECT_EQ(inside.childAt(5, 100), window.WidgetOf(frmField.picSlateL));
    EXPECT_EQ(inside.childAt(400, 5), window.WidgetOf(frmField.picSlateU));
    EXPECT_EQ(inside.childAt(790, 200), window.WidgetOf(frmField.picSlateR));
    EXPECT_EQ(inside.childAt(400, 600), window.WidgetOf(frmField.picSlateD));
    frmField.area.Visible = false;
    const QImage hole = WindowOf("frmField").WidgetOf(frmField)->grab({300, 200, 1, 1}).toImage();
    EXPECT_EQ(hole.pixel(0, 0), Rgb(0, 84, 0)) << "the field's ground, while a map is read";
}

}  // namespace
