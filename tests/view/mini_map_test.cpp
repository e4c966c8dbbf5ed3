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
    OnMap(EventKind::MouseMove, 150, 90, 4);
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
    EXPECT_EQ(cover.canvas.Pixel(20, 20), frmField.picAreaMap.canvas.Pixel(22, 20));
    Dispatch({EventKind::Change, "frmField.VScrollArea", -1, 460});
    EXPECT_EQ(cover.Top, 46);
    for (const auto& [x, y] : {std::pair(0, 0), {75, 45}, {30, 7}})
        EXPECT_EQ(cover.canvas.Pixel(x, y), frmField.picAreaMap.canvas.Pixel(x + 2, y + 46));
    OnMap(EventKind::MouseDown, 77, 47);
    EXPECT_EQ(cover.Left, 2) << "it doesn't follow between two cells";
    EXPECT_EQ(frmField.area.Left, 20 - 390);
}

TEST_F(MiniMapTest, ACellIsTheMeanOfItsPixelsInItsOwnPlaceAlone) {
    const Rectangle cell = {11 * 20, 10 * 20, 20, 20};
    const Picture before = frmField.picAreaMap.canvas;
    for (int y = 0; y < cell.height; ++y)
        for (int x = 0; x < cell.width; ++x)
            frmField.area.canvas.SetPixel(cell.left + x, cell.top + y,
                                          x < 10 ? Rgb(200, 0, 0) : Rgb(0, (x + y) % 2 * 100, 0));
    picStretchSquare(frmField, 11, 10);
    for (int y = 19; y < 23; ++y) {
        for (int x = 21; x < 25; ++x) {
            const bool inside = x / 2 == 11 && y / 2 == 10;
            const Colour mean = x == 22 ? Rgb(200, 0, 0) : Rgb(0, 50, 0);
            EXPECT_EQ(frmField.picAreaMap.canvas.Pixel(x, y), inside ? mean : before.Pixel(x, y)) << x << y;
        }
    }
}

TEST_F(MiniMapTest, TheBigMapCoversTheFieldAndSwallowsKeys) {
    const int unit = curUnit;
    const PictureBox& whole = frmField.picAreaWhole;
    const std::initializer_list<const Control*> aside = {&frmField.HScrollArea, &frmField.VScrollArea,
                                                         &frmField.imgMarkH, &frmField.imgMarkV};
    for (const int key : {77, 27, 32}) {
        frmField.area.canvas.SetPixel(41, 61, Rgb(0, 0, static_cast<std::uint8_t>(key)));
        for (const auto& [x, y] : {std::pair(40, 60), {41, 60}, {40, 61}})
            frmField.area.canvas.SetPixel(x, y, frmField.area.canvas.Pixel(41, 61));
        Dispatch({EventKind::KeyDown, "frmField", -1, 77});
        EXPECT_TRUE(whole.Visible);
        EXPECT_EQ(whole.canvas.Bounds(), (Rectangle{0, 0, 760, 460}));
        EXPECT_EQ(whole.canvas.Pixel(20, 30), Rgb(0, 0, static_cast<std::uint8_t>(key))) << "drawn anew";
        EXPECT_EQ(whole.Left + 1000 * whole.Top, 20 + 1000 * 10);
        for (const Control* control : aside)
            EXPECT_FALSE(control->Visible) << control->name;
        Dispatch({EventKind::KeyDown, "frmField", -1, key});
        EXPECT_FALSE(whole.Visible) << key;
        for (const Control* control : aside)
            EXPECT_TRUE(control->Visible) << control->name;
        EXPECT_EQ(curUnit, unit) << "the key does nothing else";
    }
}

}  // namespace
