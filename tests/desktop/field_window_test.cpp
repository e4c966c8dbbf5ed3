// The main window's own records as widgets.
#include <memory>

#include "test_form.h"
#include "view/field_form.h"
#include "view/forms.h"

namespace {

class FieldWindowTest : public testing::Test {
  protected:
    ~FieldWindowTest() override {
        window.reset();
        ResetForms();
    }

    void SetUp() override {
        frmField.Visible = true;
        window->Sync();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    QWidget* Under(int x, int y) const { return window->WidgetOf(frmField)->childAt(x, y); }

    std::vector<InputEvent> events;
    std::unique_ptr<FormWindow> window = std::make_unique<FormWindow>(
        frmField, nullptr, [this](const InputEvent& event) { events.push_back(event); });
};

TEST_F(FieldWindowTest, HasItsInnerSizeBelowTheMenu) {
    EXPECT_EQ(window->WidgetOf(frmField)->size(), QSize(799, 636));
    EXPECT_GT(window->height(), 636);
    for (const Control* control : frmField.controls)
        EXPECT_EQ(window->WidgetOf(*control) == nullptr, control->kind == ControlKind::Menu) << control->name;
}

TEST_F(FieldWindowTest, TheFieldLiesBehindItsFrames) {
    frmField.area.Left = 20 - 760;
    frmField.area.Top = 10 - 460;
    window->Sync();
    EXPECT_EQ(Under(21, 11), window->WidgetOf(frmField.area));
    EXPECT_EQ(Under(5, 100), window->WidgetOf(frmField.picSlateL));
    EXPECT_EQ(Under(400, 5), window->WidgetOf(frmField.picSlateU));
    EXPECT_EQ(Under(790, 200), window->WidgetOf(frmField.picSlateR));
    EXPECT_EQ(Under(400, 600), window->WidgetOf(frmField.picSlateD));
    EXPECT_EQ(Under(20, 480), window->WidgetOf(frmField.cmbLog));
}

TEST_F(FieldWindowTest, AClickOnTheScrolledFieldComesInFieldPixels) {
    frmField.area.Left = 20 - 100;
    frmField.area.Top = 10 - 60;
    window->Sync();
    QWidget* const inside = window->WidgetOf(frmField);
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      inside->mapTo(window.get(), QPoint(50, 40)));
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(EventText(events.back()), "MouseDown frmField.area -1 1 0 130 90");
}

}  // namespace
