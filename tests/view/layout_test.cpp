// Every control of every window stands where it was designed to, and as.
#include <map>

#include "personal/info_form.h"
#include "tests/support/control_table.h"
#include "tests/support/game_test.h"
#include "view/depot_form.h"
#include "view/field_form.h"

namespace {

class LayoutTest : public GameTest {
  protected:
    const std::map<std::string, Form*> forms = {{"frmField", &frmField},
                                                {"frmInfo", &frmInfo},
                                                {"frmProgress", &frmProgress},
                                                {"frmMiniMap", &frmMiniMap},
                                                {"frmDepot", &frmDepot}};

    static std::string TextOf(const Control& control) {
        switch (control.kind) {
            case ControlKind::Button:
                return static_cast<const Button&>(control).Caption;
            case ControlKind::Label:
                return static_cast<const Label&>(control).Caption;
            case ControlKind::Text:
                return static_cast<const TextBox&>(control).Text;
            default:
                return "";
        }
    }

    struct Colours {
        Colour back = 0;
        Colour fore = 0;
    };
    static Colours ColoursOf(const Control& control) {
        switch (control.kind) {
            case ControlKind::PictureBox:
                return {static_cast<const PictureBox&>(control).BackColor, 0};
            case ControlKind::Combo:
                return {static_cast<const ComboBox&>(control).BackColor,
                        static_cast<const ComboBox&>(control).ForeColor};
            case ControlKind::Label:
                return {static_cast<const Label&>(control).BackColor,
                        static_cast<const Label&>(control).ForeColor};
            case ControlKind::Text:
                return {static_cast<const TextBox&>(control).BackColor,
                        static_cast<const TextBox&>(control).ForeColor};
            case ControlKind::Shape:
            case ControlKind::Line:
                return {0, static_cast<const Shape&>(control).BorderColor};
            default:
                return {};
        }
    }
};

TEST_F(LayoutTest, EveryControlStandsAsDesigned) {
    for (const ControlRow& row : ControlTable()) {
        SCOPED_TRACE(row.form + "." + row.name + "(" + std::to_string(row.index) + ")");
        const Control* control = forms.at(row.form)->Find(row.name, row.index);
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(KindName(control->kind), row.kind);
        EXPECT_EQ(control->parent->name, row.parent);
        EXPECT_EQ(control->Left, row.left.value_or(control->Left));
        EXPECT_EQ(control->Top, row.top.value_or(control->Top));
        EXPECT_EQ(control->Width, row.width);
        EXPECT_EQ(control->Height, row.height);
        EXPECT_EQ(control->Visible, row.visible);
        EXPECT_EQ(control->Tag, row.tag);
        EXPECT_EQ(control->ToolTipText, row.tip);
        EXPECT_EQ(TextOf(*control), row.text);
        const Colours colours = ColoursOf(*control);
        EXPECT_EQ(colours.back, row.back.value_or(colours.back));
        EXPECT_EQ(colours.fore, row.fore.value_or(colours.fore));
    }
}

TEST_F(LayoutTest, NoControlIsOutsideTheDesign) {
    std::map<std::string, std::size_t> designed;
    for (const ControlRow& row : ControlTable())
        ++designed[row.form];
    designed["frmField"] += 2;  // the two menu entries have no place
    for (const auto& [name, form] : forms)
        EXPECT_EQ(form->controls.size(), designed[name]) << name;
}

TEST_F(LayoutTest, WindowsAndScrollBars) {
    struct Window {
        const char* name;
        const char* caption;
        int width, height;
    };
    constexpr Window Windows[] = {{"frmField", "Sarnoth III :: Field", 799, 636},
                                  {"frmInfo", "Sarnoth III :: Personal Info", 760, 640},
                                  {"frmProgress", "Progress", 537, 73},
                                  {"frmMiniMap", "Sarnoth III :: Mini Map", 770, 470},
                                  {"frmDepot", "Sarnoth III :: Depot", 925, 556}};
    for (const Window& window : Windows) {
        const Form& form = *forms.at(window.name);
        EXPECT_EQ(form.Caption, window.caption);
        EXPECT_EQ(form.Width, window.width) << window.name;
        EXPECT_EQ(form.Height, window.height) << window.name;
        EXPECT_FALSE(form.Visible) << window.name;
    }
    for (const auto& [bar, max] :
         {std::pair{&frmField.HScrollArea, 760}, std::pair{&frmField.VScrollArea, 460}}) {
        EXPECT_EQ(bar->Max, max);
        EXPECT_EQ(bar->SmallChange, 20);
        EXPECT_EQ(bar->LargeChange, max);
    }
    EXPECT_EQ(frmField.mnuInfo.Caption, "Personal &Info");
    EXPECT_EQ(frmField.mnuExit.Caption, "E&xit");
}

}  // namespace
