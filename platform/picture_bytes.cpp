#include "platform/picture_bytes.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/byte_walk.h"
#include "platform/jpeg_bytes.h"

namespace {

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
