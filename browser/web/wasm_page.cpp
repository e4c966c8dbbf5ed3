#include "browser/web/wasm_page.h"

#include <cstdlib>
#include <memory>

#include <emscripten.h>

// clang-format off
EM_JS(void, page_post, (const char* message), { Module.page.post(UTF8ToString(message)); });

EM_JS(void, page_pixels, (const char* picture, int left, int top, int width, int height, const void* bytes), {
    Module.page.pixels(UTF8ToString(picture), left, top, width, height,
                       HEAPU8.subarray(bytes, bytes + 4 * width * height));
});

EM_JS(char*, page_next, (), {
    const line = Module.page.next();
    if (line === null) return 0;
    const length = lengthBytesUTF8(line) + 1;
    const copy = _malloc(length);
    stringToUTF8(line, copy, length);
    return copy;
});

EM_ASYNC_JS(void, page_wait, (double milliseconds), { await Module.page.wait(milliseconds); });

EM_JS(void, page_end, (int code), { Module.page.end(code); });
// clang-format on

void WasmPage::Post(const std::string& message) {
    page_post(message.c_str());
}

void WasmPage::PostPixels(const PixelBlock& block) {
    page_pixels(block.picture.c_str(), block.left, block.top, block.width, block.height, block.bytes);
}

std::optional<std::string> WasmPage::Next() {
    const std::unique_ptr<char, decltype(&std::free)> line(page_next(), &std::free);
    if (line == nullptr) return {};
    return std::string(line.get());
}

void WasmPage::Wait(std::chrono::nanoseconds longest) {
    page_wait(std::chrono::duration<double, std::milli>(longest).count());
}

void WasmPage::End(int exitCode) {
    page_end(exitCode);
}
