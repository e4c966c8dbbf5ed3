// The real widgets stand where the windows were designed to have them, look as designed, and have names for
// those who hear the screen instead of seeing it.
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include <gtest/gtest.h>

#include "desktop/desktop_host.h"
#include "desktop/scale.h"
#include "tests/support/control_table.h"
#include "view/field_form.h"
#include "view/forms.h"

namespace {

class LayoutWindowTest : public testing::Test {
  protected:
    LayoutWindowTest() {
        ResetForms();
        SetScale(2);
    }
    ~LayoutWindowTest() override { ResetForms(); }

    FormWindow& WindowOf(const std::string& form) {
        FormWindow& window = host.WindowOf(*FormByName(form));
        window.Sync();
        return window;
    }

    // The place that a row gives its widget; a line's end is a pixel of its own.
    static QRect PlaceOf(const ControlRow& row) {
        const int end = row.kind == "Line" ? 1 : 0;
        return {*row.left, *row.top, row.width + end, row.height + end};
    }

    static std::string TextOf(const QWidget& widget) {
        if (const auto* button = dynamic_cast<const QPushButton*>(&widget))
            return button->text().remove('&').toStdString();  // before the letter of its shortcut
        if (const auto* label = dynamic_cast<const QLabel*>(&widget)) return label->text().toStdString();
        return "";
    }

    static bool IsOfKind(const QWidget& widget, const std::string& kind) {
        const auto* bar = dynamic_cast<const QScrollBar*>(&widget);
        if (kind == "HScrollBar") return bar != nullptr && bar->orientation() == Qt::Horizontal;
        if (kind == "VScrollBar") return bar != nullptr && bar->orientation() == Qt::Vertical;
        if (kind == "Combo" || kind == "List") return dynamic_cast<const QComboBox*>(&widget) != nullptr;
        if (kind == "Button") return dynamic_cast<const QPushButton*>(&widget) != nullptr;
        if (kind == "Label" || kind == "Text") return dynamic_cast<const QLabel*>(&widget) != nullptr;
        return true;
    }

    DesktopHost host{frmField, OtherForms(), [](const InputEvent&) {}};
};

TEST_F(LayoutWindowTest, EveryWidgetStandsAsDesigned) {
    int seen = 0;
    for (const ControlRow& row : ControlTable()) {
        if (row.kind == "Timer" || row.form == "frmDepot" || row.form == "frmMiniMap") continue;
        SCOPED_TRACE(row.form + "." + row.name + "(" + std::to_string(row.index) + ")");
        FormWindow& window = WindowOf(row.form);
        const Control& control = *FormByName(row.form)->Find(row.name, row.index);
        const QWidget* widget = window.WidgetOf(control);
        ASSERT_NE(widget, nullptr);
        EXPECT_TRUE(IsOfKind(*widget, row.kind));
        EXPECT_EQ(widget->geometry(), PlaceOf(row));
        EXPECT_EQ(widget->parentWidget(), window.WidgetOf(*control.parent));
        EXPECT_EQ(widget->isHidden(), !row.visible);
        EXPECT_EQ(widget->toolTip().toStdString(), row.tip);
        EXPECT_EQ(TextOf(*widget), row.text);
        EXPECT_FALSE(widget->accessibleName().isEmpty());
        ++seen;
    }
    EXPECT_GT(seen, 200);
}

TEST_F(LayoutWindowTest, WindowsHaveTheirInnerSize) {
    for (const char* name : {"frmField", "frmInfo", "frmProgress"}) {
        const Form& form = *FormByName(name);
        FormWindow& window = WindowOf(name);
        EXPECT_EQ(window.WidgetOf(form)->size(), QSize(form.Width, form.Height)) << name;
        EXPECT_EQ(window.windowTitle().toStdString(), form.Caption);
    }
}

}  // namespace
