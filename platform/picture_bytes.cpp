#include "platform/picture_bytes.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/files.h"
#include "platform/run_time_error.h"

namespace {

// Goes through the bytes of a file, and refuses it where it ends too early.
class ByteWalk {
  public:
    ByteWalk(std::string_view read, std::string_view file, const char* fileKind)
        : content(read), name(file), kind(fileKind) {}

    std::size_t At() const { return at; }
    std::size_t Left() const { return content.size() - at; }

    void GoTo(std::size_t place) {
        at = 0;
        Skip(place);
    }
    void Skip(std::size_t count) {
        if (count > Left()) {
            at = content.size();
            Refuse(std::string("a whole ") + kind, "the end of the file");
        }
        at += count;
    }
    std::size_t Take() {
        Skip(1);
        return static_cast<unsigned char>(content[at - 1]);
    }
    std::size_t TakeBigEndian16() {
        const std::size_t high = Take();
        return high << 8 | Take();
    }
    std::size_t TakeLittleEndian(int bytes) {
        std::size_t value = 0;
        for (int i = 0; i < bytes; ++i)
            value |= Take() << 8 * i;
        return value;
    }

    [[noreturn]] void Refuse(const std::string& expected, const std::string& found) const {
        throw RunTimeError(Fault::BadData, ShownName(name) + ": byte " + std::to_string(at) + ": expected " +
                                               expected + ", found " + found);
    }

  private:
    std::string_view content;
    std::string_view name;
    const char* kind;
    std::size_t at = 0;
};

// The rows must be there; what a row means is the decoder's.
void CheckBmp(ByteWalk bmp) {
    constexpr std::size_t OldHeader = 12;
    bmp.GoTo(10);
    const std::size_t pixelsAt = bmp.TakeLittleEndian(4);
    const int side = bmp.TakeLittleEndian(4) == OldHeader ? 2 : 4;  // bytes of the width and of the height
    const std::size_t width = bmp.TakeLittleEndian(side);
    const auto height = static_cast<std::int32_t>(bmp.TakeLittleEndian(side));  // below 0: from the top
    bmp.Skip(2);
    const std::size_t rowBytes = (width * bmp.TakeLittleEndian(2) + 31) / 32 * 4;
    bmp.GoTo(pixelsAt);
    const auto rows = static_cast<std::size_t>(std::abs(std::int64_t{height}));
    if (rowBytes > 0 && rows > bmp.Left() / rowBytes) bmp.Skip(bmp.Left() + 1);
}

void SkipColours(ByteWalk& gif, std::size_t flags) {
    constexpr std::size_t HasColours = 0x80;
    if ((flags & HasColours) != 0) gif.Skip(3 * (std::size_t{2} << (flags & 7)));
}

void CheckGif(ByteWalk gif) {
    enum Block : std::size_t { Extension = '!', Image = ',', End = ';' };
    gif.Skip(10);  // "GIF89a", width and height
    const std::size_t flags = gif.Take();
    gif.Skip(2);
    SkipColours(gif, flags);
    bool pictured = false;
    for (std::size_t block = gif.Take(); block != End; block = gif.Take()) {
        if (block == Extension) {
            gif.Skip(1);
        } else if (block == Image) {
            gif.Skip(8);  // where it lies in the whole
            SkipColours(gif, gif.Take());
            gif.Skip(1);  // bits of the first code
            pictured = true;
        } else {
            gif.Refuse("a block of a GIF", "the code " + std::to_string(block));
        }
        for (std::size_t length = gif.Take(); length != 0; length = gif.Take())
            gif.Skip(length);
    }
    if (!pictured) gif.Refuse("a picture in the GIF", "none");
}

constexpr std::size_t MarkStart = 0xFF;

enum JpegMark : std::size_t {
    Stuffing = 0x00,  // after MarkStart: a byte of data that looks like it
    FirstFrame = 0xC0,
    LastBaseline = 0xC1,
    Progressive = 0xC2,
    HuffmanTables = 0xC4,
    Reserved = 0xC8,
    Conditioning = 0xCC,
    LastFrame = 0xCF,
    FirstRestart = 0xD0,
    LastRestart = 0xD7,
    StartOfImage = 0xD8,
    EndOfImage = 0xD9,
    StartOfScan = 0xDA
};

std::size_t TakeMark(ByteWalk& jpeg) {
    std::size_t mark = jpeg.Take();
    if (mark != MarkStart) jpeg.Refuse("a mark of a JPEG", "the code " + std::to_string(mark));
    while (mark == MarkStart)
        mark = jpeg.Take();
    return mark;
}

// Gives the mark that ends the scan.
std::size_t SkipScan(ByteWalk& jpeg) {
    for (;;) {
        while (jpeg.Take() != MarkStart) {
        }
        std::size_t mark = MarkStart;
        while (mark == MarkStart)
            mark = jpeg.Take();
        const bool within = mark == Stuffing || (mark >= FirstRestart && mark <= LastRestart);
        if (!within) return mark;
    }
}

bool IsFrame(std::size_t mark) {
    return mark >= FirstFrame && mark <= LastFrame && mark != HuffmanTables && mark != Reserved &&
           mark != Conditioning;
}

void CheckJpeg(ByteWalk jpeg) {
    if (TakeMark(jpeg) != StartOfImage || jpeg.At() != 2) jpeg.Refuse("the start of a JPEG", "another mark");
    bool pictured = false;
    for (std::size_t mark = TakeMark(jpeg); mark != EndOfImage;) {
        if (IsFrame(mark) && mark > LastBaseline)
            jpeg.Refuse("a baseline JPEG", mark == Progressive ? "a progressive one" : "another kind");
        const std::size_t length = jpeg.TakeBigEndian16();
        jpeg.Skip(length < 2 ? 0 : length - 2);
        pictured = pictured || mark == StartOfScan;
        mark = mark == StartOfScan ? SkipScan(jpeg) : TakeMark(jpeg);
    }
    if (!pictured) jpeg.Refuse("a picture in the JPEG", "none");
}

}  // namespace

void CheckPictureBytes(std::string_view content, std::string_view name) {
    struct Format {
        std::string_view start;
        const char* name;
        void (*check)(ByteWalk);
    };
    constexpr Format Formats[] = {
        {"BM", "BMP", CheckBmp}, {"GIF", "GIF", CheckGif}, {"\xFF", "JPEG", CheckJpeg}};
    for (const Format& format : Formats)
        if (content.starts_with(format.start)) format.check({content, name, format.name});
}
