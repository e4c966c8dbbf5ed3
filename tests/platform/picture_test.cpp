// Pictures: block copies clipped at both ends, scaling, the changed rectangle, decoding.
#include "platform/picture.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/blit.h"
#include "platform/picture_bytes.h"
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

// A text with zeros in it.
template <std::size_t Size>
std::string Bytes(const char (&text)[Size]) {
    return {text, Size - 1};
}

// One black pixel, in colours of the picture's own, after a comment of two parts.
const std::string TinyGif =
    Bytes("GIF89a\1\0\1\0\0\0\0!\xFE\2ab\1c\0,\0\0\0\0\1\0\1\0\x80\0\0\0\xFF\xFF\xFF\2\2\x44\1\0;");

// A grey JPEG of two blocks. Each table has one code, a zero: a number of 15 bits follows that of brightness,
// the block ends with that of details. So a block is a zero, fifteen ones, a zero and seven bits to spare;
// the FF among them is followed by a zero, and a restart parts the blocks.
const std::string JpegTables = Bytes(
    "\xFF\xD8\xFF\xFE\0\4ab\xFF\xFF\xC1\0\x0B\x08\0\x08\0\x10\1\1\x11\0"
    "\xFF\xC4\0\x26\0\1\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x0F\x10\1\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0");
const std::string JpegRestart = Bytes("\xFF\xDD\0\4\0\1");
const std::string JpegScan = Bytes("\xFF\xDA\0\x08\1\1\0\0\x3F\0");
const std::string JpegBlock = Bytes("\x7F\xFF\0\x7F");
const std::string TinyJpeg =
    JpegTables + JpegRestart + JpegScan + JpegBlock + "\xFF\xD0" + JpegBlock + "\xFF\xD9";

TEST(PictureFiles, AreRefusedWhereverTheyAreCut) {
    struct Case {
        std::string whole;
        const char* format;
        std::size_t known;  // bytes that tell the format
    };
    const Case cases[] = {{TinyBitmap(), "BMP", 2}, {TinyGif, "GIF", 3}, {TinyJpeg, "JPEG", 1}};
    for (const Case& c : cases) {
        const auto errorOf = [&](const std::string& content) {
            return ErrorOf([&] { CheckPictureBytes(content, "\\pic\\x"); });
        };
        EXPECT_EQ(errorOf(c.whole), "");
        EXPECT_EQ(errorOf(c.whole + "more"), "");
        for (std::size_t size = c.known; size < c.whole.size(); ++size)
            EXPECT_EQ(errorOf(c.whole.substr(0, size)), "Run-time error 4: Bad data: pic/x: byte " +
                                                            std::to_string(size) + ": expected a whole " +
                                                            c.format + ", found the end of the file");
    }
    EXPECT_EQ(DecodePicture(TinyGif, "tiny.gif").Pixel(0, 0), Black);
    EXPECT_EQ(DecodePicture(TinyJpeg, "tiny.jpg").Bounds(), (Rectangle{0, 0, 16, 8}));
}

// Those of other programs: with one, three and four colours, fewer blocks for some, restarts, long runs of
// zeros.
TEST(PictureFiles, TheDataOfAJpegAreCountedToTheLastCode) {
    const std::filesystem::path corpus = std::filesystem::path(FUZZ_CORPUS) / "picture";
    for (const char* name : {"baseline.jpg", "gray.jpg", "cmyk.jpg", "restarts.jpg", "subsampled.jpg"}) {
        std::ifstream file(corpus / name, std::ios::binary);
        std::string whole{std::istreambuf_iterator<char>(file), {}};
        EXPECT_EQ(ErrorOf([&] { DecodePicture(whole, name); }), "");
        whole.erase(whole.size() - 4, 2);  // before the mark of the end
        EXPECT_NE(ErrorOf([&] { DecodePicture(whole, name); }), "") << name;
    }
    const std::string upAndDown = JpegTables + JpegScan + Bytes("\x7F\xFF\0\x1F\xFF\0\xBF\xFF\xD9");
    EXPECT_EQ(ErrorOf([&] { DecodePicture(upAndDown, ""); }), "") << "32767, and then 16384 less";
}

TEST(PictureFiles, WhatTheGameCantShowIsNamed) {
    struct Case {
        std::string content;
        const char* told;  // after "pic/x: "
    };
    std::string tall = TinyBitmap(), twoRows = tall, oldHeader = tall, oldWhole = tall, gif = TinyGif;
    tall.replace(22, 4, "\xFF\xFF\xFF\x7F");
    twoRows.replace(22, 4, "\xFE\xFF\xFF\xFF");  // two rows, stored from the top
    oldHeader.replace(14, 12, Bytes("\x0C\0\0\0\2\0\2\0\1\0\x18\0"));
    oldWhole.replace(14, 12, Bytes("\x0C\0\0\0\2\0\1\0\1\0\x07\0"));  // of bits that the decoder doesn't know
    gif.replace(6, 4, "\x01\x08\1\0", 4);
    const std::string jpeg = Bytes("\xFF\xD8\xFF");
    const Case cases[] = {
        // The decoder takes a length in this odd control block, 59, for the mark of the end.
        {Bytes("GIF89a\1\0\1\0\0\0\0!\xF9\5abcde;") + std::string(59, 'x') + TinyGif.substr(20),
         "expected a picture (BMP, GIF or JPEG), found none"},
        {"MZ, no picture", "expected a picture (BMP, GIF or JPEG), found unknown image type"},
        {tall, "byte 62: expected a whole BMP, found the end of the file"},
        {twoRows, "byte 62: expected a whole BMP, found the end of the file"},
        {oldHeader, "byte 62: expected a whole BMP, found the end of the file"},
        {oldWhole, "expected a picture (BMP, GIF or JPEG), found bad bpp"},
        {gif, "expected up to 2048 pixels either way, found 2049 by 1"},
        {Bytes("GIF89a\1\0\1\0\0\0\0;"), "byte 14: expected a picture in the GIF, found none"},
        {Bytes("GIF89a\1\0\1\0\0\0\0?"), "byte 14: expected a block of a GIF, found the code 63"},
        {jpeg + "\xC2", "byte 4: expected a baseline JPEG, found a progressive one"},
        {jpeg + "\xC9", "byte 4: expected a baseline JPEG, found another kind"},
        {jpeg + "\xD9", "byte 4: expected a picture in the JPEG, found none"},
        {jpeg + Bytes("\xDB\0\2\1"), "byte 7: expected a mark of a JPEG, found the code 1"},
        {jpeg + Bytes("\xC4\0\x13\0") + std::string(16, '\x10'),
         "byte 23: expected up to 255 Huffman codes, found 256"},
        {jpeg + Bytes("\xC4\0\x13\0\1\1\3") + std::string(13, '\0'),
         "byte 23: expected Huffman codes of which none begins another, found others"},
        {jpeg + Bytes("\xC4\0\x13\4"), "byte 7: expected a place of a Huffman table, found another"},
        {jpeg + Bytes("\xC0\0\x0B\x08\0\1\0\1\1\1\x15\0"),
         "byte 14: expected 1 to 4 blocks either way, found others"},
        {JpegTables + JpegRestart + JpegScan + JpegBlock + "\xFF\xD9",
         "byte 84: expected a restart of the picture's data, found none"},
        {JpegTables + JpegRestart + JpegScan + "\x7F\xFF\xD9",
         "byte 81: expected more of the picture's data, found a mark"},
        {JpegTables + JpegScan + JpegBlock + Bytes("\x7F\xFF\0"),
         "byte 79: expected a Huffman code, found another"},
        {JpegTables + JpegScan + Bytes("\x7F\xFF\0\x3F\xFF\0\xBF\xFF\xD9"),
         "byte 79: expected a brightness of 16 bits, found 65534"},
        {jpeg + Bytes("\xDA\0\x08\1\1\0\0\x3F\0"), "byte 9: expected a component of the JPEG, found another"},
        {"\xFF\xFF\xD8\xFF\xC2", "byte 3: expected the start of a JPEG, found another mark"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(ErrorOf([&] { DecodePicture(c.content, "\\pic\\x"); }),
                  std::string("Run-time error 4: Bad data: pic/x: ") + c.told);
}

}  // namespace
