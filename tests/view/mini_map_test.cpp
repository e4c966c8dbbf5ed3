// The mini map: where a click brings the view, the lit window, and the big map.
#include "view/mini_map.h"

#include "state/state.h"
#include "tests/support/game_test.h"
#include "view/events.h"
#include "view/field_form.h"
#include "view/painting.h"

namespace {

class MiniMapTest : public GameTest {
  protected:
    MiniMapTest() { StartGame(); }

    static void OnMap(EventKind kind, float x, float y, int buttons = 1) {
        Dispatch({kind, "frmField.picAreaMap", -1, buttons, 0, x, y});
    }

    // Whether the lit window lies over the view and shows what lies under it.
    static bool LitWindowFits() {
        const PictureBox& cover = frmField.picAreaMapCover;
        for (int y = 0; y < cover.Height; ++y)
            for (int x = 0; x < cover.Width; ++x)
                if (cover.canvas.Pixel(x, y) !=
                    frmField.picAreaMap.canvas.Pixel(cover.Left + x, cover.Top + y))
                    return false;
        return cover.Visible && cover.Left * 10 == frmField.HScrollArea.Value &&
               cover.Top * 10 == frmField.VScrollArea.Value;
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
        EXPECT_EQ(frmField.area.Left, 20 - c.h);
        EXPECT_EQ(frmField.area.Top, 10 - c.v);
    }
    OnMap(EventKind::MouseMove, 0, 0, 0);
    EXPECT_EQ(frmField.HScrollArea.Value, 40) << "just moving does nothing";
    OnMap(EventKind::MouseMove, 150, 90, 4);
    EXPECT_EQ(frmField.HScrollArea.Value, 760) << "moving with any button down scrolls";
}

TEST_F(MiniMapTest, TheLitWindowFollowsTheViewAndTheField) {
    OnMap(EventKind::MouseDown, 76, 46);
    EXPECT_TRUE(LitWindowFits());
    Dispatch({EventKind::Scroll, "frmField.HScrollArea", -1, 33});
    EXPECT_EQ(frmField.HScrollArea.Value, 20) << "a thumb between cells shows whole ones";
    EXPECT_TRUE(LitWindowFits());
    const PictureBox& cover = frmField.picAreaMapCover;
    const Colour before = cover.canvas.Pixel(20, 20);
    PaintCell((cover.Left + 20) / 2, (cover.Top + 20) / 2, frmField.area.canvas, 0, 7);
    EXPECT_NE(cover.canvas.Pixel(20, 20), before) << "a cell that changes in view";
    EXPECT_TRUE(LitWindowFits());
}

TEST_F(MiniMapTest, TheBigMapIsAHalfSizeStillThatSwallowsKeys) {
    const int unit = curUnit;
    const int time = UnitTable[unit].time;
    const PictureBox& whole = frmField.picAreaWhole;
    for (const int key : {77, 27, 32, 13, 39}) {
        Dispatch({EventKind::KeyDown, "frmField", -1, 77});
        EXPECT_TRUE(whole.Visible && whole.canvas.Width() == 760 && whole.canvas.Height() == 460);
        EXPECT_FALSE(frmField.HScrollArea.Visible || frmField.imgMarkV.Visible);
        Dispatch({EventKind::KeyDown, "frmField", -1, key});
        EXPECT_FALSE(whole.Visible) << key;
        EXPECT_TRUE(frmField.VScrollArea.Visible && frmField.imgMarkH.Visible);
        EXPECT_EQ(curUnit, unit) << "the key does nothing else";
        EXPECT_EQ(UnitTable[unit].time, time);
    }
    Dispatch({EventKind::MouseDown, "frmField.picAreaMapCover", -1, 1});
    EXPECT_TRUE(whole.Visible);
    Dispatch({EventKind::MouseDown, "frmField.picAreaWhole", -1, 2});
    EXPECT_FALSE(whole.Visible);
}

}  // namespace
