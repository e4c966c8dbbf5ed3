// The windows of the game have their size and their layers, and all in them has names for those who hear the
// screen instead of seeing it.
#include <QMenuBar>

#include <gtest/gtest.h>

#include "desktop/desktop_host.h"
#include "view/field_form.h"
#include "view/forms.h"

namespace {

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
