// The mini map: where a click brings the view, the lit window, and the big map.
#include "view/mini_map.h"

#include "platform/keys.h"
#include "tests/support/game_test.h"
#include "view/painting.h"

namespace {

class MiniMapTest : public GameTest {
  protected:
    MiniMapTest() { StartGame(); }

    static void OnMap(EventKind kind, float x, float y, int buttons = LeftButton) {
        Dispatch({kind, "frmField.picAreaMap", -1, buttons, 0, x, y});
    }
};

TEST_F(MiniMapTest, AClickCentresTheView) {
    struct Case {
        float x, y;
        int h, v;
    };
    constexpr Case Cases[] = {
        {0, 0, 0, 0},           // the corner
        {151, 91, 760, 460},    // the other one
        {76, 46, 380, 240},     // 38 - 19 columns, 23 - 11 rows
        {77, 47, 390, 250},     // half a cell further
        {41.5F, 22.5F, 40, 0},  // 42: the pixel is rounded to the even one
    };
    for (const Case& c : Cases) {
        OnMap(EventKind::MouseDown, c.x, c.y);
        EXPECT_EQ(frmField.HScrollArea.Value, c.h) << c.x;
        EXPECT_EQ(frmField.VScrollArea.Value, c.v) << c.y;
    }
    OnMap(EventKind::MouseMove, 0, 0, 0);
    EXPECT_EQ(frmField.HScrollArea.Value, 40) << "just moving does nothing";
    OnMap(EventKind::MouseMove, 150, 90, MiddleButton);
    EXPECT_EQ(frmField.HScrollArea.Value, 760) << "moving with any button down scrolls";
}

TEST_F(MiniMapTest, TheLitWindowFollowsTheViewAndTheField) {
    const PictureBox& cover = frmField.picAreaMapCover;
    Dispatch({EventKind::Scroll, "frmField.HScrollArea", -1, 33});
    EXPECT_EQ(frmField.HScrollArea.Value, 20) << "a thumb between cells shows whole ones";
    EXPECT_EQ(cover.Left, 2);
    const Colour before = cover.canvas.Pixel(20, 20);
    PaintCell(11, 10, frmField.area.canvas, 0, 7);
    EXPECT_NE(cover.canvas.Pixel(20, 20), before) << "a cell that changes in view";
    Dispatch({EventKind::Change, "frmField.VScrollArea", -1, 460});
    EXPECT_EQ(cover.Top, 46);
    OnMap(EventKind::MouseDown, 77, 47);
    EXPECT_EQ(cover.Left, 2) << "it doesn't follow between two cells";
}

TEST_F(MiniMapTest, TheBigMapCoversTheFieldAndSwallowsKeys) {
    const int unit = curUnit;
    for (const int key : {int{'M'}, int{EscapeKey}, int{SpaceKey}}) {
        Dispatch({EventKind::KeyDown, "frmField", -1, 'M'});
        EXPECT_TRUE(frmField.picAreaWhole.Visible);
        Dispatch({EventKind::KeyDown, "frmField", -1, key});
        EXPECT_FALSE(frmField.picAreaWhole.Visible) << key;
        EXPECT_EQ(curUnit, unit) << "the key does nothing else";
    }
}

}  // namespace
