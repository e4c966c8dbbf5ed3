#include "platform/picture_file.h"

#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/files.h"
#include "platform/picture_bytes.h"
#include "platform/run_time_error.h"

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_NO_STDIO
#define STBI_ONLY_BMP
#define STBI_ONLY_GIF
#define STBI_ONLY_JPEG
// A file may leave out tables that the decoder then reads all the same: from zeros, which do no harm.
#define STBI_MALLOC(size) std::calloc(1, size)
#define STBI_REALLOC(block, size) std::realloc(block, size)
#define STBI_FREE(block) std::free(block)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb/stb_image.h>
#pragma GCC diagnostic pop

namespace {

constexpr int MaxSide = 2048;  // pixels; the largest of the game's pictures has 760

[[noreturn]] void Refuse(std::string_view name, const std::string& problem) {
    throw RunTimeError(Fault::BadData, ShownName(name) + ": " + problem);
}

[[noreturn]] void RefuseFormat(std::string_view name) {
    const std::string reason = stbi_failure_reason();  // empty for a GIF that ends before its picture
    Refuse(name, "expected a picture (BMP, GIF or JPEG), found " + (reason.empty() ? "none" : reason));
}

// Before anything is decoded, so that a few bytes of a header can't ask for gigabytes.
void CheckSize(const stbi_uc* bytes, int length, std::string_view name) {
    int width = 0;
    int height = 0;  // below 0 for a BMP that is stored from its top
    if (stbi_info_from_memory(bytes, length, &width, &height, nullptr) == 0) RefuseFormat(name);
    const bool sensible =
        width > 0 && width <= MaxSide && height != 0 && height >= -MaxSide && height <= MaxSide;
    if (!sensible)
        Refuse(name, "expected up to " + std::to_string(MaxSide) + " pixels either way, found " +
                         std::to_string(width) + " by " + std::to_string(height));
}

}  // namespace

Picture DecodePicture(std::string_view content, std::string_view name) {
    constexpr int Channels = 4;
    const auto* const bytes = reinterpret_cast<const stbi_uc*>(content.data());
    const int length = static_cast<int>(content.size());
    CheckPictureBytes(content, name);
    CheckSize(bytes, length, name);
    int width = 0;
    int height = 0;
    const std::unique_ptr<stbi_uc, decltype(&stbi_image_free)> decoded(
        stbi_load_from_memory(bytes, length, &width, &height, nullptr, Channels), &stbi_image_free);
    if (!decoded) RefuseFormat(name);
    Picture picture(width, height);
    const stbi_uc* from = decoded.get();
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x, from += Channels)
            picture.Row(y)[x] = from[3] == 0 ? 0 : Rgb(from[0], from[1], from[2]);
    return picture;
}

PictureRef ReadPictureFile(std::string_view name) {
    // Decoding is dear, and the same few pictures are asked for thousands of times in a mission. A picture is
    // never changed once it was read.
    static std::map<std::string, PictureRef, std::less<>> read;
    static std::string folder;
    if (const std::string now = ProgramPath("").native(); now != folder) {
        read.clear();
        folder = now;
    }
    const auto known = read.find(name);
    if (known != read.end()) return known->second;
    return read[std::string(name)] =
               std::make_shared<Picture>(DecodePicture(ReadWholeFile(name, MaxPictureFile), name));
}
