// The windows at other sizes than the single one.
#include "desktop/scale.h"

#include <random>

#include "test_form.h"

namespace {

struct ScaleSetter {
    explicit ScaleSetter(Halves halves) { SetScale(halves); }
    ~ScaleSetter() { SetScale(2); }
    ScaleSetter(const ScaleSetter&) = delete;
    ScaleSetter& operator=(const ScaleSetter&) = delete;
};

// The field's window is 799 by 636 pixels below a menu of 22; a desktop's frame takes 16 by 40 of the screen.
TEST(ScaleTest, TheLargestScaleIsTakenAtWhichEveryWindowFits) {
    TestForm field;
    field.Width = 799;
    field.Height = 636;
    Form file;
    file.Width = 760;
    file.Height = 640;
    struct Case {
        QSize screen;
        Halves halves;
    };
    const Case cases[] = {{{640, 480}, 2},   {{1215, 1027}, 3}, {{1214, 1027}, 2}, {{1215, 1026}, 2},
                          {{1920, 1080}, 3}, {{1920, 1200}, 3}, {{2560, 1440}, 4}, {{3440, 1440}, 4},
                          {{3840, 2160}, 6}, {{7680, 4320}, 8}};
    const Form* const both[] = {&field, &file};
    for (const Case& row : cases)
        EXPECT_EQ(FittingScale(row.screen, both), row.halves)
            << row.screen.width() << "x" << row.screen.height();
    EXPECT_EQ(LargestScale(SizeWithMenu(field), {1598, 1316}), 4);
    EXPECT_EQ(LargestScale(SizeWithMenu(field), {1598, 1315}), 3) << "the menu needs its place";
    file.Height = 700;
    EXPECT_EQ(FittingScale({1215, 1027}, both), 2) << "the file doesn't fit";
}

TEST(ScaleTest, EdgesAreRoundedHalfUp) {
    const ScaleSetter oneAndAHalf(3);
    constexpr int Edges[][2] = {{-3, -4}, {-2, -3}, {-1, -1}, {1, 2}, {2, 3}};
    for (const auto& [edge, onScreen] : Edges)
        EXPECT_EQ(ToScreen(edge), onScreen) << edge;
    EXPECT_EQ(ToScreen(QRect(1, 2, 2, 3)), QRect(2, 3, 3, 5));
    EXPECT_EQ(Touched({1, 2, 2, 3}), QRect(1, 3, 4, 5));
}

TEST(ScaleTest, APixelIsTheMeanOfWhatItCovers) {
    Picture row(3, 1);
    row.SetPixel(0, 0, Rgb(10, 0, 255));
    row.SetPixel(1, 0, Rgb(20, 100, 255));
    row.SetPixel(2, 0, Rgb(30, 0, 0));
    const ScaleSetter oneAndAHalf(3);
    const QImage opaque = Enlarged(row, {0, 0, 5, 2}, Ground::Opaque);
    const Colour expected[] = {Rgb(10, 0, 255), Rgb(15, 50, 255), Rgb(20, 100, 255), Rgb(30, 0, 0),
                               Rgb(30, 0, 0)};
    for (int x = 0; x < 5; ++x)
        for (int y = 0; y < 2; ++y)
            EXPECT_EQ(opaque.pixel(x, y), expected[x]) << x;
    row.SetPixel(0, 0, 0);
    const QImage through = Enlarged(row, {0, 0, 2, 1}, Ground::SeenThrough);
    const auto* premultiplied = reinterpret_cast<const Colour*>(through.constScanLine(0));
    EXPECT_EQ(premultiplied[0], 0U);
    EXPECT_EQ(premultiplied[1], 0x800A3280U) << "half of RGB(20,100,255)";
}

TEST(ScaleTest, EveryPixelHasTheSameShareOfTheScreenAtEverySize) {
    for (Halves halves = SingleSize; halves <= LargestSize; ++halves) {
        const ScaleSetter setter(halves);
        for (int lit = 0; lit < 4; ++lit) {
            Picture line(4, 1);
            line.SetPixel(lit, 0, Rgb(200, 0, 0));
            const QImage shown = Enlarged(line, {0, 0, 2 * halves, 1}, Ground::Opaque);
            int sum = 0;
            for (int x = 0; x < shown.width(); ++x)
                sum += qRed(shown.pixel(x, 0));
            EXPECT_EQ(sum, 100 * halves) << halves << " halves, pixel " << lit;
        }
    }
}

class ScaledTest : private ScaleSetter, public DesktopTest, public testing::WithParamInterface<Halves> {
  protected:
    ScaledTest() : ScaleSetter(GetParam()) {}

    QWidget& Inside() const { return *window.WidgetOf(form); }
};

// Each edge is rounded in the window, whatever a control lies in: so neighbours meet.
TEST_P(ScaledTest, ControlsAndPicturesLieWhereTheWindowsEdgesAreRounded) {
    for (int i = 0; i < 300 * 240; ++i)
        form.picBoard.canvas.SetPixel(i % 300, i / 300, Rgb(i % 300 % 256, i / 300, i % 256));
    form.shpFrame.Visible = false;
    host.PumpEvents();
    // At (0, 0) of the window lies (50, 40) of the board.
    for (int x = 0; x < 150; x += 2)
        ASSERT_EQ(Screen().pixel(ToScreen(x), ToScreen(x)), form.picBoard.canvas.Pixel(50 + x, 40 + x)) << x;
    form.imgMark.Picture = std::make_shared<const Picture>(20, 20, Rgb(255, 0, 255));
    form.imgMark.Left = 101;
    for (const int left : {-50, -49}) {
        form.picBoard.Left = left;
        host.PumpEvents();
        const QWidget& mark = *window.WidgetOf(form.imgMark);
        const QRect place = ToScreen(QRect(left + 101, 40, 20, 20));
        EXPECT_EQ(QRect(mark.mapTo(&Inside(), QPoint(0, 0)), mark.size()), place);
        for (const QPoint corner : {place.topLeft(), place.bottomRight()})
            EXPECT_EQ(Screen().pixel(corner), Rgb(255, 0, 255)) << "no gap at its edges";
    }
}

TEST_P(ScaledTest, APieceIsPaintedAsTheWholeIs) {
    std::mt19937 draw(11);
    const auto upTo = [&draw](int limit) { return static_cast<int>(draw() % static_cast<unsigned>(limit)); };
    Picture spots(42, 42, 0);
    for (int i = 0; i < 500; ++i)
        spots.SetPixel(upTo(42), upTo(42), Rgb(upTo(256), upTo(256), 0));
    form.imgMark.Picture = form.imgDrag.Picture = std::make_shared<const Picture>(spots);
    form.canvas = Picture(400, 300, Rgb(255, 0, 255));
    for (int step = 0; step < 60; ++step) {
        for (Picture* canvas : {&form.picBoard.canvas, &form.canvas})
            for (int x = upTo(400), y = upTo(300), i = 0; i < 5; ++i)
                canvas->SetPixel(x + upTo(9), y + upTo(9), Rgb(upTo(256), upTo(256), upTo(256)));
        form.imgDrag.Left = upTo(400);
        form.imgDrag.Top = upTo(300);
        form.shpFrame.Left = upTo(200);
        if (step % 10 == 9) form.picBoard.Left = -upTo(60);
        host.Refresh(form);
        ASSERT_EQ(Screen(), Inside().grab().toImage().convertToFormat(QImage::Format_RGB32)) << step;
    }
}

TEST_P(ScaledTest, ThePointerIsWhereItIsSeen) {
    const float factor = static_cast<float>(GetParam()) / 2;
    for (const int pixel : {30, 31}) {
        events.clear();
        QTest::mouseMove(window.windowHandle(), Inside().mapTo(&window, QPoint(pixel, pixel + 10)));
        ASSERT_EQ(events.size(), 1U);
        EXPECT_EQ(events[0].control, "frmTest.picBoard");
        EXPECT_FLOAT_EQ(events[0].x, 50 + static_cast<float>(pixel) / factor);
        EXPECT_FLOAT_EQ(events[0].y, 40 + static_cast<float>(pixel + 10) / factor);
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, ScaledTest, testing::Values(2, 3, 4, 5, 6));

}  // namespace
