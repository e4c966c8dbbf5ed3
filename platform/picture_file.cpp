#include "platform/picture_file.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/files.h"
#include "platform/run_time_error.h"

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_NO_STDIO
#define STBI_ONLY_BMP
#define STBI_ONLY_GIF
#define STBI_ONLY_JPEG
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb/stb_image.h>
#pragma GCC diagnostic pop

Picture DecodePicture(std::string_view content, std::string_view name) {
    constexpr int Channels = 4;
    int width = 0;
    int height = 0;
    const std::unique_ptr<stbi_uc, decltype(&stbi_image_free)> decoded(
        stbi_load_from_memory(reinterpret_cast<const stbi_uc*>(content.data()),
                              static_cast<int>(content.size()), &width, &height, nullptr, Channels),
        &stbi_image_free);
    if (!decoded)
        throw RunTimeError(
            Fault::BadData,
            ShownName(name) + ": expected a picture (BMP, GIF or JPEG), found: " + stbi_failure_reason());
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
    return read[std::string(name)] = std::make_shared<Picture>(DecodePicture(ReadWholeFile(name), name));
}
