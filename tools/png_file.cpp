#include "tools/png_file.h"

#include <cstdlib>
#include <vector>

#include "platform/run_time_error.h"

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
// The encoder may ask for nothing.
#define STBIW_MALLOC(size) std::malloc((size) + 1)
#define STBIW_REALLOC(block, size) std::realloc(block, size)
#define STBIW_FREE(block) std::free(block)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#include <stb/stb_image_write.h>
#pragma GCC diagnostic pop

void WritePng(const std::filesystem::path& file, const Picture& picture) {
    constexpr int Channels = 3;
    std::vector<unsigned char> bytes;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const Colour colour = picture.Row(y)[x];
            for (const int shift : {16, 8, 0})
                bytes.push_back(static_cast<unsigned char>(colour >> shift & 0xFFU));
        }
    }
    if (stbi_write_png(file.c_str(), picture.Width(), picture.Height(), Channels, bytes.data(),
                       picture.Width() * Channels) == 0)
        throw RunTimeError(Fault::FileWrite, file.string() + ": a picture can't be written there");
}
