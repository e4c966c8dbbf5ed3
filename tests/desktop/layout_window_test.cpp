// The real widgets stand where the windows were designed to have them, and have names for those who hear the
// screen instead of seeing it.
#include <span>

#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

#include <gtest/gtest.h>

#include "desktop/desktop_host.h"
#include "view/field_form.h"
#include "view/forms.h"

namespace {

constexpr bool Shown = true;
constexpr bool Hidden = false;

// A control, or an array's next `count` ones in rows.
struct Placed {
    const char* name;
    int index;
    int left, top, width, height;
    bool visible;
    const char* text = "";
    const char* tip = "";
    int count = 1, perRow = 1, across = 0, down = 0;
};

// clang-format off
constexpr Placed Field[] = {
    // control, index, left, top, width, height, shown at first; text, tip; count, per row, steps
    {"picShade", -1, 604, 609, 1540, 940, Shown}, {"picSlateD", -1, 0, 470, 801, 200, Shown},
    {"picSlateU", -1, 0, 0, 801, 10, Shown}, {"imgMarkH", -1, 20, 0, 20, 10, Shown},
    {"picSlateStripes", -1, 0, 512, 801, 12, Shown}, {"picSlateR", -1, 780, 2, 20, 470, Shown},
    {"VScrollArea", -1, 0, 288, 17, 177, Shown}, {"imgMarkV", -1, 0, 10, 10, 20, Shown},
    {"picSlateL", -1, 0, 10, 20, 470, Shown}, {"picAreaWhole", -1, 0, 376, 33, 9, Hidden},
    {"area", -1, 20, 10, 1520, 920, Shown}, {"picForest", -1, 288, 24, 440, 40, Hidden},
    {"lblChk", 0, 40, 440, 20, 17, Hidden, "255"}, {"shpSelect", -1, 8, 440, 20, 20, Hidden},
    {"imgBlowup", -1, 680, 0, 60, 60, Hidden}, {"imgCover", -1, 660, 20, 20, 20, Hidden},
    {"HScrollArea", -1, 568, 0, 209, 17, Shown}, {"cmbLog", -1, 16, 8, 425, 21, Shown},
    {"comboMode", -1, 656, 80, 121, 21, Shown}, {"picAreaMap", -1, 16, 40, 152, 92, Shown},
    {"picAreaMapUnit", 0, 104, 8, 2, 2, Hidden, "", "", 40, 1, 0, 0},
    {"picAreaMapCover", -1, 0, 0, 76, 46, Shown}, {"shpAreaMap2", -1, 0, 0, 76, 46, Shown},
    {"lineAreaMapH", -1, 0, 32, 152, 0, Hidden}, {"lineAreaMapV", -1, 40, 0, 0, 92, Hidden},
    {"cmdNextTurn", -1, 656, 120, 123, 25, Shown, "End Turn"}, {"picBarWeapon", -1, 656, 31, 117, 42, Shown},
    {"imgFlag", -1, 96, 2, 18, 12, Shown}, {"imgInv", 0, 0, 0, 117, 42, Shown},
    {"Line1", -1, 472, 40, 144, 0, Shown}, {"imgBarWunder", -1, 776, 31, 5, 42, Shown},
    {"imgBarWcolor", -1, 777, 72, 3, 0, Shown}, {"imgBarWcover", -1, 777, 32, 3, 40, Shown},
    {"imgBar", 0, 472, 77, 0, 3, Shown, "", "", 4, 1, 0, 8},
    {"imgBar", 4, 614, 76, 5, 6, Shown, "", "", 12, 3, 5, 8}, {"imgBars", -1, 423, 75, 210, 31, Shown},
    {"imgStance", 0, 471, 48, 32, 25, Shown, "", "prone"},
    {"imgStance", 1, 506, 48, 32, 25, Shown, "", "crouch"},
    {"imgStance", 2, 541, 48, 32, 25, Shown, "", "stand"}, {"imgStance", 3, 576, 48, 32, 25, Shown, "", "run"},
    {"imgStop", -1, 616, 48, 32, 25, Shown, "", "stop for fire"},
    {"imgEnemyCount", -1, 448, 8, 25, 19, Hidden},
};
constexpr Placed Info[] = {
    // control, index, left, top, width, height, shown at first; text, tip; count, per row, steps
    {"cmdGndPage", 0, 680, 40, 17, 25, Shown, "1"}, {"cmdGndPage", 1, 696, 40, 17, 25, Shown, "2"},
    {"cmdGndPage", 2, 712, 40, 17, 25, Shown, "3"}, {"txtAPC", -1, 528, 56, 49, 13, Shown, "   APC  "},
    {"cmdPrev", -1, 528, 72, 25, 33, Shown, "<"}, {"cmdNext", -1, 552, 72, 25, 33, Shown, ">"},
    {"txtFullname", -1, 224, 24, 297, 19, Shown}, {"picB1", -1, 536, 424, 49, 17, Shown},
    {"Picture2", -1, 448, 264, 145, 158, Hidden}, {"lblInv", -1, 9, 9, 127, 140, Shown},
    {"picScript", -1, 0, 0, 450, 16, Hidden}, {"imgFace", -1, 78, 69, 140, 140, Shown},
    {"imgChevron", -1, 264, 72, 32, 32, Shown}, {"imgManFlag", -1, 490, 90, 18, 12, Shown},
    {"imgFlag", -1, 246, 219, 18, 12, Shown}, {"imgPack", -1, 277, 218, 142, 192, Shown},
    {"imgDrag", -1, 328, 168, 42, 42, Shown}, {"imgDragSwap", -1, 376, 168, 42, 42, Hidden},
    {"imgDel", -1, 253, 219, 14, 12, Hidden}, {"imgUpDn", 1, 154, 246, 14, 12, Hidden},
    {"imgUpDn", 2, 253, 233, 14, 12, Hidden, "", "", 2, 1, 0, 13},
    {"imgAwardBorder", -1, 368, 112, 102, 34, Hidden},
    {"imgAward", 0, 26, 417, 105, 41, Shown, "", "Medal of Honor"},
    {"imgAward", 1, 136, 417, 105, 41, Shown, "", "", 4, 4, 110, 40},
    {"imgAward", 5, 26, 457, 105, 41, Shown, "", "", 20, 5, 110, 40},
    {"imgInv", 0, 152, 218, 117, 42, Shown, "", "", 4, 2, -125, 50},
    {"imgInv", 4, 227, 120, 42, 42, Shown, "", "", 2, 1, 0, 48}, {"imgInv", 6, 277, 168, 42, 42, Shown},
    {"imgInv", 7, 27, 68, 42, 42, Shown, "", "", 3, 1, 0, 50},
    {"imgInv", 10, 277, 218, 42, 42, Shown, "", "", 12, 3, 50, 50},
    {"imgInv", 22, 8, 624, 9, 10, Hidden, "", "", 8, 8, 16, 0},
    {"imgInv", 30, 622, 68, 117, 42, Shown, "", "", 10, 1, 0, 50},
    {"imgInv", 40, 622, 68, 117, 42, Shown, "", "", 10, 1, 0, 50},
    {"imgInv", 50, 622, 68, 117, 42, Shown, "", "", 10, 1, 0, 50}, {"imgInv", 100, 504, 144, 42, 42, Shown},
};
constexpr Placed Progress[] = {
    {"imgProgress", -1, 0, 0, 529, 67, Hidden}, {"imgProgress1", -1, 19, 39, 460, 3, Hidden},
    {"Shape1", -1, 10, 24, 537, 65, Hidden},
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

    static std::string TextOf(const QWidget& widget) {
        if (const auto* button = dynamic_cast<const QPushButton*>(&widget))
            return button->text().remove('&').toStdString();  // before the letter of its shortcut
        const auto* label = dynamic_cast<const QLabel*>(&widget);
        return label != nullptr ? label->text().toStdString() : "";
    }

    DesktopHost host{frmField, OtherForms(), [](const InputEvent&) {}};
};

TEST_F(LayoutWindowTest, EveryWidgetStandsAsDesigned) {
    for (const auto& [form, rows] : {std::pair("frmField", std::span<const Placed>(Field)),
                                     {"frmInfo", Info},
                                     {"frmProgress", Progress}}) {
        FormWindow& window = WindowOf(form);
        for (const Placed& row : rows) {
            for (int i = 0; i < row.count; ++i) {
                const Control& control = *FormByName(form)->Find(row.name, row.index + i);
                SCOPED_TRACE(control.name + "(" + std::to_string(row.index + i) + ")");
                const QWidget& widget = *window.WidgetOf(control);
                const int end = control.kind == ControlKind::Line ? 1 : 0;  // a pixel of its own
                EXPECT_EQ(widget.geometry(),
                          QRect(row.left + i % row.perRow * row.across, row.top + i / row.perRow * row.down,
                                row.width + end, row.height + end));
                EXPECT_EQ(widget.parentWidget(), window.WidgetOf(*control.parent));
                EXPECT_EQ(widget.isHidden(), !row.visible);
                EXPECT_EQ(widget.toolTip().toStdString(), row.tip);
                EXPECT_EQ(TextOf(widget), row.text);
                EXPECT_FALSE(widget.accessibleName().isEmpty());
            }
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
    EXPECT_EQ(inside.childAt(20, 480), window.WidgetOf(frmField.cmbLog));
}

}  // namespace
