// Pictures: block copies clipped at both ends, scaling, the changed rectangle, decoding.
#include "platform/picture.h"

#include "platform/blit.h"
#include "platform/picture_file.h"
#include "tests/support/game_test.h"
#include "view/stored_pictures.h"

namespace {

constexpr Colour Black = Rgb(0, 0, 0);
constexpr Colour White = Rgb(255, 255, 255);

// A black and white picture as text.
std::string Drawn(const Picture& picture) {
    std::string text;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x)
            text += picture.Pixel(x, y) == Black ? '.' : '#';
        text += '\n';
    }
    return text;
}

TEST(BitBlt, CopiesAreClippedAtBothPictures) {
    struct Case {
        const char* what;
        int x, y, sourceX, sourceY;
        const char* drawn;
    };
    constexpr Case Cases[] = {
        {"over the target's left top", -1, -1, 0, 0, "#...\n....\n....\n....\n"},
        {"over the target's right bottom", 3, 3, 0, 0, "....\n....\n....\n...#\n"},
        {"from before the source", 0, 0, -1, -1, "....\n.#..\n....\n....\n"},
        {"far away", 100, 0, 0, 0, "....\n....\n....\n....\n"},
    };
    const Picture source(2, 2, White);
    for (const Case& c : Cases) {
        Picture target(4, 4);
        BitBlt(target, c.x, c.y, 2, 2, source, c.sourceX, c.sourceY, RasterOp::SRCCOPY);
        EXPECT_EQ(Drawn(target), c.drawn) << c.what;
    }
}

TEST(StretchBlt, EachPixelIsTheAverageOfThoseItCovers) {
    Picture source(4, 2, Black);
    source.SetPixel(0, 0, White);
    source.SetPixel(1, 1, White);  // half of the left square is white
    Picture target(2, 1);
    StretchBlt(target, {0, 0, 2, 1}, source, source.Bounds());
    EXPECT_EQ(target.Pixel(0, 0), Rgb(128, 128, 128));  // 2 * 255 / 4 = 127.5, upward
    EXPECT_EQ(target.Pixel(1, 0), Black);
    EXPECT_THROW(StretchBlt(target, {0, 0, 1, 1}, source, {2, 0, 4, 2}), RunTimeError);
}

TEST(Picture, TheChangedRectangleHoldsAllThatWasDrawnSinceItWasTaken) {
    Picture picture(100, 50);
    EXPECT_EQ(picture.TakeChanged(), picture.Bounds()) << "a new picture is all new";
    EXPECT_TRUE(picture.TakeChanged().Empty());
    picture.SetPixel(10, 5, White);
    BitBlt(picture, 90, 40, 20, 20, Picture(20, 20), 0, 0, RasterOp::SRCCOPY);
    EXPECT_EQ(picture.TakeChanged(), (Rectangle{10, 5, 90, 45}));
}

// Two by one pixels, 24 bits: blue, then red. Written out by hand from the file format.
std::string TinyBitmap() {
    std::string file = "BM";
    // File size, offset of the pixels, header size, width, height, one plane of 24 bits.
    for (const unsigned word : {62, 0, 54, 40, 2, 1, 24 << 16 | 1, 0, 0, 0, 0, 0, 0})
        file.append(reinterpret_cast<const char*>(&word), 4);
    return file + std::string("\xFF\x00\x00\x00\x00\xFF\x00\x00", 8);
}

TEST(PictureFiles, DecodeToTheirPixelsAndTransparentOnesHaveNoColour) {
    const Picture picture = DecodePicture(TinyBitmap(), "tiny.bmp");
    ASSERT_EQ(picture.Bounds(), (Rectangle{0, 0, 2, 1}));
    EXPECT_EQ(picture.Pixel(0, 0), Rgb(0, 0, 255));
    EXPECT_EQ(picture.Pixel(1, 0), Rgb(255, 0, 0));
    EXPECT_EQ(StoredImage("imgAwardBorder.gif")->Pixel(51, 17), 0U) << "the middle of the frame";
}

TEST(PictureFiles, WhatIsNoPictureIsNamedAndOneOfGigabytesRefused) {
    std::string huge = TinyBitmap();
    huge.replace(18, 8, std::string("\x20\x4E\x00\x00\x20\x4E\x00\x00", 8));
    const auto errorOf = [](const std::string& content) {
        return ErrorOf([&] { DecodePicture(content, "\\pic\\x.bmp"); });
    };
    EXPECT_TRUE(
        errorOf("MZ, no picture").starts_with("Run-time error 4: Bad data: pic/x.bmp: expected a picture"));
    EXPECT_TRUE(errorOf(huge).ends_with("expected up to 2048 pixels either way, found 20000 by 20000"));
}

}  // namespace
