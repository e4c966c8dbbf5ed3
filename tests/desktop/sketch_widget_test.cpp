// Strokes over a canvas, as they come out on the screen.
#include "desktop/sketch_widget.h"

#include <gtest/gtest.h>

#include "desktop/picture_widget.h"
#include "desktop/scale.h"

namespace {

// A red square of four pixels is shown three pixels further east, at every size of the windows.
TEST(SketchWidgetTest, APieceIsShownAside) {
    constexpr Colour Green = Rgb(0, 90, 0);
    constexpr Colour Red = Rgb(200, 0, 0);
    for (const Halves halves : {2, 4}) {
        SetScale(halves);
        Picture canvas(40, 40, Green);
        for (int i = 0; i < 16; ++i)
            canvas.SetPixel(10 + i % 4, 10 + i / 4, Red);
        QWidget window;
        CanvasSurface surface(canvas, Green, window);
        surface.setGeometry(ToScreen(QRect(0, 0, 40, 40)));
        SketchWidget sketch(surface, {0, 0, 40, 40}, &surface);
        sketch.Show({Piece(8, 8, 8, 11, 8)});
        const QImage shown = surface.grab().toImage();
        const auto at = [&](int x, int y) { return shown.pixel(ToScreen(x), ToScreen(y)); };
        EXPECT_EQ(at(13, 10), Red) << halves;
        EXPECT_EQ(at(16, 13), Red) << halves;
        EXPECT_EQ(at(17, 10), Green) << halves;
        EXPECT_EQ(at(12, 10), Green) << halves << ": the piece lies over it";
        EXPECT_EQ(at(10, 10), Red) << halves << ": beside the piece all is as it was";
    }
    SetScale(SingleSize);
}

}  // namespace
